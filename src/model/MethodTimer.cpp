#include "gello/model/MethodTimer.h"

#include <atomic>

#include "gello/foundation/Log.h"
#include "gello/foundation/ValueText.h"

namespace gello {
namespace {

std::atomic<bool> TimersLogged{true};

}  // namespace

void SetMethodTimersLogged(bool Logged) {
  TimersLogged = Logged;
}

TMethodTimer::TMethodTimer(const String& Message)
    : FMessage(Message), FStart(std::chrono::steady_clock::now()), FLogged(TimersLogged) {
  if (FLogged) LogMessage(u"About to time this operation: " + FMessage);
}

TMethodTimer::~TMethodTimer() {
  if (!FLogged) return;
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
