#include <gtest/gtest.h>

#include "MadeClasses.h"
#include "gello/model/ClassAlias.h"
#include "gello/model/ElementList.h"
#include "gello/model/Method.h"
#include "gello/model/Property.h"

using namespace gello;

TEST_F(MadeClasses, PropertiesAndMethodsNeedTypesAndConformByThem) {
  EXPECT_EQ(AssertionText([] { MakeRef<TRTTIProperty>(u"x", nullptr); }),
            u"Property x PropertyType is nil");
  EXPECT_EQ(AssertionText([] { MakeRef<TRTTIMethod>(u"bad", nullptr); }), u"Assertion failure");
  auto Base = Class(u"Base"), Sub = Class(u"Sub", Base);
  auto P = MakeRef<TRTTIProperty>(u"p", Sub);
  P->SetPropertyIndex(3);
  P->SetPropertyIndex(3);
  EXPECT_EQ(AssertionText([&] { P->SetPropertyIndex(4); }),
            u"PropertyIndex altered!  Data may be inconsistent.");
  EXPECT_EQ(P->GetPropertyIndex(), 3);
  EXPECT_TRUE(P->Compatible(Base.get()));
  EXPECT_FALSE(MakeRef<TRTTIProperty>(u"q", Base)->Compatible(Sub.get()));
  EXPECT_FALSE(MakeRef<TRTTIProperty>(u"untyped")->Compatible(Base.get()));
  auto M = MakeRef<TRTTIMethod>(u"m", Sub);
  ASSERT_TRUE(M->GetParams());
  EXPECT_EQ(M->GetParams()->GetCount(), 0);
  EXPECT_TRUE(M->Compatible(Base.get()));
  EXPECT_FALSE(MakeRef<TRTTIMethod>(u"read")->Compatible(Base.get()));  // as a reader makes it
}

TEST(Method, ResolveAndClearReachTheParametersAndAliasesBindByName) {
  auto Real = MakeRef<TRTTIClass>(u"Real");
  auto Scope = MakeRef<TRTTIScope>(u"pkg", true);
  Scope->AddMember(Real);
  auto Param = MakeRef<TRTTIProperty>(u"x", BuildClassRef(u"Real"));
  auto M = MakeRef<TRTTIMethod>(
      u"m", BuildClassRef(u"Real"),
      MakeRef<TRTTIElementList>(std::initializer_list<Ref<IRTTIElement>>{Param}));
  M->Resolve(Scope.get());
  EXPECT_TRUE(M->GetResolved());
  EXPECT_EQ(M->GetResultType(), Ref<IRTTIClass>(Real));
  EXPECT_EQ(Param->GetPropertyType(), Ref<IRTTIClass>(Real));
  M->Clear();
  EXPECT_FALSE(M->GetResultType());
  EXPECT_EQ(M->GetParams()->GetCount(), 0);
  EXPECT_FALSE(Param->GetPropertyType());
  auto Unbound = MakeRef<TRTTIClassAlias>(u"Lost");
  EXPECT_THROW(Unbound->Resolve(Scope.get()), EAssertionFailed);
  EXPECT_FALSE(Unbound->IsClass(Real.get()));  // answers as an empty class until bound
  EXPECT_EQ(Unbound->GetPropertyCount(), 0);
  Scope->Clear();
}

TEST(ClassAlias, ForwardsQueriesAndIgnoresSetters) {
  auto Real = MakeRef<TRTTIClass>(u"Real");
  Real->SetClassKind(rtti_real);
  Real->SetHostClassName(u"OCLReal");
  auto Amount = MakeRef<TRTTIClass>(u"Amount", Real);
  Amount->AddMember(MakeRef<TRTTIProperty>(u"value", Real));
  auto Alias = MakeRef<TRTTIClassAlias>(u"Money", Amount);
  EXPECT_EQ(Alias->GetAncestor(), Ref<IRTTIClass>(Real));
  EXPECT_EQ(Alias->GetClassKind(), rtti_real);
  EXPECT_EQ(Alias->GetHostClassName(), u"");  // Amount's own, not Real's
  EXPECT_TRUE(Alias->IsClass(Real.get()));
  EXPECT_EQ(Alias->GetProperties(0)->GetName(), u"value");
  // Setters change nothing, neither on the alias nor on its class.
  Alias->SetAncestor(nullptr);
  Alias->SetClassKind(rtti_string);
  Alias->SetIsTuple(true);
  Alias->SetResolved(true);
  EXPECT_EQ(Amount->GetAncestor(), Ref<IRTTIClass>(Real));
  EXPECT_EQ(Amount->GetClassKind(), rtti_real);
  EXPECT_FALSE(Alias->GetIsTuple());
  EXPECT_FALSE(Alias->GetResolved());  // the class's flag
  Amount->SetResolved(true);
  EXPECT_TRUE(Alias->GetResolved());
  // Its own members stay its own.
  EXPECT_TRUE(Alias->AddMember(MakeRef<TRTTIProperty>(u"note", Real)));
  EXPECT_EQ(Amount->GetMembers()->GetCount(), 1);
  EXPECT_EQ(AssertionText([&] { Alias->SetActualClass(nullptr); }), u"Assertion failure");
  EXPECT_EQ(Alias->GetActualClass(), Ref<IRTTIClass>(Amount));
  Alias->Clear();
  Amount->Clear();
}
