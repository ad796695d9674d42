#include "gello/ocl/ElementIndex.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>
#include <functional>
#include <typeinfo>
#include "gello/ocl/Boolean.h"
#include "gello/ocl/Integer.h"
#include "gello/ocl/StringDescendant.h"
#include "gello/ocl/Type.h"

namespace gello {

namespace {

enum TKeyKind : std::size_t { key_number = 1, key_text, key_boolean, key_type };

std::size_t Mix(TKeyKind Kind, std::size_t Hash) {
  return (Hash ^ (Kind * 0x9E3779B97F4A7C15ull)) * 0xBF58476D1CE4E5B9ull;
}

// Equal numbers hash alike whatever their class (Integer 1 and Real 1.0); 0 and -0 are equal.
std::size_t NumberHash(Extended Value) {
  if (Value == 0) return 0;
  if (!std::isfinite(Value)) return std::isnan(Value) ? 1 : (Value > 0 ? 2 : 3);
  int Exponent = 0;
  Extended Mantissa = std::frexp(std::fabs(Value), &Exponent);  // in [0.5, 1)
  auto Bits = static_cast<std::uint64_t>(std::ldexp(Mantissa, 64));
  return std::hash<std::uint64_t>{}(Bits) ^ (static_cast<std::size_t>(Exponent) << 1) ^
         (Value < 0 ? 0x5555u : 0u);
}

std::size_t NumberKey(IOCLReal* Value) {
  return Mix(key_number, NumberHash(Value->GetasExtended()));
}

std::size_t TextKey(IOCLString* Value) {
  return Mix(key_text, std::hash<String>{}(Value->GetasString()));
}

std::size_t BooleanKey(IOCLBoolean* Value) {
  return Mix(key_boolean, static_cast<std::size_t>(Value->GetasExtendedBoolean()));
}

std::size_t TypeKey(IOCLT* Value) {
  return Mix(key_type, std::hash<IRTTIClass*>{}(Value->GetOCLClassType().get()));
}

// Only classes whose isEqual is known to compare by these keys are hashed.
bool ElementKey(IOCLAny* Element, std::size_t& Key) {
  const std::type_info& Class = typeid(*Element);
  if (Class == typeid(TOCLInteger) || Class == typeid(TOCLReal))
    Key = NumberKey(dynamic_cast<IOCLReal*>(Element));
  else if (Class == typeid(TOCLString) || Class == typeid(TOCLNullString) ||
           Class == typeid(TOCLStringDescendant))
    Key = TextKey(dynamic_cast<IOCLString*>(Element));
  else if (Class == typeid(TOCLBooleanValue))
    Key = BooleanKey(dynamic_cast<IOCLBoolean*>(Element));
  else if (Class == typeid(TOCLT))
    Key = TypeKey(dynamic_cast<IOCLT*>(Element));
  else
    return false;
  return true;
}

// Every key an element equal to Value could carry: one per value interface Value supports.
struct TQueryKeys {
  std::array<std::size_t, 4> Keys{};
  std::size_t Count = 0;
  void Add(std::size_t Key) {
    // Keys of different kinds that collide are visited once, so nothing is counted twice.
    if (std::find(Keys.begin(), Keys.begin() + Count, Key) == Keys.begin() + Count)
      Keys[Count++] = Key;
  }
};

TQueryKeys QueryKeys(IOCLAny* Value) {
  TQueryKeys Result;
  if (auto* Number = dynamic_cast<IOCLReal*>(Value)) Result.Add(NumberKey(Number));
  if (auto* Text = dynamic_cast<IOCLString*>(Value)) Result.Add(TextKey(Text));
  if (auto* Truth = dynamic_cast<IOCLBoolean*>(Value)) Result.Add(BooleanKey(Truth));
  if (auto* Type = dynamic_cast<IOCLT*>(Value)) Result.Add(TypeKey(Type));
  return Result;
}

// Calls Visit with each position whose element equals Value until Visit answers true.
template <class F>
void ForEachMatch(const std::unordered_multimap<std::size_t, int>& Hashed,
                  const std::vector<int>& Scanned, const TElementIndex::TItems& Items,
                  IOCLAny* Value, F Visit) {
  auto Matches = [&](int Position) {
    return Items[static_cast<std::size_t>(Position)]->isEqual(Value);
  };
  if (Value) {
    TQueryKeys Query = QueryKeys(Value);
    for (std::size_t k = 0; k < Query.Count; ++k) {
      auto [First, Last] = Hashed.equal_range(Query.Keys[k]);
      for (auto It = First; It != Last; ++It)
        if (Matches(It->second) && Visit(It->second)) return;
    }
  }
  for (int Position : Scanned)
    if (Matches(Position) && Visit(Position)) return;
}

}  // namespace

void TElementIndex::Insert(IOCLAny* Element, int Position) {
  if (!Element) return;  // nil equals nothing
  std::size_t Key = 0;
  if (ElementKey(Element, Key))
    FHashed.emplace(Key, Position);
  else
    FScanned.push_back(Position);
}

void TElementIndex::Erase(IOCLAny* Element, int Position) {
  if (!Element) return;
  std::size_t Key = 0;
  if (!ElementKey(Element, Key)) {
    std::erase(FScanned, Position);
    return;
  }
  auto [First, Last] = FHashed.equal_range(Key);
  for (auto It = First; It != Last; ++It) {
    if (It->second == Position) {
      FHashed.erase(It);
      return;
    }
  }
}

void TElementIndex::Clear() {
  FHashed.clear();
  FScanned.clear();
}

bool TElementIndex::Contains(const TItems& Items, IOCLAny* Value) const {
  bool Found = false;
  ForEachMatch(FHashed, FScanned, Items, Value, [&](int) { return Found = true; });
  return Found;
}

int TElementIndex::CountOf(const TItems& Items, IOCLAny* Value) const {
  int Count = 0;
  ForEachMatch(FHashed, FScanned, Items, Value, [&](int) { return ++Count, false; });
  return Count;
}

int TElementIndex::FirstOf(const TItems& Items, IOCLAny* Value) const {
  int First = -1;
  ForEachMatch(FHashed, FScanned, Items, Value, [&](int Position) {
    if (First < 0 || Position < First) First = Position;
    return false;
  });
  return First;
}

std::vector<int> TElementIndex::Matches(const TItems& Items, IOCLAny* Value) const {
  std::vector<int> Result;
  ForEachMatch(FHashed, FScanned, Items, Value, [&](int Position) {
    Result.push_back(Position);
    return false;
  });
  return Result;
}

}  // namespace gello
