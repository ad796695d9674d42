#include "gello/foundation/Exceptions.h"

#include <cstring>

namespace gello {

Exception::Exception(String Message) : FMessage(std::move(Message)), FWhat(ToUTF8(FMessage)) {}

EAssertionFailed::EAssertionFailed(String Text, std::string Unit, int Line)
    : Exception(Text + u" (" + FromUTF8(Unit) + u", line " + IntToStr(Line) + u")"),
      FText(std::move(Text)),
      FUnit(std::move(Unit)),
      FLine(Line) {}

void AssertionFailed(const String& Text, const char* File, int Line) {
  const char* Slash = std::strrchr(File, '/');
  throw EAssertionFailed(Text, Slash ? Slash + 1 : File, Line);
}

}  // namespace gello
