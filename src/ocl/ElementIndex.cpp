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
    Key = NumberKey(CachedCast<IOCLReal>(Element));
  else if (Class == typeid(TOCLString) || Class == typeid(TOCLNullString) ||
           Class == typeid(TOCLStringDescendant))
    Key = TextKey(CachedCast<IOCLString>(Element));
  else if (Class == typeid(TOCLBooleanValue))
    Key = BooleanKey(CachedCast<IOCLBoolean>(Element));
  else if (Class == typeid(TOCLT))
    Key = TypeKey(CachedCast<IOCLT>(Element));
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
  if (auto* Number = CachedCast<IOCLReal>(Value)) Result.Add(NumberKey(Number));
  if (auto* Text = CachedCast<IOCLString>(Value)) Result.Add(TextKey(Text));
  if (auto* Truth = CachedCast<IOCLBoolean>(Value)) Result.Add(BooleanKey(Truth));
  if (auto* Type = CachedCast<IOCLT>(Value)) Result.Add(TypeKey(Type));
  return Result;
}

constexpr int EmptySlot = -1;
constexpr int ErasedSlot = -2;
constexpr auto Relaxed = std::memory_order_relaxed;

// Calls Visit with the position of each slot holding Key, until Visit answers true.
template <class F>
bool ForEachSlot(const TElementIndex::TSlot* Slots, std::size_t Size, std::size_t Key, F Visit) {
  std::size_t Mask = Size - 1;
  for (std::size_t i = Key & Mask;; i = (i + 1) & Mask) {
    int Position = Slots[i].Position.load(Relaxed);
    if (Position == EmptySlot) return false;
    if (Position >= 0 && Slots[i].Key.load(Relaxed) == Key && Visit(Position)) return true;
  }
}

std::size_t TableSize(std::size_t Capacity) {
  std::size_t Size = 16;
  while (Size < Capacity * 2)
    Size *= 2;
  return Size;
}

}  // namespace

TElementIndex::TElementIndex(const TElementIndex* From, int Count, std::size_t Capacity)
    : FSize(TableSize(Capacity)),
      FSlots(new TSlot[FSize]),
      FCapacity(Capacity),
      FScanned(new int[Capacity]) {
  if (!From) return;
  // Keys are copied, not computed again from the elements.
  for (std::size_t i = 0; i < From->FSize; ++i) {
    int Position = From->FSlots[i].Position.load(Relaxed);
    if (Position >= 0 && Position < Count) InsertKey(From->FSlots[i].Key.load(Relaxed), Position);
  }
  std::size_t Scanned = From->FScannedCount.load(std::memory_order_acquire);
  std::size_t Kept = 0;
  for (std::size_t i = 0; i < Scanned; ++i)
    if (From->FScanned[i] < Count) FScanned[Kept++] = From->FScanned[i];
  FScannedCount.store(Kept, Relaxed);
}

// Positions past the end of Items are later versions' elements: every question skips them.
template <class F>
void TElementIndex::ForEachMatch(TItems Items, IOCLAny* Value, F Visit) const {
  auto Matches = [&](int Position) {
    return static_cast<std::size_t>(Position) < Items.size() &&
           Items[static_cast<std::size_t>(Position)]->isEqual(Value);
  };
  if (Value) {
    TQueryKeys Query = QueryKeys(Value);
    for (std::size_t k = 0; k < Query.Count; ++k)
      if (ForEachSlot(FSlots.get(), FSize, Query.Keys[k],
                      [&](int P) { return Matches(P) && Visit(P); }))
        return;
  }
  std::size_t Scanned = FScannedCount.load(std::memory_order_acquire);
  for (std::size_t i = 0; i < Scanned; ++i)
    if (Matches(FScanned[i]) && Visit(FScanned[i])) return;
}

bool TElementIndex::HasRoom() const {
  return (FUsed + 1) * 2 <= FSize && FScannedCount.load(Relaxed) < FCapacity;
}

void TElementIndex::Insert(IOCLAny* Element, int Position) {
  if (!Element) return;  // nil equals nothing
  std::size_t Key = 0;
  if (ElementKey(Element, Key)) {
    InsertKey(Key, Position);
    return;
  }
  std::size_t Scanned = FScannedCount.load(Relaxed);
  FScanned[Scanned] = Position;
  FScannedCount.store(Scanned + 1, std::memory_order_release);
}

void TElementIndex::InsertKey(std::size_t Key, int Position) {
  std::size_t Mask = FSize - 1;
  std::size_t i = Key & Mask;
  while (FSlots[i].Position.load(Relaxed) >= 0)
    i = (i + 1) & Mask;
  if (FSlots[i].Position.load(Relaxed) == EmptySlot) ++FUsed;
  // The key first: a reader that sees the position reads it with its key.
  FSlots[i].Key.store(Key, Relaxed);
  FSlots[i].Position.store(Position, std::memory_order_release);
}

void TElementIndex::Erase(IOCLAny* Element, int Position) {
  if (!Element) return;
  std::size_t Key = 0;
  if (!ElementKey(Element, Key)) {
    int* End = FScanned.get() + FScannedCount.load(Relaxed);
    FScannedCount.store(
        static_cast<std::size_t>(std::remove(FScanned.get(), End, Position) - FScanned.get()),
        Relaxed);
    return;
  }
  std::size_t Mask = FSize - 1;
  for (std::size_t i = Key & Mask; FSlots[i].Position.load(Relaxed) != EmptySlot;
       i = (i + 1) & Mask) {
    if (FSlots[i].Key.load(Relaxed) == Key && FSlots[i].Position.load(Relaxed) == Position) {
      FSlots[i].Position.store(ErasedSlot, Relaxed);  // keeps the probe chains behind it intact
      return;
    }
  }
}

void TElementIndex::Clear() {
  for (std::size_t i = 0; i < FSize; ++i)
    FSlots[i].Position.store(EmptySlot, Relaxed);
  FUsed = 0;
  FScannedCount.store(0, Relaxed);
}

bool TElementIndex::Contains(TItems Items, IOCLAny* Value) const {
  bool Found = false;
  ForEachMatch(Items, Value, [&](int) { return Found = true; });
  return Found;
}

int TElementIndex::CountOf(TItems Items, IOCLAny* Value) const {
  int Count = 0;
  ForEachMatch(Items, Value, [&](int) { return ++Count, false; });
  return Count;
}

int TElementIndex::FirstOf(TItems Items, IOCLAny* Value) const {
  int First = -1;
  ForEachMatch(Items, Value, [&](int Position) {
    if (First < 0 || Position < First) First = Position;
    return false;
  });
  return First;
}

std::vector<int> TElementIndex::Matches(TItems Items, IOCLAny* Value) const {
  std::vector<int> Result;
  ForEachMatch(Items, Value, [&](int Position) {
    Result.push_back(Position);
    return false;
  });
  return Result;
}

}  // namespace gello
