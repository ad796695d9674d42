#include "gello/foundation/Exceptions.h"

#include <gtest/gtest.h>

#include "gello/foundation/Log.h"

using namespace gello;

TEST(Exceptions, AssertionCarriesTextUnitAndLine) {
  try {
    GELLO_ASSERT(1 + 1 == 3, u"Adding null element to list");
    FAIL() << "the assertion did not fire";
  } catch (const EAssertionFailed& E) {
    EXPECT_EQ(E.Text(), u"Adding null element to list");
    EXPECT_EQ(E.Unit(), "ExceptionsTest.cpp");
    EXPECT_EQ(E.Line(), __LINE__ - 5);
    EXPECT_EQ(E.Message(), u"Adding null element to list (ExceptionsTest.cpp, line " + IntToStr(E.Line()) + u")");
  }
  EXPECT_STREQ(Exception(u"caf\u00E9").what(), "caf\xC3\xA9");
}

TEST(Log, CaptureCollectsBothSlotsAndRestoresThePrevious) {
  const TLogMessageProc Default = LogMessage;
  {
    TLogCapture Outer;
    LogMessage(u"outer");
    {
      TLogCapture Inner;
      LogMessageStr(u"missing, path", u"/a/b");
      EXPECT_EQ(Inner.Lines(), std::vector<String>{u"missing, path: /a/b"});
    }
    LogMessage(u"outer again");
    EXPECT_EQ(Outer.Lines(), (std::vector<String>{u"outer", u"outer again"}));
    EXPECT_EQ(Outer.Count(u"outer"), 2u);
  }
  EXPECT_EQ(LogMessage, Default);
}
