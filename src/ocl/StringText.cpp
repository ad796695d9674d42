#include "StringText.h"

#include <algorithm>
#include <limits>
#include "Int64Text.h"
#include "gello/foundation/Exceptions.h"

namespace gello {

String RepeatText(std::int32_t Count, StringView Pad) {
  String Result;
  for (std::int32_t i = 0; i < Count; ++i)
    Result += Pad;
  return Result;
}

String TrimLeading(String Text, StringView Prefix) {
  if (Prefix.empty()) return Text;
  std::size_t Start = 0;
  while (StringView(Text).substr(Start).starts_with(Prefix))
    Start += Prefix.size();
  return Text.substr(Start);
}

String TrimTrailing(String Text, StringView Suffix) {
  if (Suffix.empty()) return Text;
  std::size_t End = Text.size();
  while (StringView(Text).substr(0, End).ends_with(Suffix))
    End -= Suffix.size();
  Text.resize(End);
  return Text;
}

String ReplaceRestarting(String Text, StringView Find, StringView With) {
  if (Find.empty()) return Text;
  // Each search starts over, so replaced text can match again (a With containing Find loops).
  for (std::size_t At = Text.find(Find); At != String::npos; At = Text.find(Find))
    Text.replace(At, Find.size(), With);
  return Text;
}

String CopyClipped(const String& Text, std::int64_t Index, std::int64_t Count) {
  if (Index < 1) Index = 1;
  auto Length = static_cast<std::int64_t>(Text.size());
  if (Count <= 0 || Index > Length) return String();
  return Text.substr(static_cast<std::size_t>(Index - 1),
                     static_cast<std::size_t>(std::min(Count, Length - Index + 1)));
}

String AsciiUpper(String Text) {
  for (char16_t& c : Text)
    if (c >= u'a' && c <= u'z') c = static_cast<char16_t>(c - u'a' + u'A');
  return Text;
}

String AsciiLower(String Text) {
  for (char16_t& c : Text)
    if (c >= u'A' && c <= u'Z') c = static_cast<char16_t>(c - u'A' + u'a');
  return Text;
}

std::int32_t StrToInt32(const String& Text) {
  std::int64_t Value = 0;
  if (!TryStrToInt64(Text, Value) || Value < std::numeric_limits<std::int32_t>::min() ||
      Value > std::numeric_limits<std::int32_t>::max())
    throw EConvertError(u"'" + Text + u"' is not a valid integer value");
  return static_cast<std::int32_t>(Value);
}

String QuoteToken(StringView Text) {
  String Result = u"'";
  for (char16_t c : Text) {
    Result += c;
    if (c == u'\'') Result += c;
  }
  return Result + u"'";
}

String UnquoteToken(const String& Token) {
  if (Token.empty() || Token.front() != u'\'') return Token;
  String Result;
  for (std::size_t i = 1; i < Token.size(); ++i) {
    if (Token[i] != u'\'') {
      Result += Token[i];
    } else if (i + 1 < Token.size() && Token[i + 1] == u'\'') {
      Result += Token[++i];
    } else {
      break;  // the closing quote
    }
  }
  return Result;
}

}  // namespace gello
