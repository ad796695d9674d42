#include "gello/interchange/XmlNodes.h"

#include <gtest/gtest.h>

using namespace gello;

namespace {
const char* const Document =
    "<root><xmi:Documentation/><model><packagedElement name='a'/><ownedComment/>"
    "<packagedElement name='b'/></model></root>";
}

TEST(XmlNodes, FindNodeWalksPathsRetriesWithoutPrefixAndIndexesFromAPosition) {
  pugi::xml_document Doc;
  ASSERT_TRUE(Doc.load_string(Document));
  pugi::xml_node Root = Doc.child("root");
  EXPECT_STREQ(FindNode(Root, u"model/packagedElement").attribute("name").value(), "a");
  EXPECT_STREQ(FindNode(Root, u"uml:model/packagedElement").attribute("name").value(), "a");
  EXPECT_STREQ(FindNode(Root, u"xmi:Documentation").name(), "xmi:Documentation");
  EXPECT_FALSE(FindNode(Root, u"model/missing"));
  EXPECT_FALSE(FindNode(Root, u"missing/packagedElement"));
  EXPECT_FALSE(FindNode(Root, u"x:y:model"));  // only the first prefix is dropped
  pugi::xml_node Model = Root.child("model");  // the index search starts at a position
  EXPECT_EQ(FindNodeIndex(Model, u"packagedElement", 0), 0);
  EXPECT_EQ(FindNodeIndex(Model, u"packagedElement", 1), 2);
  EXPECT_EQ(FindNodeIndex(Model, u"uml:packagedElement", 1), 2);
  EXPECT_EQ(FindNodeIndex(Model, u"packagedElement", 3), -1);
  EXPECT_EQ(FindNodeIndex(Model, u"ownedComment", 0), 1);
  EXPECT_EQ(FindNodeIndex(Model, u"model", 0), -1);  // not a path walk
}
