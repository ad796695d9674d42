#include <gtest/gtest.h>

#include "FormsFixture.h"
#include "gello/expr/ControlNodes.h"
#include "gello/expr/Literals.h"
#include "gello/expr/Navigation.h"
#include "gello/foundation/Exceptions.h"
#include "gello/model/Class.h"
#include "gello/model/ElementList.h"
#include "gello/model/ElementRegistry.h"
#include "gello/model/Method.h"
#include "gello/model/Property.h"

using namespace gello;

namespace {

Ref<IRTTIElementList> ListOf(std::initializer_list<Ref<IRTTIElement>> Items) {
  return MakeRef<TRTTIElementList>(Items);
}

struct NodeFormsTest : FormsFixture {
  Ref<IRTTIClass> Integer = Globals->Get_Integer();
  Ref<IRTTIClass> Boolean = Globals->Get_Boolean();
  Ref<IRTTIValue> Int(std::int64_t Value) { return MakeRef<TRTTIIntegerLiteral>(Integer, Value); }

  // if self.doses->exists(d | d > 0) then Tuple{n = 1, ok = true} else Set{1, 2}, with a pragma.
  Ref<TRTTIPackage> WithEveryNode() {
    auto Doses = MakeRef<TRTTIPropertyRef>(u"doses", Globals->Get_Set(), nullptr);
    auto D = MakeRef<TRTTIProperty>(u"d", Integer);
    auto Positive =
        MakeRef<TRTTIMethodCall>(u">", Boolean, MakeRef<TRTTIPropertyRef>(u"d", Integer, nullptr),
                                 ListOf({Int(0)}), nullptr);
    auto Exists =
        MakeRef<TRTTICollectionMethod>(u"exists", Boolean, Doses, D, nullptr, ListOf({Positive}));
    auto N = Int(1);
    N->SetName(u"n");
    auto Ok = MakeRef<TRTTIBooleanLiteral>(Boolean, true);
    Ok->SetName(u"ok");
    auto Tuple = MakeRef<TRTTITupleValue>(Globals->Get_Tuple(), ListOf({N, Ok}));
    auto Literal = MakeRef<TRTTICollectionValue>(Globals->Get_Set(), ListOf({Int(1), Int(2)}));
    auto Body = MakeRef<TRTTIConditional>(Globals->Get_Any(), Exists, Tuple, Literal);
    auto Method = MakeRef<TRTTIMethod>(u"summary", Globals->Get_Any());
    Method->SetResultValue(Body);
    auto Class = MakeRef<TRTTIClass>(u"Regimen");
    Class->AddMember(Method);
    auto Pragma = MakeRef<TRTTIPragma>(nullptr, u"strict", ListOf({}));
    auto Call = MakeRef<TRTTIMethodCall>(u"now", Integer, nullptr, ListOf({Int(3)}), nullptr);
    Method->GetParams()->Add(MakeRef<TRTTIProperty>(u"at", Integer));
    auto Package = MakeRef<TRTTIPackage>(u"Rules");
    Package->AddMember(Class);
    Package->GetStatements()->Add(Pragma);
    Package->GetStatements()->Add(Call);
    return Package;
  }
};

}  // namespace

