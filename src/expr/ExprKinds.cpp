// Registers the expression kinds when the library is loaded, so readers can create them. A
// statement block is not among them: a file holding one cannot be read back.
#include "gello/expr/ControlNodes.h"
#include "gello/expr/Factory.h"
#include "gello/expr/Literals.h"
#include "gello/expr/Navigation.h"
#include "gello/model/ElementRegistry.h"

namespace gello {
namespace {

[[maybe_unused]] const bool Registered = [] {
  RegisterRTTI({RTTIClassOf<TRTTIValue>(), RTTIClassOf<TRTTITextLiteral>(),
                RTTIClassOf<TRTTIStringLiteral>(), RTTIClassOf<TRTTIIntegerLiteral>(),
                RTTIClassOf<TRTTIRealLiteral>(), RTTIClassOf<TRTTIBooleanLiteral>(),
                RTTIClassOf<TRTTINullLiteral>(), RTTIClassOf<TRTTIClassLiteral>(),
                RTTIClassOf<TRTTIEnumLiteral>(), RTTIClassOf<TRTTIFactory>(),
                RTTIClassOf<TRTTIMethodCall>(), RTTIClassOf<TRTTIPropertyRef>(),
                RTTIClassOf<TRTTICollectionMethod>(), RTTIClassOf<TRTTIConditional>(),
                RTTIClassOf<TRTTITupleValue>(), RTTIClassOf<TRTTICollectionValue>(),
                RTTIClassOf<TRTTIPragma>()});
  return true;
}();

}  // namespace
}  // namespace gello
