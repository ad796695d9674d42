// The synthetic "Factory" class: one constructor-like method per concrete class of a package.
#include "gello/model/Class.h"
#include "gello/model/ElementList.h"
#include "gello/model/Method.h"
#include "gello/model/Package.h"
#include "gello/model/Property.h"

namespace gello {
namespace {

const String FactoryName = u"Factory";

// Plain user classes only: no generic instances or parameters, aliases, enumerations, tuples,
// collections or primitives.
bool IsConcrete(IRTTIClass& Class) {
  const TRTTIClassKind Kind = Class.GetClassKind();
  return Class.GetNodeKind() == TRTTIClass::Kind && Class.GetName() != FactoryName &&
         Class.GetName().find(u'(') == String::npos && !Class.IsGeneric() && !Class.GetEnums() &&
         !Class.GetIsTuple() && !Class.IsCollection() &&
         (Kind == rtti_undefined || Kind == rtti_class);
}

Ref<IRTTIElement> Parameter(const String& Name, const Ref<IRTTIClass>& Type) {
  // A property read but not yet typed still gives its parameter.
  auto Param = MakeRef<TRTTIProperty>(Name);
  Param->SetPropertyType(Type);
  return Param;
}

Ref<IRTTIMethod> Constructor(const Ref<IRTTIClass>& Class) {
  auto Params = MakeRef<TRTTIElementList>();
  Ref<IRTTIElementList> Members = Class->GetMembers();
  for (int i = 0; Members && i < Members->GetCount(); ++i)
    if (auto Property = DynCast<IRTTIProperty>(Members->GetItems(i)))
      Params->Add(Parameter(Property->GetName(), Property->GetPropertyType()));
  if (Ref<IRTTIClass> Ancestor = Class->GetAncestor())
    Params->Add(Parameter(u"ancestor", Ancestor));
  return MakeRef<TRTTIMethod>(Class->GetName(), Class, Params);
}

}  // namespace

void TRTTIPackage::BuildFactory() {
  auto Factory = MakeRef<TRTTIClass>(FactoryName);
  Ref<IRTTIElementList> Members = GetMembers();
  for (int i = 0; i < Members->GetCount(); ++i)
    if (auto Class = DynCast<IRTTIClass>(Members->GetItems(i)))
      if (IsConcrete(*Class)) Factory->AddMember(Constructor(Class));
  // A factory built again replaces the earlier one.
  Members->SetItemByName(FactoryName, Factory);
}

}  // namespace gello
