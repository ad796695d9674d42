#include <gtest/gtest.h>

#include "MadeClasses.h"
#include "gello/expr/Literals.h"
#include "gello/foundation/Log.h"
#include "gello/model/Class.h"
#include "gello/model/ElementList.h"
#include "gello/model/Generic.h"
#include "gello/model/Method.h"
#include "gello/model/Property.h"

using namespace gello;

namespace {

struct ConformanceTest : MadeClasses {
  TLogCapture Log;
  Ref<IRTTIClass> Collection(const String& Name, TRTTIClassKind Kind,
                             const Ref<IRTTIClass>& Element) {
    auto C = Class(Name);
    C->SetClassKind(Kind);
    C->SetElementType(Element);
    return C;
  }
  Ref<IRTTIClass> Tuple(const String& Name,
                        std::initializer_list<std::pair<String, Ref<IRTTIClass>>> Fields) {
    auto T = Class(Name);
    T->SetIsTuple(true);
    for (const auto& [Field, Type] : Fields)
      T->AddMember(MakeRef<TRTTIProperty>(Field, Type));
    return T;
  }
  Ref<IRTTIElementList> Args(std::initializer_list<Ref<IRTTIClass>> Types) {
    auto List = MakeRef<TRTTIElementList>();
    for (const auto& Type : Types)
      List->Add(MakeRef<TRTTIValue>(Type));
    return List;
  }
  Ref<IRTTIMethod> Method(const Ref<IRTTIClass>& Owner, const String& Name,
                          std::initializer_list<Ref<IRTTIClass>> ParamTypes) {
    auto Params = MakeRef<TRTTIElementList>();
    int i = 0;
    for (const auto& Type : ParamTypes)
      Params->Add(MakeRef<TRTTIProperty>(u"a" + IntToStr(i++), Type));
    auto M = MakeRef<TRTTIMethod>(Name, Owner, Params);
    Owner->GetMembers()->Add(M);
    return M;
  }
};

}  // namespace

TEST_F(ConformanceTest, SubclassesConformUpwardOnly) {
  auto A = Class(u"A"), B = Class(u"B", A), C = Class(u"C", B);
  EXPECT_TRUE(B->IsClass(A.get()));
  EXPECT_TRUE(C->IsClass(A.get()));
  EXPECT_FALSE(A->IsClass(B.get()));
  EXPECT_TRUE(A->IsClass(A.get()));
  EXPECT_FALSE(A->IsClass(nullptr));
  auto T = MakeRef<TRTTIGeneric>(u"T");
  Made.push_back(T);
  EXPECT_TRUE(T->IsClass(A.get()));  // a generic parameter fits anything
  EXPECT_FALSE(A->IsClass(T.get()));
}

TEST_F(ConformanceTest, AnEnumerationAcceptsItsBaseClass) {
  auto Str = Class(u"String");
  auto Colour = Class(u"Colour", Str);
  Colour->SetEnums(MakeRef<TRTTIElementList>(
      std::initializer_list<Ref<IRTTIElement>>{MakeRef<TRTTIEnumLiteral>(u"red", Colour, 0)}));
  EXPECT_TRUE(Str->IsClass(Colour.get()));
  EXPECT_TRUE(Colour->IsClass(Str.get()));
  EXPECT_FALSE(Class(u"Other")->IsClass(Colour.get()));
}

TEST_F(ConformanceTest, CollectionsConformByKindAndElementType) {
  auto Real = Class(u"Real"), Integer = Class(u"Integer", Real);
  auto Untyped = Class(u"_Untyped_");
  auto SeqUntyped = Collection(u"Sequence(_Untyped_)", rtti_sequence, Untyped);
  auto SeqInteger = Collection(u"Sequence(Integer)", rtti_sequence, Integer);
  auto SeqReal = Collection(u"Sequence(Real)", rtti_sequence, Real);
  auto SetInteger = Collection(u"Set(Integer)", rtti_set, Integer);
  EXPECT_TRUE(SeqUntyped->IsClass(SeqInteger.get()));
  EXPECT_FALSE(SeqInteger->IsClass(SeqUntyped.get()));
  EXPECT_TRUE(SeqInteger->IsClass(SeqReal.get()));
  EXPECT_FALSE(SeqReal->IsClass(SeqInteger.get()));
  EXPECT_FALSE(SetInteger->IsClass(SeqInteger.get()));
  EXPECT_EQ(Log.Count(u"Testing Collection Set(Integer),ElementType=Integer with "
                      u"Sequence(Integer),ElementType=Integer"),
            1u);
  auto Anything = Class(u"Anything");
  Untyped->SetAncestor(Anything);
  Integer->SetAncestor(Anything);
  EXPECT_FALSE(SeqInteger->IsClass(SeqUntyped.get()));  // _Untyped_ is not among Integer's
  Integer->SetAncestor(Untyped);
  EXPECT_TRUE(SeqInteger->IsClass(SeqUntyped.get()));
}

