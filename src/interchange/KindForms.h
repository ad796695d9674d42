#pragma once
// The native XML and JSON forms of each element kind, found by kind tag. Each kind's parts
// call its base kind's parts first, so a kind adds only its own attributes, nodes and keys.
#include <pugixml.hpp>

#include <array>
#include <string>
#include <string_view>

#include "ClassNames.h"
#include "ElementNode.h"
#include "gello/foundation/CachedCast.h"
#include "gello/foundation/Exceptions.h"
#include "gello/foundation/JSON.h"
#include "gello/model/ElementRegistry.h"
#include "gello/model/Interfaces.h"

namespace gello::forms {

/// What one read shares: the global scope and the classes its type names have been turned into.
class TReading {
 public:
  explicit TReading(IRTTIGlobals* Globals) : FGlobals(Globals) {}
  IRTTIGlobals* Globals() const { return FGlobals; }
  /// The class a type attribute names, found through the global scope or else a placeholder
  /// by that name, the same one for each use in this read; nil for an empty name. The reference
  /// is valid until the next call.
  const Ref<IRTTIClass>& ClassNamed(std::string_view Name);
  /// A new element of the kind a word names, by that name; nil for an empty word.
  Ref<IRTTIElement> Create(std::string_view Kind, String Name);

 private:
  // A model uses a handful of kind words hundreds of thousands of times: each word is looked up
  // in the element-class registry once per read.
  struct TFactory {
    std::string Kind;
    TElementFactory Create = nullptr;
  };
  TElementFactory FactoryFor(std::string_view Kind);

