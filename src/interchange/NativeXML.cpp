// Dispatch of the native XML form by kind, single-element and list nodes, and the reading
// context.
#include "gello/interchange/NativeXML.h"

#include <algorithm>

#include "KindForms.h"
#include "gello/model/Class.h"
#include "gello/model/ElementList.h"
#include "gello/model/ElementRegistry.h"

namespace gello {
namespace forms {

const Ref<IRTTIClass>& TReading::ClassNamed(std::string_view Name) {
  // An empty name is never filed, so it finds nothing.
  if (const Ref<IRTTIClass>& Found = FClasses.Find(Name); Found || Name.empty()) return Found;
  const String Text = FromUTF8(Name);
  Ref<IRTTIClass> Class;
  // A qualified name is looked for in its own package; otherwise, as any name the loaded
  // packages do not define, it becomes a placeholder that resolving binds.
  if (FGlobals && Text.find(u"::") != String::npos && Text.find(u'(') == String::npos)
    Class = FGlobals->FindAddClass(Text, FGlobals);
  if (!Class) Class = FGlobals ? FGlobals->BuildClass(Text) : BuildClassRef(Text);
  return FClasses.Add(Name, Class);
}

Ref<IRTTIElement> TReading::Create(std::string_view Kind, String Name) {
  if (Kind.empty()) return nullptr;
  return FactoryFor(Kind)(std::move(Name));
}

TElementFactory TReading::FactoryFor(std::string_view Kind) {
  const std::size_t Mask = FFactories.size() - 1;
  std::size_t i = (Kind.size() * 31 + static_cast<unsigned char>(Kind.front()) * 7 +
                   static_cast<unsigned char>(Kind.back())) &
                  Mask;
  for (std::size_t Probes = 0; Probes < FFactories.size(); ++Probes, i = (i + 1) & Mask) {
    TFactory& Entry = FFactories[i];
    if (!Entry.Create) {
      Entry.Create = ElementFactoryFor(FromUTF8(Kind));
      Entry.Kind = Kind;
      return Entry.Create;
    }
    if (Entry.Kind == Kind) return Entry.Create;
  }
  return ElementFactoryFor(FromUTF8(Kind));
}

namespace {

bool IsAscii(std::string_view Text) {
  return std::all_of(Text.begin(), Text.end(),
                     [](char C) { return static_cast<unsigned char>(C) < 0x80; });
}

}  // namespace

bool SameText(const String& Wide, std::string_view Utf8) {
  if (!IsAscii(Utf8)) return Wide == FromUTF8(Utf8);
  return std::equal(Wide.begin(), Wide.end(), Utf8.begin(), Utf8.end(),
                    [](char16_t W, char C) { return W == static_cast<char16_t>(C); });
}

void SetText(pugi::xml_node Node, const char* Name, StringView Value) {
  Node.append_attribute(Name).set_value(ToUTF8(Value).c_str());
}

void SetClassName(pugi::xml_node Node, const char* Name, IRTTIClass* Class) {
  if (Class) SetText(Node, Name, Class->GetName());
}

namespace {

// A failure while reading a node is placed at that node, unless a node inside it already was.
template <class Read>
auto AtNode(pugi::xml_node Node, Read&& ReadNode) {
  try {
    return ReadNode();
  } catch (Exception& E) {
    if (E.Where().Offset < 0) {
      TSourcePosition Where = E.Where();
      Where.Offset = Node.offset_debug();
      E.SetWhere(std::move(Where));
    }
    throw;
  }
}

}  // namespace

static void ReadElement(IRTTIElement& Element, const TElementNode& Node, TReading& Reading) {
  FormOf(Element).ReadXML(Element, Node, Reading);
}

void ReadElement(IRTTIElement& Element, pugi::xml_node Node, TReading& Reading) {
  GELLO_ASSERT(Node, u"Trying to read nil xml node in model");
  AtNode(Node, [&] { ReadElement(Element, TElementNode(Node), Reading); });
}

Ref<IRTTIElement> LoadElement(pugi::xml_node Node, TReading& Reading) {
  if (!Node) return nullptr;
  return AtNode(Node, [&] {
    const TElementNode Parts(Node);
    Ref<IRTTIElement> Element =
        Reading.Create(Parts.Attribute("kind"), FromUTF8(Parts.Attribute("name")));
    if (Element) ReadElement(*Element, Parts, Reading);
    return Element;
  });
}

static void ReadListItem(IRTTIElementList& List, pugi::xml_node Node, TReading& Reading) {
  const TElementNode Parts(Node);
  String Name = FromUTF8(Parts.Attribute("name"));
  if (Ref<IRTTIElement> Existing = List.GetMergeElements() ? List.GetItemByName(Name) : nullptr)
    return ReadElement(*Existing, Parts, Reading);
  Ref<IRTTIElement> Element = Reading.Create(Parts.Attribute("kind"), std::move(Name));
  List.Add(Element);
  ReadElement(*Element, Parts, Reading);
}

static void ReadList(IRTTIElementList& List, pugi::xml_node Node, TReading& Reading) {
  GELLO_ASSERT(Node, u"Trying to read nil xml node in model");
  for (pugi::xml_node Child : Node.children()) {
    if (Child.type() == pugi::node_element)
      AtNode(Child, [&] { ReadListItem(List, Child, Reading); });
  }
}

Ref<IRTTIElementList> LoadList(Ref<IRTTIElementList> List, pugi::xml_node Node, TReading& Reading) {
  if (!Node) return List;
  if (!List) List = MakeRef<TRTTIElementList>();
  ReadList(*List, Node, Reading);
  return List;
}

Ref<IRTTIElementList> LoadFreshList(const TElementNode& Parent, TRoleName Role, TReading& Reading) {
  return LoadList(MakeRef<TRTTIElementList>(), Parent.Role(Role), Reading);
}

void WriteSingle(IRTTIElement* Element, pugi::xml_node Parent, const char* Role, bool Always) {
  if (Element)
    WriteXML(*Element, Parent.append_child(Role));
  else if (Always)
    Parent.append_child(Role);
}

void WriteList(IRTTIElementList* List, pugi::xml_node Parent, const char* Role, bool Always) {
  if (!List && !Always) return;
  pugi::xml_node Node = Parent.append_child(Role);
  if (List) WriteXML(*List, Node);
}

}  // namespace forms

void WriteXML(IRTTIElement& Element, pugi::xml_node Node) {
  forms::FormOf(Element).WriteXML(Element, Node);
}

void ReadXML(IRTTIElement& Element, pugi::xml_node Node, IRTTIGlobals* Globals) {
  forms::TReading Reading(Globals);
  forms::ReadElement(Element, Node, Reading);
}

Ref<IRTTIElement> LoadFromXMLNode(pugi::xml_node Node, IRTTIGlobals* Globals) {
  forms::TReading Reading(Globals);
  return forms::LoadElement(Node, Reading);
}

void WriteXML(IRTTIElementList& List, pugi::xml_node Node) {
  for (int i = 0; i < List.GetCount(); ++i)
    WriteXML(*List.GetItems(i), Node.append_child("element"));
}

void ReadXML(IRTTIElementList& List, pugi::xml_node Node, IRTTIGlobals* Globals) {
  forms::TReading Reading(Globals);
  forms::ReadList(List, Node, Reading);
}

Ref<IRTTIElementList> LoadFromXMLNode(Ref<IRTTIElementList> List, pugi::xml_node Node,
                                      IRTTIGlobals* Globals) {
  forms::TReading Reading(Globals);
  return forms::LoadList(std::move(List), Node, Reading);
}

}  // namespace gello
