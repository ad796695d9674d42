#include "gello/ocl/Elements.h"

#include <algorithm>
#include <atomic>

namespace gello {

/// Elements and their index with a fixed capacity. Positions below the claimed length are
/// written once and then only read, unless a single owner changes them; so a version, being
/// a length, never changes while a successor appends.
class TElementStore : public RefCounted {
 public:
  /// A store with the first Count elements of From (none when nil) and room for Capacity.
  TElementStore(const TElementStore* From, int Count, std::size_t Capacity)
      : FCapacity(Capacity),
        FItems(new Ref<IOCLAny>[Capacity]),
        FIndex(From ? &From->FIndex : nullptr, Count, Capacity),
        FClaimed(From ? Count : 0) {
    if (From) std::copy_n(From->FItems.get(), Count, FItems.get());
  }

  std::size_t Capacity() const { return FCapacity; }
  TElementIndex::TItems Items(int Count) const {
    return {FItems.get(), static_cast<std::size_t>(Count)};
  }
  const TElementIndex& Index() const { return FIndex; }
  TElementIndex& Index() { return FIndex; }
  Ref<IOCLAny>& Slot(int Position) { return FItems[static_cast<std::size_t>(Position)]; }

  /// Appends at Count when no other version has claimed that position and there is room.
  bool TryAppend(int Count, const Ref<IOCLAny>& Value);
  /// Whether a version of length Count, holding the only reference, may change it in place.
  bool OwnedBy(int Count) const;
  /// Sets the claimed length (single owner only).
  void SetLength(int Count) { FClaimed.store(Count, std::memory_order_relaxed); }

 private:
  std::size_t FCapacity;
  std::unique_ptr<Ref<IOCLAny>[]> FItems;
  TElementIndex FIndex;
  std::atomic<int> FClaimed{0};  // positions written so far, by whichever version
};

bool TElementStore::TryAppend(int Count, const Ref<IOCLAny>& Value) {
  if (static_cast<std::size_t>(Count) >= FCapacity) return false;
  int Expected = Count;
  if (!FClaimed.compare_exchange_strong(Expected, Count + 1, std::memory_order_acq_rel))
    return false;
  // A position claimed without room stays unused: the claimer moves to a new store.
  if (!FIndex.HasRoom()) return false;
  Slot(Count) = Value;
  FIndex.Insert(Value.get(), Count);
  return true;
}

bool TElementStore::OwnedBy(int Count) const {
  if (GetRefCount() != 1) return false;
  // Sees every write that versions released before their reference went.
  std::atomic_thread_fence(std::memory_order_acquire);
  return FClaimed.load(std::memory_order_relaxed) == Count;
}

TElements::TElements() = default;
TElements::TElements(const TElements& Other) = default;
TElements& TElements::operator=(const TElements& Other) = default;
TElements::~TElements() = default;

TElementIndex::TItems TElements::Items() const {
  if (!FStore) return {};
  return FStore->Items(FCount);
}

Ref<IOCLAny> TElements::At(int Index) const {
  if (Index < 0 || Index >= FCount) return nullptr;
  return Items()[static_cast<std::size_t>(Index)];
}

const TElementIndex& TElements::Index() const {
  static const TElementIndex None;
  return FStore ? FStore->Index() : None;
}

TElementStore& TElements::Own(std::size_t Capacity) {
  if (!FStore || !FStore->OwnedBy(FCount) || FStore->Capacity() < Capacity ||
      !FStore->Index().HasRoom()) {
    // Doubling keeps a run of appends or growing stores linear overall.
    std::size_t Room = std::max({Capacity, static_cast<std::size_t>(FCount) * 2, std::size_t{8}});
    FStore = MakeRef<TElementStore>(FStore.get(), FCount, Room);
  }
  return *FStore;
}

void TElements::Append(const Ref<IOCLAny>& Value) {
  if (!FStore || !FStore->TryAppend(FCount, Value))
    Own(static_cast<std::size_t>(FCount) + 1).TryAppend(FCount, Value);
  ++FCount;
}

void TElements::Store(int Index, const Ref<IOCLAny>& Value) {
  if (Index < 0) return;
  TElementStore& Mine = Own(static_cast<std::size_t>(std::max(Index + 1, FCount)));
  if (Index >= FCount) {
    FCount = Index + 1;  // the slots between are still nil
    Mine.SetLength(FCount);
  }
  Ref<IOCLAny>& Slot = Mine.Slot(Index);
  Mine.Index().Erase(Slot.get(), Index);
  Slot = Value;
  Mine.Index().Insert(Value.get(), Index);
}

void TElements::Resize(int Count) {
  Count = std::max(Count, 0);
  FStore = MakeRef<TElementStore>(FStore.get(), std::min(Count, FCount),
                                  std::max(static_cast<std::size_t>(Count), std::size_t{8}));
  FCount = Count;
  FStore->SetLength(Count);
}

void TElements::Sort(const TLess& Less) {
  TElementStore& Mine = Own(static_cast<std::size_t>(FCount));
  std::stable_sort(&Mine.Slot(0), &Mine.Slot(0) + FCount, Less);
  Mine.Index().Clear();
  for (int i = 0; i < FCount; ++i)
    Mine.Index().Insert(Mine.Slot(i).get(), i);
}

}  // namespace gello
