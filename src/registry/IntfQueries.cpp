#include "gello/registry/IntfQueries.h"

#include "gello/foundation/Exceptions.h"
#include "gello/registry/OCLIntfTables.h"

namespace gello {

namespace {

bool SameName(const char* EntryName, StringView Name) {
  std::size_t i = 0;
  for (; EntryName[i]; ++i)
    if (i == Name.size() || Name[i] != static_cast<unsigned char>(EntryName[i])) return false;
  return i == Name.size();
}

}  // namespace

const GUID& GetIntfGUID(const TIntfInfo& Intf) noexcept {
  return Intf.IID;
}

const TIntfInfo* GetIntfParent(const TIntfInfo& Intf) noexcept {
  return Intf.Parent;
}

bool IntfHasAncestor(const TIntfInfo& Intf, const TIntfInfo& Ancestor) noexcept {
  for (const TIntfInfo* Walk = Intf.Parent; Walk; Walk = Walk->Parent)
    if (Walk == &Ancestor) return true;
  return false;
}

bool IsSelfMethod(const TIntfInfo& Intf, const TIntfEntry& Entry) noexcept {
  return !Entry.Params.empty() && SameName(Entry.Params[0].Name, u"Self") &&
         Entry.Params[0].TypeRef == &Intf;
}

bool IsOCLInterface(const TIntfInfo* Intf) noexcept {
  const TIntfInfo& Any = TDescribed<IOCLAny>::Info;
  return Intf && (Intf == &Any || IntfHasAncestor(*Intf, Any));
}

int GetIntfMethodCount(const TIntfInfo& Intf) {
  if (!Intf.HasDetails) return Intf.DeclaredCount;
  GELLO_ASSERT(Intf.Entries.size() == Intf.DeclaredCount, u"Assertion failure");
  int Count = 0;
  for (const TIntfEntry& Entry : Intf.Entries)
    if (IsSelfMethod(Intf, Entry)) ++Count;
  return Count;
}

int GetIntfFirstSlot(const TIntfInfo& Intf) {
  int Slot = 0;
  for (const TIntfInfo* Walk = Intf.Parent; Walk; Walk = Walk->Parent)
    Slot += GetIntfMethodCount(*Walk);
  return Slot;
}

int GetInterfaceIndex(const TIntfInfo& Intf, StringView Name) {
  if (!Intf.HasDetails || Intf.DeclaredCount == 0) return -1;
  for (std::size_t p = 0; p < Intf.Entries.size(); ++p)
    if (SameName(Intf.Entries[p].Name, Name)) return static_cast<int>(p) + GetIntfFirstSlot(Intf);
  return -1;
}

const TIntfEntry* GetIntfSlotEntry(const TIntfInfo& Intf, int Slot) {
  for (const TIntfInfo* Walk = &Intf; Walk; Walk = Walk->Parent) {
    const int First = GetIntfFirstSlot(*Walk);
    if (Slot < First) continue;
    const std::size_t Local = static_cast<std::size_t>(Slot - First);
    if (!Walk->HasDetails || Local >= Walk->Entries.size()) return nullptr;
    const TIntfEntry& Entry = Walk->Entries[Local];
    return IsSelfMethod(*Walk, Entry) ? &Entry : nullptr;
  }
  return nullptr;
}

void IntfCast(RefCounted* Source, const TIntfInfo& Intf, Ref<RefCounted>& Target) {
  Target = nullptr;
  if (Source && Intf.Supports(Source)) Target = Source;
}

}  // namespace gello
