#include "gello/foundation/GUID.h"

#include <uuid/uuid.h>

#include <cstring>
#include <string_view>

#include "gello/foundation/Exceptions.h"

namespace gello {
namespace {

// uuid_t holds the bytes in text order; the first three fields are big-endian there.
GUID FromUuid(const uuid_t U) {
  GUID G;
  G.D1 = std::uint32_t{U[0]} << 24 | std::uint32_t{U[1]} << 16 | std::uint32_t{U[2]} << 8 | U[3];
  G.D2 = static_cast<std::uint16_t>(U[4] << 8 | U[5]);
  G.D3 = static_cast<std::uint16_t>(U[6] << 8 | U[7]);
  std::memcpy(G.D4, U + 8, 8);
  return G;
}

void ToUuid(const GUID& G, uuid_t U) {
  U[0] = static_cast<unsigned char>(G.D1 >> 24);
  U[1] = static_cast<unsigned char>(G.D1 >> 16);
  U[2] = static_cast<unsigned char>(G.D1 >> 8);
  U[3] = static_cast<unsigned char>(G.D1);
  U[4] = static_cast<unsigned char>(G.D2 >> 8);
  U[5] = static_cast<unsigned char>(G.D2);
  U[6] = static_cast<unsigned char>(G.D3 >> 8);
  U[7] = static_cast<unsigned char>(G.D3);
  std::memcpy(U + 8, G.D4, 8);
}

}  // namespace

GUID GUID::Create() {
  uuid_t U;
  uuid_generate_random(U);
  return FromUuid(U);
}

GUID GUID::Parse(StringView Text) {
  const std::string Bytes = ToLatin1(Text);
  uuid_t U;
  const bool Braced = Bytes.size() == 38 && Bytes.front() == '{' && Bytes.back() == '}';
  if (!Braced || uuid_parse(Bytes.substr(1, 36).c_str(), U) != 0)
    throw EConvertError(u"'" + String(Text) + u"' is not a valid GUID value");
  return FromUuid(U);
}

String GUID::ToString() const {
  uuid_t U;
  ToUuid(*this, U);
  char Text[37];
  uuid_unparse_upper(U, Text);
  return u"{" + FromLatin1(Text) + u"}";
}

bool IsNullGUID(const GUID& Guid) { return Guid == nullGUID; }

std::size_t GUIDHash::operator()(const GUID& G) const noexcept {
  std::uint64_t Low, High;
  std::memcpy(&Low, &G, 8);
  std::memcpy(&High, reinterpret_cast<const char*>(&G) + 8, 8);
  return std::hash<std::uint64_t>()(Low ^ (High * 0x9E3779B97F4A7C15ull));
}

}  // namespace gello
