#include "Int64Text.h"

#include <charconv>
#include <string>

namespace gello {

bool TryStrToInt64(const String& Text, std::int64_t& Value) {
  std::string Digits = ToUTF8(Text);
  const char* First = Digits.data();
  const char* Last = First + Digits.size();
  // from_chars takes no plus sign; skip one, but never in front of another sign.
  if (Last - First > 1 && *First == '+' && First[1] != '-') ++First;
  auto [End, Error] = std::from_chars(First, Last, Value);
  return Error == std::errc() && End == Last;
}

}  // namespace gello