TEST_F(NodeFormsTest, EveryNodeKindWritesAndReadsBack) {
  Ref<TRTTIPackage> Package = WithEveryNode();
  const std::string First = Written(*Package);
  // A call without receiver writes an empty "classref" and keeps its parameters.
  EXPECT_NE(First.find("<element kind=\"MethodCall\" name=\"now\" type=\"Integer\"><classref/>"
                       "<params><element kind=\"IntegerLiteral\" type=\"Integer\" value=\"3\"/>"),
            std::string::npos);
  EXPECT_NE(First.find("<element kind=\"Pragma\" directive=\"strict\"><pragmas/></element>"),
            std::string::npos);
  EXPECT_NE(First.find("<value kind=\"Conditional\" type=\"Any\"><condition kind=\"CollectionMethod"
                       "\" name=\"exists\" type=\"Boolean\"><iterator kind=\"Property\" name=\"d\" "
                       "type=\"Integer\"/><classref kind=\"PropertyRef\" name=\"doses\""),
            std::string::npos);
  Ref<TRTTIPackage> Loaded = Read(First);
  EXPECT_EQ(Written(*Loaded), First);

  auto Call = DynCast<TRTTIMethodCall>(Loaded->GetStatements()->GetItems(1));
  EXPECT_FALSE(Call->Getclassref());
  auto Body = DynCast<TRTTIConditional>(
      Loaded->Find<IRTTIClass>(u"Regimen")->Find<IRTTIMethod>(u"summary")->GetResultValue());
  auto Exists = DynCast<TRTTICollectionMethod>(Body->GetCondition());
  EXPECT_FALSE(Exists->Getaccum());
  EXPECT_EQ(Exists->Getiterator()->GetPropertyType(), Integer);
  auto Positive = DynCast<TRTTIMethodCall>(Exists->Getparams()->GetItems(0));
  EXPECT_EQ(DynCast<TRTTIPropertyRef>(Positive->Getclassref())->GetName(), u"d");
  // The tuple's type is rebuilt from its parts.
  Ref<IRTTIClass> Tuple = DynCast<IRTTIValue>(Body->GetThenPart())->GetValueType();
  EXPECT_NE(Tuple, Globals->Get_Tuple());
  EXPECT_EQ(Tuple->GetName(), u"Tuple");
  EXPECT_TRUE(Tuple->GetIsTuple());
  EXPECT_EQ(Tuple->Find<IRTTIProperty>(u"ok")->GetPropertyType(), Boolean);
  EXPECT_EQ(Tuple->GetPropertyCount(), 2);
  EXPECT_EQ(DynCast<TRTTICollectionValue>(Body->GetElsePart())->GetElements()->GetCount(), 2);
  // A call without receiver or parameters reads back with an empty parameter list.
  Ref<IRTTIElement> Bare = CreateForReader(u"MethodCall", u"f");
  pugi::xml_document Document;
  Document.load_string("<n kind='MethodCall' name='f'><classref/></n>");
  ReadXML(*Bare, Document.child("n"), Globals.get());
  EXPECT_FALSE(DynCast<TRTTIMethodCall>(Bare)->Getclassref());
  EXPECT_EQ(DynCast<TRTTIMethodCall>(Bare)->Getparams()->GetCount(), 0);
  Package->Clear();
  Loaded->Clear();
}

TEST_F(NodeFormsTest, StatementBlocksAreWrittenButNotRead) {
  auto Block = MakeRef<TRTTIStatements>(Integer, ListOf({}), Int(7));
  const std::string Text = Written(*Block);
  EXPECT_EQ(Text,
            "<GELLO kind=\"Statements\" type=\"Integer\"><declaratives/><returnvalue "
            "kind=\"IntegerLiteral\" type=\"Integer\" value=\"7\"/></GELLO>");
  try {
    Read("<GELLO kind='Package'><members><e kind='Method' name='m'><value" +
         Text.substr(6, Text.size() - 14) + "</value></e></members></GELLO>");
    ADD_FAILURE() << "a statement block must not be read";
  } catch (const Exception& Error) {
    EXPECT_EQ(Error.Message(), u"RTTI class name not registered : TRTTIStatements");
  }
  auto Partial = MakeRef<TRTTIConditional>(Integer, Int(1), Int(2), nullptr);
  EXPECT_THROW(Written(*Partial), EAssertionFailed);

  const std::vector<String> Kinds = RegisteredKinds();
  EXPECT_EQ(Kinds, (std::vector<String>{u"BooleanLiteral",
                                        u"Class",
                                        u"ClassAlias",
                                        u"ClassLiteral",
                                        u"CollectionMethod",
                                        u"CollectionValue",
                                        u"Conditional",
                                        u"Element",
                                        u"EnumLiteral",
                                        u"Factory",
                                        u"Generic",
                                        u"Globals",
                                        u"IntegerLiteral",
                                        u"Literal",
                                        u"Method",
                                        u"MethodCall",
                                        u"NullLiteral",
                                        u"Package",
                                        u"Pragma",
                                        u"Property",
                                        u"PropertyRef",
                                        u"RealLiteral",
                                        u"Scope",
                                        u"StringLiteral",
                                        u"TupleValue",
                                        u"Value"}));
  for (const String& Kind : Kinds)
    EXPECT_EQ(CreateForReader(Kind, u"")->GetKind(), Kind);
}
