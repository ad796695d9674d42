#include <gtest/gtest.h>

#include <unistd.h>
#include <filesystem>
#include <fstream>
#include <iterator>

#include "FormsFixture.h"
#include "gello/expr/Literals.h"
#include "gello/foundation/Exceptions.h"
#include "gello/interchange/PackageFiles.h"
#include "gello/model/Class.h"
#include "gello/model/ClassAlias.h"
#include "gello/model/ElementList.h"
#include "gello/model/ElementRegistry.h"
#include "gello/model/Method.h"
#include "gello/model/Property.h"

using namespace gello;

namespace {

std::string FileText(const std::filesystem::path& Path) {
  std::ifstream In(Path, std::ios::binary);
  return {std::istreambuf_iterator<char>(In), std::istreambuf_iterator<char>()};
}

struct NativeXMLTest : FormsFixture {
  std::filesystem::path Dir =
      std::filesystem::temp_directory_path() / ("gello-forms-" + std::to_string(::getpid()));
  void SetUp() override { std::filesystem::create_directories(Dir); }
  void TearDown() override {
    std::filesystem::remove_all(Dir);
    FormsFixture::TearDown();
  }
  // Clinic: Person, Patient (ancestor Person) with a Set(Observation) property, a Gender
  // enumeration, an alias Subject, and a method whose body is a literal.
  Ref<TRTTIPackage> Clinic() {
    auto Package = MakeRef<TRTTIPackage>(u"Clinic");
    auto Person = MakeRef<TRTTIClass>(u"Person", Globals->Get_Any());
    auto Patient = MakeRef<TRTTIClass>(u"Patient", Person);
    auto Observation = MakeRef<TRTTIClass>(u"Observation");
    auto Observations = MakeRef<TRTTIClass>(u"Set(Observation)", Globals->Get_Set(), Observation);
    auto Gender = MakeRef<TRTTIClass>(u"Gender", Globals->Get_String());
    Gender->SetEnums(MakeRef<TRTTIElementList>(
        std::initializer_list<Ref<IRTTIElement>>{MakeRef<TRTTIEnumLiteral>(u"female", Gender, 0),
                                                 MakeRef<TRTTIEnumLiteral>(u"male", Gender, 1)}));
    Patient->SetAnnotation(u"A person under care");
    Patient->AddMember(MakeRef<TRTTIProperty>(u"observations", Observations));
    auto Age = MakeRef<TRTTIMethod>(u"ageAt", Globals->Get_Integer());
    Age->GetParams()->Add(MakeRef<TRTTIProperty>(u"year", Globals->Get_Integer()));
    Age->SetResultValue(MakeRef<TRTTIIntegerLiteral>(Globals->Get_Integer(), 42));
    Patient->AddMember(Age);
    for (const Ref<IRTTIClass>& C : {Ref<IRTTIClass>(Person), Ref<IRTTIClass>(Patient),
                                     Ref<IRTTIClass>(Observations), Ref<IRTTIClass>(Gender)})
      Package->AddMember(C);
    Package->AddMember(MakeRef<TRTTIClassAlias>(u"Subject", Patient));
    Package->AddMember(Observation);
    Package->SetMainBlock(MakeRef<TRTTIStringLiteral>(Globals->Get_String(), u"main"));
    Globals->AddMember(Package);
    return Package;
  }
};

}  // namespace

