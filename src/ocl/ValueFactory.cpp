#include "gello/foundation/Exceptions.h"
#include "gello/model/HostClass.h"
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

// A class the registry binds to an implementing class of its own (the built-in Any and
// Collection, or a plug-in's class) is made as that class. Model classes inherit the binding of
// their registered ancestor, so only a class registered itself is asked.
Ref<IOCLAny> MakeRegistered(const Ref<IRTTIClass>& AClass) {
  if (!AClass->GetHostType()) return nullptr;
  const THostClass Impl = AClass->GetInstanceImpl();
  return Impl && Impl->MakeValue ? Impl->MakeValue(AClass) : nullptr;
}

}  // namespace

Ref<IOCLAny> TOCLAny::CreateFromClass(const Ref<IRTTIClass>& AClass) {
  if (!AClass)
    throw EOCLException(u"Internal Error: Gello Class is nil - has OCL Registry been initialized?");
  const TRTTIClassKind Kind = AClass->GetClassKind();
  if (Kind == rtti_class || Kind == rtti_bag || Kind == rtti_sequence || Kind == rtti_set)
    if (Ref<IOCLAny> Value = MakeRegistered(AClass)) return Value;
  switch (Kind) {
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
