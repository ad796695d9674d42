#include "gello/foundation/String.h"

#include <algorithm>

#include "gello/foundation/Exceptions.h"

namespace gello {
namespace {

// ASCII is the same text on both sides of the streaming XML seam, and most names are ASCII.
bool IsASCII(StringView Text) {
  return std::all_of(Text.begin(), Text.end(), [](char16_t C) { return C < 0x80; });
}

constexpr char16_t ReplacementChar = 0xFFFD;

void Malformed(TMalformed Mode, const char* What) {
  if (Mode == TMalformed::Reject) throw EConvertError(String(u"malformed ") + FromLatin1(What));
}

// Decodes one UTF-8 sequence at Pos; returns the code point or -1 when malformed, and advances Pos
// past the bytes it consumed (at least one).
std::int32_t DecodeUTF8(std::string_view Text, std::size_t& Pos) {
  const auto Lead = static_cast<unsigned char>(Text[Pos++]);
  if (Lead < 0x80) return Lead;
  int Extra;
  std::int32_t Code, Min;
  if ((Lead & 0xE0) == 0xC0) {
    Extra = 1, Code = Lead & 0x1F, Min = 0x80;
  } else if ((Lead & 0xF0) == 0xE0) {
    Extra = 2, Code = Lead & 0x0F, Min = 0x800;
  } else if ((Lead & 0xF8) == 0xF0) {
    Extra = 3, Code = Lead & 0x07, Min = 0x10000;
  } else {
    return -1;
  }
  for (int i = 0; i < Extra; ++i) {
    if (Pos >= Text.size() || (static_cast<unsigned char>(Text[Pos]) & 0xC0) != 0x80) return -1;
    Code = Code << 6 | (static_cast<unsigned char>(Text[Pos++]) & 0x3F);
  }
  const bool Surrogate = Code >= 0xD800 && Code <= 0xDFFF;
  if (Code < Min || Code > 0x10FFFF || Surrogate) return -1;
  return Code;
}

void AppendUTF8(std::string& Out, std::uint32_t Code) {
  if (Code < 0x80) {
    Out += static_cast<char>(Code);
  } else if (Code < 0x800) {
    Out += static_cast<char>(0xC0 | Code >> 6);
    Out += static_cast<char>(0x80 | (Code & 0x3F));
  } else if (Code < 0x10000) {
    Out += static_cast<char>(0xE0 | Code >> 12);
    Out += static_cast<char>(0x80 | (Code >> 6 & 0x3F));
    Out += static_cast<char>(0x80 | (Code & 0x3F));
  } else {
    Out += static_cast<char>(0xF0 | Code >> 18);
    Out += static_cast<char>(0x80 | (Code >> 12 & 0x3F));
    Out += static_cast<char>(0x80 | (Code >> 6 & 0x3F));
    Out += static_cast<char>(0x80 | (Code & 0x3F));
  }
}

bool IsHighSurrogate(char16_t C) {
  return C >= 0xD800 && C <= 0xDBFF;
}
bool IsLowSurrogate(char16_t C) {
  return C >= 0xDC00 && C <= 0xDFFF;
}

}  // namespace

String FromUTF8(std::string_view Text, TMalformed Mode) {
  String Result;
  Result.reserve(Text.size());
  std::size_t Pos = 0;
  while (Pos < Text.size()) {
    const std::int32_t Code = DecodeUTF8(Text, Pos);
    if (Code < 0) {
      Malformed(Mode, "UTF-8 sequence");
      Result += ReplacementChar;
    } else if (Code < 0x10000) {
      Result += static_cast<char16_t>(Code);
    } else {
      Result += static_cast<char16_t>(0xD800 + ((Code - 0x10000) >> 10));
      Result += static_cast<char16_t>(0xDC00 + ((Code - 0x10000) & 0x3FF));
    }
  }
  return Result;
}

std::string ToUTF8(StringView Text, TMalformed Mode) {
  std::string Result;
  Result.reserve(Text.size());
  for (std::size_t i = 0; i < Text.size(); ++i) {
    const char16_t C = Text[i];
    if (IsHighSurrogate(C) && i + 1 < Text.size() && IsLowSurrogate(Text[i + 1])) {
      AppendUTF8(Result, 0x10000 + ((C - 0xD800u) << 10) + (Text[++i] - 0xDC00u));
    } else if (IsHighSurrogate(C) || IsLowSurrogate(C)) {
      Malformed(Mode, "UTF-16 surrogate");
      AppendUTF8(Result, ReplacementChar);
    } else {
      AppendUTF8(Result, C);
    }
  }
  return Result;
}

String FromLatin1(std::string_view Bytes) {
  String Result(Bytes.size(), u'\0');
  for (std::size_t i = 0; i < Bytes.size(); ++i)
    Result[i] = static_cast<unsigned char>(Bytes[i]);
  return Result;
}

std::string ToLatin1(StringView Text) {
  std::string Result(Text.size(), '\0');
  for (std::size_t i = 0; i < Text.size(); ++i)
    Result[i] = Text[i] <= 0xFF ? static_cast<char>(Text[i]) : '?';
  return Result;
}

String FromXMLStreamText(StringView Streamed) {
  return IsASCII(Streamed) ? String(Streamed) : FromUTF8(ToLatin1(Streamed));
}

String ToXMLStreamText(StringView Text) {
  return IsASCII(Text) ? String(Text) : FromLatin1(ToUTF8(Text));
}

String IntToStr(std::int64_t Value) {
  return FromLatin1(std::to_string(Value));
}

}  // namespace gello
