#pragma once
// Checks that a call raises exception class E with exactly the system's message.
#include <gtest/gtest.h>

#include <functional>
#include "gello/foundation/String.h"

namespace gello {

template <class E>
void ExpectMessage(const std::function<void()>& Call, const String& Message) {
  try {
    Call();
    ADD_FAILURE() << "no exception";
  } catch (const E& Error) {
    EXPECT_EQ(ToUTF8(Error.Message()), ToUTF8(Message));
  }
}

}  // namespace gello