TEST_F(NativeXMLTest, SavedLoadedAndSavedAgainGivesTheSameDocument) {
  SaveToFile(*Clinic(), (Dir / "first.xml").u16string());
  const std::string First = FileText(Dir / "first.xml");
  EXPECT_NE(First.find("<GELLO xmlns=\"http://gello.invalid/gello/1.1\" kind=\"Package\" "
                       "name=\"Clinic\" ownsMembers=\"true\">"),
            std::string::npos);
  EXPECT_NE(First.find("<mainblock kind=\"StringLiteral\" type=\"String\" value=\"main\""),
            std::string::npos);
  EXPECT_EQ(First.find("<statements"), std::string::npos);
  EXPECT_EQ(First.find("<imports"), std::string::npos);

  auto Again = MakeRef<TRTTIGlobals>();
  auto Loaded = MakeRef<TRTTIPackage>(u"Clinic");
  LoadFromFile(*Loaded, (Dir / "first.xml").u16string(), Again.get());
  Again->AddMember(Loaded);
  SaveToFile(*Loaded, (Dir / "second.xml").u16string());
  // The main block is written but never read, so only it is missing the second time.
  std::string Expected = First;
  const std::size_t Main = Expected.find("  <mainblock");
  Expected.erase(Main, Expected.find('\n', Main) + 1 - Main);
  EXPECT_EQ(FileText(Dir / "second.xml"), Expected);

  EXPECT_FALSE(Loaded->GetMainBlock());
  EXPECT_FALSE(Loaded->GetImports());
  EXPECT_EQ(Loaded->GetStatements()->GetCount(), 0);
  Loaded->Resolve(Again.get());
  auto Patient = Loaded->Find<IRTTIClass>(u"Patient");
  ASSERT_TRUE(Patient);
  EXPECT_EQ(Patient->GetAnnotation(), u"A person under care");
  EXPECT_EQ(Patient->GetAncestor(), Loaded->Find<IRTTIClass>(u"Person"));
  EXPECT_EQ(Loaded->Find<IRTTIClass>(u"Subject")->GetAncestor(), Patient->GetAncestor());
  auto Observations = Loaded->Find<IRTTIClass>(u"Set(Observation)");
  EXPECT_EQ(Observations->GetImmediateElementType(), Loaded->Find<IRTTIClass>(u"Observation"));
  EXPECT_EQ(Observations->GetClassKind(), rtti_set);
  auto Age = Patient->Find<IRTTIMethod>(u"ageAt");
  EXPECT_EQ(Age->GetParams()->GetCount(), 1);
  EXPECT_EQ(Age->GetResultType(), Again->Get_Integer());
  EXPECT_EQ(DynCast<IRTTILiteral>(Age->GetResultValue())->GetasString(), u"42");
  EXPECT_EQ(Loaded->Find<IRTTIClass>(u"Gender")->GetEnums()->GetCount(), 2);
  Again->Clear();
}

TEST_F(NativeXMLTest, ReadingRulesAndDefaults) {
  // Any tag name holds list items; ownsMembers is true unless it says false; the second
  // "A" merges into the first; the placeholder B is made through the global scope.
  auto Package = Read(
      "<GELLO kind='Package' name='P' ownsMembers='maybe'><members>"
      "<class kind='Class' name='A' ownsMembers='false' ancestor='B'/>"
      "<item kind='Class' name='A' annotation='again'><members>"
      "<x kind='Method' name='m' type='Integer'/></members></item>"
      "<y kind='ClassAlias' name='C' actualclass='A'/>"
      "<z kind='Class' name='Bag(A)' ancestor='Bag(T)'/>"
      "</members></GELLO>");
  EXPECT_TRUE(Package->GetOwnsMembers());
  ASSERT_EQ(Package->GetMembers()->GetCount(), 3);
  auto A = Package->Find<IRTTIClass>(u"A");
  EXPECT_EQ(A->GetAnnotation(), u"again");
  EXPECT_TRUE(A->GetOwnsMembers());  // read again without the attribute
  EXPECT_TRUE(A->GetResolved());
  auto Method = A->Find<IRTTIMethod>(u"m");
  EXPECT_EQ(Method->GetResultType(), Globals->Get_Integer());
  EXPECT_EQ(Method->GetParams()->GetCount(), 0);
  EXPECT_FALSE(Method->GetResultValue());
  // Names become placeholders, one per name in a read, which resolving binds.
  auto Bag = Package->Find<IRTTIClass>(u"Bag(A)");
  EXPECT_EQ(Bag->GetImmediateElementType()->GetName(), u"A");  // from its generic name
  EXPECT_NE(Bag->GetImmediateElementType(), A);
  EXPECT_EQ(DynCast<TRTTIClassAlias>(Package->Find<IRTTIClass>(u"C"))->GetActualClass(),
            Bag->GetImmediateElementType());
  EXPECT_EQ(A->GetAncestor()->GetName(), u"B");
  Globals->AddMember(Package);
  Package->Resolve(Globals.get());
  EXPECT_EQ(Bag->GetImmediateElementType(), A);
  EXPECT_EQ(Bag->GetAncestor(), Globals->Get_Bag());

  // A method call's empty "classref" reads back as nothing.
  auto Literal = LoadFromXMLNode(pugi::xml_node(), Globals.get());
  EXPECT_FALSE(Literal);
  pugi::xml_document Empty;
  EXPECT_FALSE(LoadFromXMLNode(Empty.append_child("classref"), Globals.get()));
}

