// Registers the value and literal kinds when the library is loaded, so readers can create them.
#include "gello/expr/Generic.h"
#include "gello/expr/Literals.h"
#include "gello/model/ElementRegistry.h"

namespace gello {
namespace {

[[maybe_unused]] const bool Registered = [] {
  RegisterRTTI({RTTIClassOf<TRTTIValue>(), RTTIClassOf<TRTTITextLiteral>(),
                RTTIClassOf<TRTTIStringLiteral>(), RTTIClassOf<TRTTIIntegerLiteral>(),
                RTTIClassOf<TRTTIRealLiteral>(), RTTIClassOf<TRTTIBooleanLiteral>(),
                RTTIClassOf<TRTTINullLiteral>(), RTTIClassOf<TRTTIClassLiteral>(),
                RTTIClassOf<TRTTIEnumLiteral>(), RTTIClassOf<TRTTIGeneric>()});
  return true;
}();

}  // namespace
}  // namespace gello
