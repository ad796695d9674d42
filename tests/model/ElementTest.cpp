#include "gello/model/Element.h"

#include <gtest/gtest.h>

#include "MadeClasses.h"
#include "gello/model/Class.h"
#include "gello/model/ElementRegistry.h"
#include "gello/model/Names.h"

using namespace gello;

TEST(Element, NameIsWriteOnceAndTheIdsAreMadeOnce) {
  auto E = MakeRef<TRTTIElement>();
  E->SetName(u"first");
  E->SetName(u"first");  // the same name again is silent
  EXPECT_THROW(E->SetName(u"second"), EAssertionFailed);
  EXPECT_EQ(E->GetName(), u"first");
  const GUID Id = E->GetGUID();
  EXPECT_FALSE(IsNullGUID(Id));
  EXPECT_EQ(E->GetGUID(), Id);
  EXPECT_EQ(E->GetUML_ID(), UMLIdOf(Id));
}

TEST(ValidGelloName, SanitisesCharactersPrefixesAndKeywords) {
  EXPECT_EQ(ValidGelloName(u"my-name"), u"my_name");
  EXPECT_EQ(ValidGelloName(u"_x"), u"C_x");
  EXPECT_EQ(ValidGelloName(u"-x"), u"C_x");
  EXPECT_EQ(ValidGelloName(u"Set"), u"Set_fixed");
  EXPECT_EQ(ValidGelloName(u"endPackage"), u"endPackage_fixed");
  EXPECT_EQ(ValidGelloName(u"a::b"), u"a::b");
  EXPECT_EQ(ValidGelloName(u"1abc"), u"1abc");
  EXPECT_EQ(ValidGelloName(u""), u"");
  EXPECT_EQ(ValidGelloName(u"caf\u00e9 x"), u"caf__x");
  EXPECT_EQ(ValidGelloName(u"settings"), u"settings");  // a keyword only as a whole word
}

TEST(FormatAnnotation, LineOrBlockComment) {
  EXPECT_EQ(FormatAnnotation(u"one line"), u" -- one line");
  EXPECT_EQ(FormatAnnotation(u"two\nlines"), u" /* two\nlines */");
}

TEST(ElementRegistry, CreatesRegisteredKindsAndRefusesUnknownOnes) {
  Ref<IRTTIElement> C = CreateForReader(u"Class", u"Patient");
  ASSERT_TRUE(DynCast<IRTTIClass>(C));
  EXPECT_EQ(C->GetName(), u"Patient");
  EXPECT_EQ(CreateForReader(u"ClassAlias", u"A")->GetKind(), u"ClassAlias");
  EXPECT_FALSE(CreateForReader(u"", u"x"));
  EXPECT_EQ(ErrorMessage([] { CreateForReader(u"class", u"x"); }),  // kinds are case-sensitive
            u"RTTI class name not registered : TRTTIclass");
}
