#include "gello/ocl/StringMaker.h"

#include <atomic>
#include "gello/foundation/Exceptions.h"

namespace gello {

namespace {
std::atomic<TOCLStringMaker> Registered{nullptr};
}  // namespace

void SetOCLStringMaker(TOCLStringMaker Maker) noexcept {
  Registered.store(Maker, std::memory_order_release);
}

Ref<IOCLString> MakeOCLString(const String& Text) {
  TOCLStringMaker Maker = Registered.load(std::memory_order_acquire);
  if (!Maker) throw EOCLException(u"Internal OCL error: no String value class registered");
  return Maker(Text);
}

}  // namespace gello
