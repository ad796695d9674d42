#include "gello/ocl/StringMaker.h"

#include "gello/foundation/Exceptions.h"
#include "gello/foundation/InstalledFunction.h"

namespace gello {

namespace {
TInstalledFunction<Ref<IOCLString>(const String&)> Registered;
}  // namespace

void SetOCLStringMaker(TOCLStringMaker Maker) noexcept {
  Registered.Install(Maker);
}

Ref<IOCLString> MakeOCLString(const String& Text) {
  TOCLStringMaker Maker = Registered.Get();
  if (!Maker) throw EOCLException(u"Internal OCL error: no String value class registered");
  return Maker(Text);
}

}  // namespace gello
