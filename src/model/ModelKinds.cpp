// Registers the model's element kinds when the library is loaded, so readers can create them.
#include "gello/model/Class.h"
#include "gello/model/ClassAlias.h"
#include "gello/model/ElementRegistry.h"
#include "gello/model/Generic.h"
#include "gello/model/Globals.h"
#include "gello/model/Method.h"
#include "gello/model/Package.h"
#include "gello/model/Property.h"

namespace gello {
namespace {

[[maybe_unused]] const bool Registered = [] {
  RegisterRTTI({RTTIClassOf<TRTTIElement>(),
                RTTIClassOf<TRTTIScope>(),
                RTTIClassOf<TRTTIClass>(),
                RTTIClassOf<TRTTIClassAlias>(),
                RTTIClassOf<TRTTIProperty>(),
                RTTIClassOf<TRTTIMethod>(),
                RTTIClassOf<TRTTIPackage>(),
                RTTIClassOf<TRTTIGeneric>(),
                // The global scope is always named "Globals".
                {String(KindWord(TRTTIGlobals::Kind)),
                 [](String) -> Ref<IRTTIElement> { return MakeRef<TRTTIGlobals>(); }}});
  return true;
}();

}  // namespace
}  // namespace gello
