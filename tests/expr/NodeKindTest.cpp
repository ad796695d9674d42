#include "gello/model/NodeKind.h"

#include <gtest/gtest.h>

#include <set>

#include "gello/expr/ControlNodes.h"
#include "gello/expr/Literals.h"
#include "gello/expr/Navigation.h"
#include "gello/model/ElementRegistry.h"
#include "gello/model/Generic.h"
#include "gello/model/Globals.h"

using namespace gello;

TEST(NodeKind, EveryRegisteredKindWordMakesAnElementOfThatKind) {
  std::set<StringView> Words;
  for (std::size_t i = 0; i < NodeKindCount; ++i)
    EXPECT_TRUE(Words.insert(KindWord(static_cast<TRTTINodeKind>(i))).second);
  for (const String& Word : RegisteredKinds()) {
    Ref<IRTTIElement> Made = CreateForReader(Word, u"x");
    EXPECT_EQ(KindWord(Made->GetNodeKind()), Word);
    EXPECT_EQ(Made->GetKind(), Word);
  }
  EXPECT_EQ(MakeRef<TRTTIStatements>(nullptr, nullptr, nullptr)->GetKind(), u"Statements");
}

TEST(NodeKind, IsATestsFollowTheClassTree) {
  Ref<IRTTIElement> Globals = MakeRef<TRTTIGlobals>();
  EXPECT_TRUE(NodeIsA<TRTTIPackage>(Globals.get()));
  EXPECT_TRUE(NodeIsA<TRTTIScope>(Globals.get()));
  EXPECT_FALSE(NodeIsA<TRTTIClass>(Globals.get()));
  Ref<IRTTIElement> Generic = MakeRef<TRTTIGeneric>(u"T");
  EXPECT_TRUE(NodeIsA<TRTTIClass>(Generic.get()));
  EXPECT_FALSE(NodeIsA<TRTTIPackage>(Generic.get()));
  Ref<IRTTIElement> Text = MakeRef<TRTTIStringLiteral>(u"s");
  EXPECT_TRUE(NodeIsA<TRTTILiteral>(Text.get()));
  EXPECT_TRUE(NodeIsA<TRTTIValue>(Text.get()));
  EXPECT_TRUE(NodeIsA<TRTTIElement>(Text.get()));
  EXPECT_FALSE(NodeIsA<TRTTIScope>(Text.get()));
  EXPECT_FALSE(NodeIsA<TRTTIMethodCall>(Text.get()));
  EXPECT_FALSE(NodeIsA<TRTTIValue>(static_cast<IRTTIElement*>(nullptr)));

  // The cast answers by the tag and hands out the class the tag names.
  Ref<IRTTIElement> Call = MakeRef<TRTTIMethodCall>(u"f");
  EXPECT_EQ(NodeDynCast<TRTTIMethodCall>(Call.get()), CachedCast<TRTTIMethodCall>(Call.get()));
  EXPECT_EQ(NodeDynCast<TRTTIValue>(Call.get()), CachedCast<TRTTIValue>(Call.get()));
  EXPECT_EQ(NodeDynCast<TRTTIPropertyRef>(Call.get()), nullptr);
  Globals->Clear();
}
