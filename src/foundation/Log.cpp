#include "gello/foundation/Log.h"

#include <cstdio>

namespace gello {
namespace {
TLogCapture* ActiveCapture = nullptr;
}

void CSLogMessage(const String& Text) {
  const std::string Line = ToUTF8(Text) + '\n';
  std::fwrite(Line.data(), 1, Line.size(), stderr);
}

void CSLogMessageStr(const String& Name, const String& Value) {
  CSLogMessage(FormatLogPair(Name, Value));
}

TLogMessageProc LogMessage = CSLogMessage;
TLogMessageStrProc LogMessageStr = CSLogMessageStr;

String FormatLogPair(const String& Name, const String& Value) { return Name + u": " + Value; }

TLogCapture::TLogCapture()
    : FPrevious(ActiveCapture), FSavedMessage(LogMessage), FSavedMessageStr(LogMessageStr) {
  ActiveCapture = this;
  LogMessage = Capture;
  LogMessageStr = CaptureStr;
}

TLogCapture::~TLogCapture() {
  ActiveCapture = FPrevious;
  LogMessage = FSavedMessage;
  LogMessageStr = FSavedMessageStr;
}

std::size_t TLogCapture::Count(StringView Text) const {
  std::size_t N = 0;
  for (const String& Line : FLines)
    if (Line.find(Text) != String::npos) ++N;
  return N;
}

void TLogCapture::Capture(const String& Text) { ActiveCapture->FLines.push_back(Text); }

void TLogCapture::CaptureStr(const String& Name, const String& Value) {
  ActiveCapture->FLines.push_back(FormatLogPair(Name, Value));
}

}  // namespace gello
