#pragma once
// A scoped timer for long model operations, reported through the log.
#include <chrono>
#include "gello/foundation/Export.h"

#include "gello/foundation/RefCounted.h"
#include "gello/foundation/String.h"

namespace gello {

/// Logs when it starts, and the seconds taken when its last reference goes (while timers are on).
class GELLO_API TMethodTimer : public RefCounted {
 public:
  explicit TMethodTimer(const String& Message);
  ~TMethodTimer() override;

 private:
  String FMessage;
  std::chrono::steady_clock::time_point FStart;
  bool FLogged;
};

/// Turns the timers' log lines on (the default) or off for timers started from now on.
GELLO_API void SetMethodTimersLogged(bool Logged);

/// Starts timing Message; the timing ends when the result is released.
GELLO_API Ref<TMethodTimer> MethodTimer(const String& Message);

}  // namespace gello
