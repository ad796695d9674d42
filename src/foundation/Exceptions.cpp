#include "gello/foundation/Exceptions.h"

#include <cstring>

namespace gello {

Exception::Exception(String Message) : FMessage(std::move(Message)), FWhat(ToUTF8(FMessage)) {}

String LocatedMessage(const Exception& E) {
  const TSourcePosition& Where = E.Where();
  String Prefix = Where.File.empty() ? String() : Where.File + u":";
  if (Where.Line > 0) Prefix += IntToStr(Where.Line) + u":" + IntToStr(Where.Column) + u":";
  return Prefix.empty() ? E.Message() : Prefix + u" " + E.Message();
}

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