TEST_F(NativeXMLTest, OnlyTheFirstNodeOrAttributeOfItsNameIsRead) {
  // Names that begin or end like the form's own are not taken for them; comments and text
  // between the nodes are passed over.
  auto Package = Read(
      "<GELLO kind='Package' name='P'><members>"
      "<e kind='Method' name='m' typ='Real' types='Real' type='Integer' type2='Real'>"
      "<!-- note -->text<valu kind='IntegerLiteral' value='7'/>"
      "<value kind='IntegerLiteral' value='1'/><value kind='IntegerLiteral' value='2'/>"
      "<parameters><p kind='Property' name='a'/></parameters><parameters/></e>"
      "</members></GELLO>");
  auto Method = Package->Find<IRTTIMethod>(u"m");
  EXPECT_EQ(Method->GetResultType(), Globals->Get_Integer());
  EXPECT_EQ(DynCast<IRTTILiteral>(Method->GetResultValue())->GetasString(), u"1");
  EXPECT_EQ(Method->GetParams()->GetCount(), 1);
}

TEST_F(NativeXMLTest, EachTypeNameIsOnePlaceholderThroughoutARead) {
  // Enough names that the table of names read grows several times over.
  constexpr int Names = 300;
  std::string Text = "<GELLO kind='Package' name='P'><members><c kind='Class' name='C'><members>";
  for (int Round = 0; Round < 2; ++Round)
    for (int i = 0; i < Names; ++i)
      Text += "<p kind='Property' name='p" + std::to_string(Round * Names + i) + "' type='T" +
              std::to_string(i) + "'/>";
  auto Package = Read(Text + "</members></c></members></GELLO>");
  Ref<IRTTIElementList> Members = Package->Find<IRTTIClass>(u"C")->GetMembers();
  ASSERT_EQ(Members->GetCount(), 2 * Names);
  auto TypeAt = [&](int i) {
    return DynCast<IRTTIProperty>(Members->GetItems(i))->GetPropertyType();
  };
  for (int i = 0; i < Names; ++i) {
    EXPECT_EQ(TypeAt(i)->GetName(), u"T" + IntToStr(i));
    EXPECT_EQ(TypeAt(i), TypeAt(Names + i));
    EXPECT_NE(TypeAt(i), TypeAt((i + 1) % Names));
  }
}

TEST_F(NativeXMLTest, BadInputEndsInTheSystemsMessages) {
  auto MessageOf = [&](const std::string& Text) -> String {
    try {
      Read(Text);
    } catch (const Exception& Error) {
      return Error.Message();
    }
    return u"<none>";
  };
  EXPECT_EQ(MessageOf("<GELLO kind='Package'><members><e kind='Nothing'/></members></GELLO>"),
            u"RTTI class name not registered : TRTTINothing");
  EXPECT_EQ(MessageOf("<GELLO kind='Package'><members><e kind='ClassAlias' name='A'/>"
                      "</members></GELLO>")
                .substr(0, 17),
            u"Assertion failure");
  EXPECT_EQ(MessageOf("<GELLO kind='Package'><members><e kind='Method' name='m'><value "
                      "kind='IntegerLiteral' value='4294967296'/></e></members></GELLO>"),
            u"'4294967296' is not a valid integer value");
  EXPECT_EQ(MessageOf("<GELLO kind='Package'><members><e kind='Property' name='p'><value "
                      "kind='Class' name='C'/></e></members></GELLO>"),
            u"An element of kind Class cannot stand in \"value\"");
  EXPECT_EQ(MessageOf("<GELLO><members></GELLO>"), u"Start-end tags mismatch");
  EXPECT_EQ(MessageOf("<other/>").substr(0, 36), u"Trying to read nil xml node in model");

  // Aliases that stand for one another are refused when resolved, not followed for ever.
  auto Loop = Read(
      "<GELLO kind='Package' name='L'><members>"
      "<e kind='ClassAlias' name='A' actualclass='B'/>"
      "<e kind='ClassAlias' name='B' actualclass='A'/></members></GELLO>");
  Globals->AddMember(Loop);
  EXPECT_THROW(Loop->Resolve(Globals.get()), EAssertionFailed);

  auto Named = MakeRef<TRTTIPackage>(u"Clinic");
  pugi::xml_document Document;
  Document.load_string("<GELLO kind='Package' name='Other'/>");
  try {
    ReadXML(*Named, Document.child("GELLO"), Globals.get());
    ADD_FAILURE() << "a package must not be renamed";
  } catch (const EAssertionFailed& Failure) {
    EXPECT_EQ(Failure.Text(), u"Reassigning element.name from Clinic to Other");
  }
  EXPECT_THROW(LoadFromFile(*Named, (Dir / "missing.xml").u16string(), Globals.get()), Exception);
}

