#include "gello/model/Package.h"

#include <fstream>

#include "gello/foundation/Exceptions.h"
#include "gello/model/ElementList.h"
#include "gello/model/MethodTimer.h"

namespace gello {

TRTTIPackage::TRTTIPackage(const String& Name) : TRTTIScope(Name, true) {
  // Reading a package again fills the classes it already has instead of doubling them.
  GetMembers()->SetMergeElements(true);
}

TRTTIPackage::~TRTTIPackage() {
  TRTTIPackage::Clear();
}

void TRTTIPackage::Unuse() {
  std::int32_t Count = FUseCount.load();
  do {
    if (Count == 0)
      throw Exception(u"RTTI error - trying to unuse package when use count is 0 " + GetName());
  } while (!FUseCount.compare_exchange_weak(Count, Count - 1));
}

void TRTTIPackage::Resolve(IRTTIScope* Scope) {
  Ref<TMethodTimer> Timer = MethodTimer(u"resolve package " + GetName());
  TRTTIScope::Resolve(Scope);
  // Then each member scope again, now against this package.
  Ref<IRTTIElementList> Members = GetMembers();
  for (int i = 0; Members && i < Members->GetCount(); ++i)
    if (auto Member = DynCast<IRTTIScope>(Members->GetItems(i))) Member->Resolve(this);
}

void TRTTIPackage::Clear() {
  FImports = nullptr;
  if (FMainBlock) FMainBlock->Clear();
  FMainBlock = nullptr;
  TRTTIScope::Clear();
}

void TRTTIPackage::SaveToStream(const String& FileName) {
  std::ofstream Stream(ToUTF8(FileName), std::ios::binary | std::ios::trunc);
  if (!Stream) throw Exception(u"Cannot create file \"" + FileName + u"\"");
  // The header was always written with its character count as byte count: 13 bytes of
  // UTF-16, ending in the low byte of "P". Readers expect exactly that.
  const String Header = u"GELLO_PACKAGE";
  std::string Bytes;
  for (char16_t C : Header) {
    Bytes.push_back(static_cast<char>(C & 0xFF));
    Bytes.push_back(static_cast<char>(C >> 8));
  }
  Stream.write(Bytes.data(), static_cast<std::streamsize>(Header.size()));
  if (!Stream) throw Exception(u"Cannot write file \"" + FileName + u"\"");
}

}  // namespace gello