TEST_F(ConformanceTest, TuplesConformByFieldNameAndType) {
  auto Integer = Class(u"Integer"), Str = Class(u"String");
  auto AB = Tuple(u"AB", {{u"a", Integer}, {u"b", Str}});
  auto BA = Tuple(u"BA", {{u"b", Str}, {u"a", Integer}});
  auto ABC = Tuple(u"ABC", {{u"a", Integer}, {u"b", Str}, {u"c", Str}});
  auto WrongType = Tuple(u"AS", {{u"a", Str}, {u"b", Str}});
  EXPECT_TRUE(AB->IsClass(BA.get()));
  EXPECT_FALSE(AB->IsClass(ABC.get()));
  EXPECT_FALSE(AB->IsClass(WrongType.get()));
  // A plain class with the fields, here inherited, accepts the tuple.
  auto Base = Class(u"Base");
  Property(Base, u"a", Integer);
  auto Record = Class(u"Record", Base);
  Property(Record, u"b", Str);
  EXPECT_TRUE(AB->IsClass(Record.get()));
  EXPECT_FALSE(AB->IsClass(Class(u"Empty").get()));
  // Tuples of tuples compare through their fields, and a self-naming tuple does not loop.
  auto Outer1 = Tuple(u"O1", {{u"t", AB}}), Outer2 = Tuple(u"O2", {{u"t", BA}});
  EXPECT_TRUE(Outer1->IsClass(Outer2.get()));
  auto Self1 = Tuple(u"S1", {}), Self2 = Tuple(u"S2", {});
  Self1->AddMember(MakeRef<TRTTIProperty>(u"next", Self1));
  Self2->AddMember(MakeRef<TRTTIProperty>(u"next", Self2));
  EXPECT_FALSE(Self1->IsClass(Self2.get()));
}

TEST_F(ConformanceTest, DerivesFollowsElementTypesAndMembersWithoutLooping) {
  auto Target = Class(u"Target"), Holder = Class(u"Holder"), Base = Class(u"Base");
  auto Sub = Class(u"Sub", Base);
  Base->AddMember(MakeRef<TRTTIProperty>(u"t", Target));
  Holder->AddMember(MakeRef<TRTTIProperty>(u"self", Holder));  // a cycle through a member
  auto Path = MakeRef<TRTTIElementList>();
  EXPECT_TRUE(Sub->Derives(Target.get(), *Path));
  EXPECT_TRUE(Path->Exists(Sub.get()));
  Path = MakeRef<TRTTIElementList>();
  EXPECT_FALSE(Holder->Derives(Target.get(), *Path));
  EXPECT_FALSE(Holder->Derives(Target.get(), *Path));  // already on the path
  auto Coll = Collection(u"Bag(Base)", rtti_bag, Base);
  Path = MakeRef<TRTTIElementList>();
  EXPECT_TRUE(Coll->Derives(Target.get(), *Path));
}

TEST_F(ConformanceTest, FindMethodTakesTheFirstFit) {
  auto Real = Class(u"Real"), Integer = Class(u"Integer", Real);
  auto Base = Class(u"Base"), Sub = Class(u"Sub", Base);
  auto ForReal = Method(Sub, u"f", {Real});
  Method(Sub, u"f", {Integer});
  auto Inherited = Method(Base, u"f", {Integer, Integer});
  EXPECT_EQ(Sub->FindMethod(u"f", Args({Integer}).get()), ForReal);  // first fit, not best
  EXPECT_EQ(Sub->FindMethod(u"f", Args({Integer, Integer}).get()), Inherited);
  EXPECT_FALSE(Sub->FindMethod(u"f", Args({Real, Integer}).get()));
  EXPECT_FALSE(Sub->FindMethod(u"f", nullptr));
  EXPECT_FALSE(Sub->FindMethod(u"g", Args({Integer}).get()));
  auto NoArgs = Method(Base, u"h", {});
  EXPECT_EQ(Sub->FindMethod(u"h", nullptr), NoArgs);
}
