#include "gello/ocl/Any.h"

#include <cxxabi.h>
#include <cstdlib>
#include <typeinfo>
#include "gello/foundation/Exceptions.h"
#include "gello/model/ClassInstance.h"
#include "gello/ocl/Boolean.h"
#include "gello/ocl/Null.h"
#include "gello/ocl/Set.h"
#include "gello/ocl/SystemClasses.h"
#include "gello/ocl/Type.h"

namespace gello {

TOCLAny::TOCLAny(const Ref<IRTTIClass>& AClass) {
  if (AClass && IsNullGUID(AClass->GetInstanceIntf()))
    throw EOCLException(u"null GUID for Gello Class " + AClass->GetName());
}

TOCLAny::TOCLAny(const TUndefined& Reason)
    : FExceptions(std::make_unique<TInternalOCLException>(Reason.Message)) {}

TOCLAny::~TOCLAny() = default;

Ref<IOCLAny> TOCLAny::NullCheck(Ref<IOCLAny> Value) {
  if (Value) return Value;
  return MakeRef<TOCLNull>();
}

void TOCLAny::AddException(const String& Message) {
  auto Head = std::make_unique<TInternalOCLException>(Message);
  Head->previous_exception = std::move(FExceptions);
  FExceptions = std::move(Head);
}

void TOCLAny::CheckRefCount() const {
  int Count = GetRefCount();
  GELLO_ASSERT(Count >= 1, u"OCL object ref count error" + IntToStr(Count));
}

String TOCLAny::HostClassName() const {
  const char* Mangled = typeid(*this).name();
  int Status = 0;
  std::unique_ptr<char, void (*)(void*)> Demangled(
      abi::__cxa_demangle(Mangled, nullptr, nullptr, &Status), std::free);
  std::string Name = Status == 0 && Demangled ? Demangled.get() : Mangled;
  // The system names its classes without the C++ namespace.
  std::size_t Colon = Name.rfind("::");
  return FromUTF8(Colon == std::string::npos ? Name : Name.substr(Colon + 2));
}

Ref<IRTTIClass> TOCLAny::GetOCLClassType() const {
  throw EOCLException(u"Internal error:  should not call OCLClassType from TOCLAny class.");
}

String TOCLAny::InstanceTypeName() const {
  Ref<IRTTIClass> Type = GetInstanceType();
  return Type ? Type->GetName() : String();
}

Ref<IRTTIClass> TOCLAny::GetInstanceType() const {
  return OCLSystemClasses().Any;
}

String TOCLAny::GetasString() const {
  if (IsDefined()) return u"<" + InstanceTypeName() + u": " + HostClassName() + u">";
  return u"null< " + InstanceTypeName() + u": " + HostClassName() + u"> " + GetExceptionMessage();
}

TJSON TOCLAny::GetasJSON() const {
  TJSON Result = TJSON::object();
  Result["#type"] = ToUTF8(InstanceTypeName());
  if (!IsDefined()) {
    Result["#undefined"] = true;
    Result["#message"] = ToUTF8(GetExceptionMessage());
  }
  return Result;
}

void TOCLAny::SetasString(const String&) {
  throw EOCLException(u"no asString setter defined for class=" + HostClassName());
}

Ref<IRTTIClassInstance> TOCLAny::CreateProperty(const String&) {
  return nullptr;
}

Ref<IRTTIClassInstance> TOCLAny::ClassFactory(const String& ClassName) {
  return NewClassInstance(ClassName);
}

Ref<IRTTIClassInstance> TOCLAny::GetPropertyByName(const String&) const {
  return nullptr;
}

String TOCLAny::GetPropertyName(int) const {
  return String();
}

Ref<IRTTIClassInstance> TOCLAny::GetPropertyValue(int) const {
  return nullptr;
}

Ref<IOCLSet> TOCLAny::allInstances() const {
  // No instance store keeps values of a model class yet, so the Set over the type is empty.
  return MakeRef<TOCLSet>(GetInstanceType());
}

String TOCLAny::GetExceptionMessage() const {
  String Result;
  for (const TInternalOCLException* E = FExceptions.get(); E; E = E->GetPrevious()) {
    if (E != FExceptions.get()) Result += u" | ";
    Result += E->GetMessage();
  }
  return Result;
}

bool TOCLAny::isEqual(IOCLAny* Other) const {
  return Other && Other->GetasObject() == GetasObject();
}

bool TOCLAny::_LessThan(IOCLAny*) const {
  throw EOCLException(u"Data type can't be sorted.");
}

Ref<IOCLT> TOCLAny::oclAsType(IOCLT*) const {
  throw EOCLException(u"Internal OCL error: should not call oclAsType() directly.");
}

Ref<IOCLBoolean> TOCLAny::oclIsDefined() const {
  return TOCLBoolean::BooleanValue(IsDefined());
}

Ref<IOCLBoolean> TOCLAny::oclIsInState(IOCLString*) const {
  return TOCLBoolean::BooleanValue(false);
}

Ref<IOCLBoolean> TOCLAny::oclIsKindOf(IOCLT* baseType) const {
  if (!baseType) return TOCLBoolean::UndefinedBoolean();
  Ref<IRTTIClass> Base = baseType->GetOCLClassType();
  Ref<IRTTIClass> Type = GetInstanceType();
  return TOCLBoolean::BooleanValue(Type && Type->IsClass(Base.get()));
}

Ref<IOCLT> TOCLAny::oclType() const {
  return MakeRef<TOCLT>(GetInstanceType());
}

Ref<IOCLBoolean> TOCLAny::_EQ_(IOCLAny* o) const {
  return TOCLBoolean::BooleanValue(isEqual(o));
}

Ref<IOCLBoolean> TOCLAny::_NE_(IOCLAny* o) const {
  return TOCLBoolean::BooleanValue(!isEqual(o));
}

}  // namespace gello