  IRTTIGlobals* FGlobals;
  TClassNames FClasses;
  std::array<TFactory, 64> FFactories;  // by linear probing; an empty one ends a search
};

/// The parts of one kind.
struct TKindForm {
  void (*WriteXML)(IRTTIElement&, pugi::xml_node);
  void (*ReadXML)(IRTTIElement&, const TElementNode&, TReading&);
  void (*GetJSON)(IRTTIElement&, TJSON&);
  void (*SetJSON)(IRTTIElement&, const TJSON&);
};

/// The form of the element's kind: by its kind tag, or for a foreign class that claims another
/// kind word, by that word; a word without a form of its own has the plain element's form.
const TKindForm& FormOf(const IRTTIElement& Element);

/// The element as the interface its kind implies; raises when a foreign class claims the kind.
template <class I>
I& As(IRTTIElement& Element) {
  if (auto* Result = CachedCast<I>(&Element)) return *Result;
  throw Exception(u"Element " + Element.GetName() + u" of kind " + String(Element.GetKind()) +
                  u" has no form of that kind");
}

// Shared pieces of the XML parts.
/// Whether Wide holds the text of Utf8; ASCII is compared without widening it.
bool SameText(const String& Wide, std::string_view Utf8);
void SetText(pugi::xml_node Node, const char* Name, StringView Value);
void SetClassName(pugi::xml_node Node, const char* Name, IRTTIClass* Class);
void ReadElement(IRTTIElement& Element, pugi::xml_node Node, TReading& Reading);
Ref<IRTTIElement> LoadElement(pugi::xml_node Node, TReading& Reading);
Ref<IRTTIElementList> LoadList(Ref<IRTTIElementList> List, pugi::xml_node Node, TReading& Reading);
/// The list under Parent's Role node read into a new list: empty when the node is absent.
Ref<IRTTIElementList> LoadFreshList(const TElementNode& Parent, TRoleName Role, TReading& Reading);
void WriteSingle(IRTTIElement* Element, pugi::xml_node Parent, const char* Role, bool Always);
void WriteList(IRTTIElementList* List, pugi::xml_node Parent, const char* Role, bool Always);
/// Element as the I that its role needs; raises when it is of another kind.
template <class I>
Ref<I> InRole(const Ref<IRTTIElement>& Element, const char* Role) {
  if (!Element) return nullptr;
  Ref<I> Result = DynCast<I>(Element);
  if (!Result)
    throw Exception(u"An element of kind " + String(Element->GetKind()) + u" cannot stand in \"" +
                    FromUTF8(Role) + u"\"");
  return Result;
}
/// The element of a single-element node, as I.
template <class I>
Ref<I> LoadSingle(const TElementNode& Parent, TRoleName Role, TReading& Reading) {
  return InRole<I>(LoadElement(Parent.Role(Role), Reading), Role.Text);
}

// Shared pieces of the JSON parts.
/// The text under Key; empty when it is absent or not a string.
String JSONText(const TJSON& Value, const char* Key);
/// A placeholder class named by the text under Key, bound later by resolving; nil when empty.
Ref<IRTTIClass> JSONClass(const TJSON& Value, const char* Key);
/// Whether Value is an object with a member Key of that type.
bool HasKey(const TJSON& Value, const char* Key, TJSON::value_t Type);

// The parts by kind.
void WriteElementXML(IRTTIElement& Element, pugi::xml_node Node);
void ReadElementXML(IRTTIElement& Element, const TElementNode& Node, TReading& Reading);
void WriteScopeXML(IRTTIElement& Element, pugi::xml_node Node);
void ReadScopeXML(IRTTIElement& Element, const TElementNode& Node, TReading& Reading);
void WritePackageXML(IRTTIElement& Element, pugi::xml_node Node);
void ReadPackageXML(IRTTIElement& Element, const TElementNode& Node, TReading& Reading);
void WriteClassXML(IRTTIElement& Element, pugi::xml_node Node);
void ReadClassXML(IRTTIElement& Element, const TElementNode& Node, TReading& Reading);
void WriteClassAliasXML(IRTTIElement& Element, pugi::xml_node Node);
void ReadClassAliasXML(IRTTIElement& Element, const TElementNode& Node, TReading& Reading);
void WriteMethodXML(IRTTIElement& Element, pugi::xml_node Node);
void ReadMethodXML(IRTTIElement& Element, const TElementNode& Node, TReading& Reading);
void WritePropertyXML(IRTTIElement& Element, pugi::xml_node Node);
void ReadPropertyXML(IRTTIElement& Element, const TElementNode& Node, TReading& Reading);
void WriteValueXML(IRTTIElement& Element, pugi::xml_node Node);
void ReadValueXML(IRTTIElement& Element, const TElementNode& Node, TReading& Reading);
void WriteLiteralXML(IRTTIElement& Element, pugi::xml_node Node);
void ReadLiteralXML(IRTTIElement& Element, const TElementNode& Node, TReading& Reading);
void WriteMethodCallXML(IRTTIElement& Element, pugi::xml_node Node);
void ReadMethodCallXML(IRTTIElement& Element, const TElementNode& Node, TReading& Reading);
void WritePropertyRefXML(IRTTIElement& Element, pugi::xml_node Node);
void ReadPropertyRefXML(IRTTIElement& Element, const TElementNode& Node, TReading& Reading);
void WriteCollectionMethodXML(IRTTIElement& Element, pugi::xml_node Node);
void ReadCollectionMethodXML(IRTTIElement& Element, const TElementNode& Node, TReading& Reading);
void WriteConditionalXML(IRTTIElement& Element, pugi::xml_node Node);
void ReadConditionalXML(IRTTIElement& Element, const TElementNode& Node, TReading& Reading);
void WriteStatementsXML(IRTTIElement& Element, pugi::xml_node Node);
void ReadStatementsXML(IRTTIElement& Element, const TElementNode& Node, TReading& Reading);
void WriteTupleValueXML(IRTTIElement& Element, pugi::xml_node Node);
void ReadTupleValueXML(IRTTIElement& Element, const TElementNode& Node, TReading& Reading);
void WriteCollectionValueXML(IRTTIElement& Element, pugi::xml_node Node);
void ReadCollectionValueXML(IRTTIElement& Element, const TElementNode& Node, TReading& Reading);
void WritePragmaXML(IRTTIElement& Element, pugi::xml_node Node);
void ReadPragmaXML(IRTTIElement& Element, const TElementNode& Node, TReading& Reading);

void GetElementJSON(IRTTIElement& Element, TJSON& Value);
void SetElementJSON(IRTTIElement& Element, const TJSON& Value);
void GetScopeJSON(IRTTIElement& Element, TJSON& Value);
void SetScopeJSON(IRTTIElement& Element, const TJSON& Value);
void GetPackageJSON(IRTTIElement& Element, TJSON& Value);
void SetPackageJSON(IRTTIElement& Element, const TJSON& Value);
void GetClassJSON(IRTTIElement& Element, TJSON& Value);
void SetClassJSON(IRTTIElement& Element, const TJSON& Value);
void GetMethodJSON(IRTTIElement& Element, TJSON& Value);
void SetMethodJSON(IRTTIElement& Element, const TJSON& Value);
void GetPropertyJSON(IRTTIElement& Element, TJSON& Value);
void SetPropertyJSON(IRTTIElement& Element, const TJSON& Value);
void GetValueJSON(IRTTIElement& Element, TJSON& Value);
void SetValueJSON(IRTTIElement& Element, const TJSON& Value);
void GetLiteralJSON(IRTTIElement& Element, TJSON& Value);
void SetLiteralJSON(IRTTIElement& Element, const TJSON& Value);
void GetMethodCallJSON(IRTTIElement& Element, TJSON& Value);
void GetPropertyRefJSON(IRTTIElement& Element, TJSON& Value);

}  // namespace gello::forms
