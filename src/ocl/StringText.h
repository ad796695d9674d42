#pragma once
// The text algorithms behind the String operations, on bare UTF-16 text.
#include <cstdint>
#include "gello/foundation/String.h"

namespace gello {

/// Pad repeated Count times (nothing when Count is 0 or less).
String RepeatText(std::int32_t Count, StringView Pad);
/// Removes whole leading occurrences of Prefix; an empty Prefix removes nothing.
String TrimLeading(String Text, StringView Prefix);
/// Removes whole trailing occurrences of Suffix; an empty Suffix removes nothing.
String TrimTrailing(String Text, StringView Suffix);
/// Replaces the first occurrence of Find again and again, each search from the start.
String ReplaceRestarting(String Text, StringView Find, StringView With);
/// Count units from the 1-based Index, clipped to the text, never failing.
String CopyClipped(const String& Text, std::int64_t Index, std::int64_t Count);
/// Maps a-z to A-Z only.
String AsciiUpper(String Text);
/// Maps A-Z to a-z only.
String AsciiLower(String Text);
/// A signed 32-bit decimal integer, the whole text; raises EConvertError otherwise.
std::int32_t StrToInt32(const String& Text);
/// The text in single quotes with inner quotes doubled.
String QuoteToken(StringView Text);
/// Undoes QuoteToken; text without a leading quote comes back as it is.
String UnquoteToken(const String& Token);

}  // namespace gello
