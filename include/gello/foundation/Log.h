#pragma once
// The log sink: two replaceable slots that every diagnostic line of gello goes through.
#include <vector>
#include "gello/foundation/Export.h"

#include "gello/foundation/String.h"

namespace gello {

using TLogMessageProc = void (*)(const String& Text);
using TLogMessageStrProc = void (*)(const String& Name, const String& Value);

/// Default sinks: one line each on stderr, in UTF-8 ("Name: Value" for the pair form).
GELLO_API void CSLogMessage(const String& Text);
GELLO_API void CSLogMessageStr(const String& Name, const String& Value);

/// The replaceable slots; they start as CSLogMessage and CSLogMessageStr.
extern GELLO_API TLogMessageProc LogMessage;
extern GELLO_API TLogMessageStrProc LogMessageStr;

/// The line a name/value pair makes: Name + ": " + Value.
GELLO_API String FormatLogPair(const String& Name, const String& Value);

/// While alive, collects every logged line instead of printing it (not thread-safe; for tests).
class GELLO_API TLogCapture {
 public:
  TLogCapture();
  ~TLogCapture();
  TLogCapture(const TLogCapture&) = delete;
  TLogCapture& operator=(const TLogCapture&) = delete;

  const std::vector<String>& Lines() const { return FLines; }
  /// Lines that contain Text.
  std::size_t Count(StringView Text) const;
  void Clear() { FLines.clear(); }

 private:
  static void Capture(const String& Text);
  static void CaptureStr(const String& Name, const String& Value);
  std::vector<String> FLines;
  TLogCapture* FPrevious;
  TLogMessageProc FSavedMessage;
  TLogMessageStrProc FSavedMessageStr;
};

}  // namespace gello
