#include "gello/ocl/Null.h"

namespace gello {

Ref<IRTTIClassInstance> TOCLNull::GetPropertyByName(const String&) const {
  return MakeRef<TOCLNull>();
}

Ref<IRTTIClassInstance> TOCLNull::GetPropertyValue(int) const {
  return MakeRef<TOCLNull>();
}

}  // namespace gello
