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

// A full avalanche (the splitmix64 finaliser): the table takes its slot from the low bits, and
// number hashes carry their information in the high ones.
std::size_t Mix(TKeyKind Kind, std::size_t Hash) {
  std::uint64_t x = Hash ^ (Kind * 0x9E3779B97F4A7C15ull);
  x = (x ^ (x >> 30)) * 0xBF58476D1CE4E5B9ull;
  x = (x ^ (x >> 27)) * 0x94D049BB133111EBull;
  return static_cast<std::size_t>(x ^ (x >> 31));
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

constexpr int EmptySlot = -1;
constexpr int ErasedSlot = -2;

// Calls Visit with the position of each slot holding Key, until Visit answers true.
template <class F>
bool ForEachSlot(const std::vector<TElementIndex::TSlot>& Slots, std::size_t Key, F Visit) {
  if (Slots.empty()) return false;
  std::size_t Mask = Slots.size() - 1;
  for (std::size_t i = Key & Mask; Slots[i].Position != EmptySlot; i = (i + 1) & Mask)
    if (Slots[i].Position >= 0 && Slots[i].Key == Key && Visit(Slots[i].Position)) return true;
  return false;
}

// Calls Visit with each position whose element equals Value until Visit answers true.
template <class F>
void ForEachMatch(const std::vector<TElementIndex::TSlot>& Slots, const std::vector<int>& Scanned,
                  const TElementIndex::TItems& Items, IOCLAny* Value, F Visit) {
  auto Matches = [&](int Position) {
    return Items[static_cast<std::size_t>(Position)]->isEqual(Value);
  };
  if (Value) {
    TQueryKeys Query = QueryKeys(Value);
    for (std::size_t k = 0; k < Query.Count; ++k)
      if (ForEachSlot(Slots, Query.Keys[k], [&](int P) { return Matches(P) && Visit(P); })) return;
  }
  for (int Position : Scanned)
    if (Matches(Position) && Visit(Position)) return;
}

}  // namespace

void TElementIndex::Insert(IOCLAny* Element, int Position) {
  if (!Element) return;  // nil equals nothing
  std::size_t Key = 0;
  if (ElementKey(Element, Key))
    InsertKey(Key, Position);
  else
    FScanned.push_back(Position);
}

void TElementIndex::InsertKey(std::size_t Key, int Position) {
  if ((FUsed + 1) * 2 > FSlots.size()) Grow();
  std::size_t Mask = FSlots.size() - 1;
  std::size_t i = Key & Mask;
  while (FSlots[i].Position >= 0)
    i = (i + 1) & Mask;
  if (FSlots[i].Position == EmptySlot) ++FUsed;
  FSlots[i] = TSlot{Key, Position};
}

void TElementIndex::Grow() {
  std::vector<TSlot> Old = std::move(FSlots);
  // Sized for the live slots only: erased ones are dropped here.
  std::size_t Live = 0;
  for (const TSlot& Slot : Old)
    Live += Slot.Position >= 0;
  std::size_t Size = 16;
  while (Size < (Live + 1) * 4)
    Size *= 2;
  FSlots.assign(Size, TSlot{});
  FUsed = 0;
  for (const TSlot& Slot : Old)
    if (Slot.Position >= 0) InsertKey(Slot.Key, Slot.Position);
}

void TElementIndex::Erase(IOCLAny* Element, int Position) {
  if (!Element) return;
  std::size_t Key = 0;
  if (!ElementKey(Element, Key)) {
    std::erase(FScanned, Position);
    return;
  }
  if (FSlots.empty()) return;
  std::size_t Mask = FSlots.size() - 1;
  for (std::size_t i = Key & Mask; FSlots[i].Position != EmptySlot; i = (i + 1) & Mask) {
    if (FSlots[i].Key == Key && FSlots[i].Position == Position) {
      FSlots[i].Position = ErasedSlot;  // keeps the probe chains behind it intact
      return;
    }
  }
}

void TElementIndex::Clear() {
  FSlots.clear();
  FUsed = 0;
  FScanned.clear();
}

bool TElementIndex::Contains(const TItems& Items, IOCLAny* Value) const {
  bool Found = false;
  ForEachMatch(FSlots, FScanned, Items, Value, [&](int) { return Found = true; });
  return Found;
}

int TElementIndex::CountOf(const TItems& Items, IOCLAny* Value) const {
  int Count = 0;
  ForEachMatch(FSlots, FScanned, Items, Value, [&](int) { return ++Count, false; });
  return Count;
}

int TElementIndex::FirstOf(const TItems& Items, IOCLAny* Value) const {
  int First = -1;
  ForEachMatch(FSlots, FScanned, Items, Value, [&](int Position) {
    if (First < 0 || Position < First) First = Position;
    return false;
  });
  return First;
}

std::vector<int> TElementIndex::Matches(const TItems& Items, IOCLAny* Value) const {
  std::vector<int> Result;
  ForEachMatch(FSlots, FScanned, Items, Value, [&](int Position) {
    Result.push_back(Position);
    return false;
  });
  return Result;
}

}  // namespace gello
