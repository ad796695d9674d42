#include "gello/model/Element.h"

#include <gtest/gtest.h>

#include "MadeClasses.h"
#include "gello/model/Class.h"
#include "gello/model/ElementRegistry.h"
#include "gello/model/Names.h"
#include "gello/model/Property.h"

using namespace gello;

TEST(Element, NameIsWriteOnce) {
  auto E = MakeRef<TRTTIElement>();
  E->SetName(u"first");
  E->SetName(u"first");  // the same name again is silent
  try {
    E->SetName(u"second");
    FAIL() << "renaming must fail";
  } catch (const EAssertionFailed& Failure) {
    EXPECT_EQ(Failure.Text(), u"Reassigning element.name from first to second");
    EXPECT_EQ(Failure.Unit(), "Element.cpp");
  }
  EXPECT_EQ(E->GetName(), u"first");
}

TEST(Element, GUIDAndUMLIdAreMadeOnceAndKept) {
  auto E = MakeRef<TRTTIElement>(u"e");
  const GUID Id = E->GetGUID();
  EXPECT_FALSE(IsNullGUID(Id));
  EXPECT_EQ(E->GetGUID(), Id);
  const String UML = E->GetUML_ID();
  EXPECT_EQ(UML, UMLIdOf(Id));
  EXPECT_EQ(E->GetUML_ID(), UML);
  E->SetUML_ID(u"from-xmi");
  EXPECT_EQ(E->GetUML_ID(), u"from-xmi");
}

TEST(ValidGelloName, SanitisesCharactersPrefixesAndKeywords) {
  EXPECT_EQ(ValidGelloName(u"my-name"), u"my_name");
  EXPECT_EQ(ValidGelloName(u"_x"), u"C_x");
  EXPECT_EQ(ValidGelloName(u"-x"), u"C_x");
  EXPECT_EQ(ValidGelloName(u"Set"), u"Set_fixed");
  EXPECT_EQ(ValidGelloName(u"endPackage"), u"endPackage_fixed");
  EXPECT_EQ(ValidGelloName(u"class"), u"class_fixed");
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
  ASSERT_TRUE(C);
  EXPECT_TRUE(DynCast<IRTTIClass>(C));
  EXPECT_EQ(C->GetName(), u"Patient");
  EXPECT_EQ(C->GetKind(), u"Class");
  EXPECT_EQ(CreateForReader(u"ClassAlias", u"A")->GetKind(), u"ClassAlias");
  EXPECT_TRUE(DynCast<IRTTIProperty>(CreateForReader(u"Property", u"p")));
  EXPECT_TRUE(DynCast<IRTTIMethod>(CreateForReader(u"Method", u"m")));
  EXPECT_FALSE(CreateForReader(u"", u"x"));
  EXPECT_EQ(ErrorMessage([] { CreateForReader(u"Statements", u"x"); }),
            u"RTTI class name not registered : TRTTIStatements");
  EXPECT_THROW(CreateForReader(u"class", u"x"), Exception);  // kinds are case-sensitive
}
