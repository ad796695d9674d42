// Values of the lower layers make stand-alone instances through the dynamic-instance classes,
// which sit above them and install their maker when the library loads.
#include "gello/foundation/Exceptions.h"
#include "gello/foundation/InstalledFunction.h"
#include "gello/model/ClassInstance.h"

namespace gello {

namespace {
TInstalledFunction<Ref<IRTTIClassInstance>(const String&)> Installed;
}  // namespace

void SetClassInstanceMaker(TClassInstanceMaker Maker) noexcept {
  Installed.Install(Maker);
}

Ref<IRTTIClassInstance> NewClassInstance(const String& ClassName) {
  TClassInstanceMaker Maker = Installed.Get();
  if (!Maker) throw Exception(u"No dynamic-instance class installed");
  return Maker(ClassName);
}

}  // namespace gello
