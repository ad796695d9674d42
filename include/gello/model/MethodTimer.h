#pragma once
// A scoped timer for long model operations, reported through the log.
#include <chrono>
#include "gello/foundation/Export.h"

#include "gello/foundation/RefCounted.h"
#include "gello/foundation/String.h"

namespace gello {

/// Logs when it starts, and the seconds taken when its last reference goes.
class GELLO_API TMethodTimer : public RefCounted {
 public:
  explicit TMethodTimer(const String& Message);
  ~TMethodTimer() override;

 private:
  String FMessage;
  std::chrono::steady_clock::time_point FStart;
};

/// Starts timing Message; the timing ends when the result is released.
GELLO_API Ref<TMethodTimer> MethodTimer(const String& Message);

}  // namespace gello
