#include "RegistryText.h"

namespace gello {

namespace {

String ConventionName(const IRTTIMethod& Method) {
  const TIntfEntry* Entry = nullptr;
  if (const TMethodInfo* Info = GetMethodInfo(&Method)) Entry = Info->Description;
  if (!Entry) return {};
  switch (Entry->CallConv) {
    case cc_register:
      return u" register";
    case cc_cdecl:
      return u" cdecl";
    case cc_pascal:
      return u" pascal";
    case cc_stdcall:
      return u" stdcall";
    case cc_safecall:
      break;
  }
  return {};
}

}  // namespace

String Text(const char* Name) {
  return FromLatin1(Name);
}

String DisplayName(const String& Name, const TIntfInfo& Intf) {
  if (Name.empty()) return Text(Intf.Name);
  const std::size_t Colons = Name.find(u"::");
  return Colons == String::npos ? Name : Name.substr(Colons + 2);
}

String NameOrNull(const IRTTIElement* Element) {
  String Name = Element ? Element->GetName() : String();
  return Name.empty() ? u"<null>" : Name;
}

String MethodSignature(const IRTTIMethod& Method) {
  String Text = u"(";
  Ref<IRTTIElementList> Params = Method.GetParams();
  for (int i = 0; Params && i < Params->GetCount(); ++i) {
    auto Param = DynCast<IRTTIProperty>(Params->GetItems(i));
    if (i > 0) Text += u", ";
    Text += Params->GetItems(i)->GetName() + u": " +
            NameOrNull(Param ? Param->GetPropertyType().get() : nullptr);
  }
  return Text + u"): " + NameOrNull(Method.GetResultType().get()) + ConventionName(Method);
}

}  // namespace gello
