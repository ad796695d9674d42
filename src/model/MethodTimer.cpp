#include "gello/model/MethodTimer.h"

#include "gello/foundation/Log.h"
#include "gello/foundation/ValueText.h"

namespace gello {

TMethodTimer::TMethodTimer(const String& Message)
    : FMessage(Message), FStart(std::chrono::steady_clock::now()) {
  LogMessage(u"About to time this operation: " + FMessage);
}

TMethodTimer::~TMethodTimer() {
  // Whole milliseconds, as the tick counter the timings were always taken with.
  const auto Ticks = std::chrono::duration_cast<std::chrono::milliseconds>(
                         std::chrono::steady_clock::now() - FStart)
                         .count();
  LogMessage(FMessage + u" took " + ExtendedToString(Ticks / 1000.0L, false, -1) + u" secs");
}

Ref<TMethodTimer> MethodTimer(const String& Message) {
  return MakeRef<TMethodTimer>(Message);
}

}  // namespace gello
