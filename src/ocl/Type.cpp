#include "gello/ocl/Type.h"

#include "gello/ocl/SystemClasses.h"

namespace gello {

Ref<IRTTIClass> TOCLT::GetInstanceType() const {
  return OCLSystemClasses().T;
}

String TOCLT::GetasString() const {
  String Name = FOCLClassType ? FOCLClassType->GetName() : String();
  if (!IsDefined()) return u"null< " + HostClassName() + u": " + Name + u">";
  return Name;
}

bool TOCLT::isEqual(IOCLAny* Other) const {
  auto* Rhs = CachedCast<IOCLT>(Other);
  return Rhs && Rhs->GetOCLClassType() == FOCLClassType;
}

}  // namespace gello
