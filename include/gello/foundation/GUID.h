#pragma once
// 128-bit identifiers of interfaces and model elements.
#include <cstddef>
#include <cstdint>
#include "gello/foundation/Export.h"

#include "gello/foundation/String.h"

namespace gello {

/// A GUID in its four-field layout; text form "{XXXXXXXX-XXXX-XXXX-XXXX-XXXXXXXXXXXX}".
struct GELLO_API GUID {
  std::uint32_t D1 = 0;
  std::uint16_t D2 = 0;
  std::uint16_t D3 = 0;
  std::uint8_t D4[8] = {};

  /// A new random (version 4) GUID.
  static GUID Create();
  /// Parses the braced text form; raises EConvertError on anything else.
  static GUID Parse(StringView Text);
  /// The braced upper-case text form.
  String ToString() const;

  friend constexpr bool operator==(const GUID& A, const GUID& B) {
    if (A.D1 != B.D1 || A.D2 != B.D2 || A.D3 != B.D3) return false;
    for (int i = 0; i < 8; ++i)
      if (A.D4[i] != B.D4[i]) return false;
    return true;
  }
};

namespace detail {
constexpr std::uint32_t HexDigit(char C) {
  if (C >= '0' && C <= '9') return static_cast<std::uint32_t>(C - '0');
  if (C >= 'A' && C <= 'F') return static_cast<std::uint32_t>(C - 'A' + 10);
  if (C >= 'a' && C <= 'f') return static_cast<std::uint32_t>(C - 'a' + 10);
  throw "bad hex digit in GUID literal";  // only reached at compile time
}
constexpr std::uint32_t HexField(const char* Text, int Count) {
  std::uint32_t Result = 0;
  for (int i = 0; i < Count; ++i)
    Result = Result << 4 | HexDigit(Text[i]);
  return Result;
}
}  // namespace detail

/// A GUID from its braced text at compile time: GUIDLiteral("{...}").
consteval GUID GUIDLiteral(const char (&Text)[39]) {
  GUID G;
  G.D1 = detail::HexField(Text + 1, 8);
  G.D2 = static_cast<std::uint16_t>(detail::HexField(Text + 10, 4));
  G.D3 = static_cast<std::uint16_t>(detail::HexField(Text + 15, 4));
  const int Offsets[8] = {20, 22, 25, 27, 29, 31, 33, 35};
  for (int i = 0; i < 8; ++i)
    G.D4[i] = static_cast<std::uint8_t>(detail::HexField(Text + Offsets[i], 2));
  return G;
}

/// The all-zero GUID; it lies in memory right after the truth tables.
extern GELLO_API const GUID& nullGUID;

/// True when Guid equals nullGUID.
GELLO_API bool IsNullGUID(const GUID& Guid);

/// Hash for unordered containers keyed by GUID.
struct GELLO_API GUIDHash {
  std::size_t operator()(const GUID& G) const noexcept;
};

}  // namespace gello
