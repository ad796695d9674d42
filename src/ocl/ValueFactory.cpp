#include "gello/foundation/Exceptions.h"
#include "gello/ocl/Any.h"
#include "gello/ocl/Bag.h"
#include "gello/ocl/Boolean.h"
#include "gello/ocl/Integer.h"
#include "gello/ocl/Null.h"
#include "gello/ocl/Sequence.h"
#include "gello/ocl/Set.h"
#include "gello/ocl/StringDescendant.h"
#include "gello/ocl/SystemClasses.h"
#include "gello/ocl/Tuple.h"

namespace gello {

namespace {

// A class that extends the built-in String with properties of its own keeps them in a tuple.
Ref<IOCLAny> MakeStringOfClass(const Ref<IRTTIClass>& AClass) {
  const Ref<IRTTIClass>& Builtin = OCLSystemClasses().String;
  if (Builtin && AClass != Builtin && AClass->IsClass(Builtin.get()) &&
      AClass->GetPropertyCount() > 0)
    return MakeRef<TOCLStringDescendant>(AClass);
  return MakeRef<TOCLString>(AClass);
}

}  // namespace

Ref<IOCLAny> TOCLAny::CreateFromClass(const Ref<IRTTIClass>& AClass) {
  if (!AClass)
    throw EOCLException(u"Internal Error: Gello Class is nil - has OCL Registry been initialized?");
  switch (AClass->GetClassKind()) {
    case rtti_undefined:
      throw EOCLException(u"Internal error: undefined class kind (" + AClass->GetName() + u")");
    case rtti_class:
      return MakeRef<TOCLTuple>(AClass);
    case rtti_bag:
      return MakeRef<TOCLBag>(AClass);
    case rtti_sequence:
      return MakeRef<TOCLSequence>(AClass);
    case rtti_set:
      return MakeRef<TOCLSet>(AClass);
    case rtti_string:
      return MakeStringOfClass(AClass);
    case rtti_integer:
      return MakeRef<TOCLInteger>(AClass);
    case rtti_real:
      return MakeRef<TOCLReal>(AClass);
    case rtti_boolean:
      return MakeRef<TOCLBooleanValue>(AClass);
  }
  return MakeRef<TOCLNull>(AClass);
}

}  // namespace gello