TEST_F(NativeXMLTest, StreamFormIsTheHeaderThenTheDocument) {
  SaveToStream(*Clinic(), (Dir / "clinic.pkg").u16string());
  const std::string Bytes = FileText(Dir / "clinic.pkg");
  EXPECT_EQ(Bytes.substr(0, 13), std::string("G\0E\0L\0L\0O\0_\0P", 13));
  EXPECT_NE(Bytes.find("name=\"Clinic\"", 13), std::string::npos);
  try {
    SaveToStream(*Clinic(), u"/nonexistent-dir/x.pkg");
    ADD_FAILURE() << "an unwritable stream file must raise";
  } catch (const Exception& Failure) {
    EXPECT_EQ(Failure.Message(), u"Cannot create file \"/nonexistent-dir/x.pkg\"");
  }
}

TEST_F(NativeXMLTest, PackageMadeFromAFileIsNamedByIt) {
  // Whatever the suffix, the name is the file's, made valid; the document may not rename it.
  std::ofstream(Dir / "Clinic.model.gello") << "<GELLO kind='Package' name='Clinic_model'>"
                                               "<members><e kind='Class' name='Ward'/></members>"
                                               "</GELLO>";
  auto Package = CreatePackageFromFile((Dir / "Clinic.model.gello").u16string(), Globals.get());
  EXPECT_EQ(Package->GetName(), u"Clinic_model");
  EXPECT_TRUE(Package->Find<IRTTIClass>(u"Ward"));
  std::ofstream(Dir / "ward.xml") << "<GELLO kind='Package' name='Clinic'/>";
  EXPECT_THROW(CreatePackageFromFile((Dir / "ward.xml").u16string(), Globals.get()),
               EAssertionFailed);
}

TEST_F(NativeXMLTest, FailuresNameTheFileLineAndColumn) {
  // Character columns: the "é" before the bad node is two bytes but one column; an element is
  // placed at its name, and a truncated document where the parser gave up.
  std::ofstream(Dir / "bad.xml") << "<?xml version='1.0'?>\n<GELLO kind='Package' name='B'>\n"
                                    "  <members><e kind='Class' name='Caf\xc3\xa9'/>"
                                    "<e kind='Bogus'/></members>\n</GELLO>\n";
  auto Located = [&](const std::filesystem::path& File) -> String {
    try {
      LoadFromFile(*MakeRef<TRTTIPackage>(String()), File.u16string(), Globals.get());
    } catch (const Exception& Failure) {
      return LocatedMessage(Failure);
    }
    return u"<none>";
  };
  const String Bad = (Dir / "bad.xml").u16string();
  EXPECT_EQ(Located(Dir / "bad.xml"), Bad + u":3:42: RTTI class name not registered : TRTTIBogus");
  std::ofstream(Dir / "cut.xml") << "<GELLO kind='Package'>\n  <members>\n";
  EXPECT_EQ(Located(Dir / "cut.xml"),
            (Dir / "cut.xml").u16string() + u":2:12: Start-end tags mismatch");
  // Nothing to place a missing file in.
  EXPECT_EQ(Located(Dir / "none.xml"), u"File was not found: " + (Dir / "none.xml").u16string());
}

TEST_F(NativeXMLTest, DeclaredEncodingsAreConvertedBeforeParsing) {
  const std::string Latin =
      "<?xml version='1.0' encoding='windows-1252'?>"
      "<GELLO kind='Package' name='Caf\xe9'/>";
  EXPECT_EQ(Read(Latin)->GetName(), u"Caf\u00e9");
  EXPECT_EQ(Read("<?xml version='1.0' encoding='UTF-8'?><GELLO name='Caf\xc3\xa9'/>")->GetName(),
            u"Caf\u00e9");
  EXPECT_THROW(Read("<?xml version='1.0' encoding='no-such-code'?><GELLO/>"), Exception);
}
