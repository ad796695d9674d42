// The table of forms by kind word.
#include "KindForms.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <unordered_map>

namespace gello::forms {
namespace {

constexpr TKindForm ElementForm{WriteElementXML, ReadElementXML, GetElementJSON, SetElementJSON};
constexpr TKindForm ScopeForm{WriteScopeXML, ReadScopeXML, GetScopeJSON, SetScopeJSON};
constexpr TKindForm PackageForm{WritePackageXML, ReadPackageXML, GetPackageJSON, SetPackageJSON};
constexpr TKindForm ClassForm{WriteClassXML, ReadClassXML, GetClassJSON, SetClassJSON};
constexpr TKindForm AliasForm{WriteClassAliasXML, ReadClassAliasXML, GetScopeJSON, SetScopeJSON};
constexpr TKindForm MethodForm{WriteMethodXML, ReadMethodXML, GetMethodJSON, SetMethodJSON};
constexpr TKindForm PropertyForm{WritePropertyXML, ReadPropertyXML, GetPropertyJSON,
                                 SetPropertyJSON};
constexpr TKindForm ValueForm{WriteValueXML, ReadValueXML, GetValueJSON, SetValueJSON};
constexpr TKindForm LiteralForm{WriteLiteralXML, ReadLiteralXML, GetLiteralJSON, SetLiteralJSON};
constexpr TKindForm MethodCallForm{WriteMethodCallXML, ReadMethodCallXML, GetMethodCallJSON,
                                   SetValueJSON};
constexpr TKindForm PropertyRefForm{WritePropertyRefXML, ReadPropertyRefXML, GetPropertyRefJSON,
                                    SetValueJSON};
constexpr TKindForm CollectionMethodForm{WriteCollectionMethodXML, ReadCollectionMethodXML,
                                         GetValueJSON, SetValueJSON};
constexpr TKindForm ConditionalForm{WriteConditionalXML, ReadConditionalXML, GetValueJSON,
                                    SetValueJSON};
constexpr TKindForm StatementsForm{WriteStatementsXML, ReadStatementsXML, GetValueJSON,
                                   SetValueJSON};
constexpr TKindForm TupleValueForm{WriteTupleValueXML, ReadTupleValueXML, GetValueJSON,
                                   SetValueJSON};
constexpr TKindForm CollectionValueForm{WriteCollectionValueXML, ReadCollectionValueXML,
                                        GetValueJSON, SetValueJSON};
constexpr TKindForm PragmaForm{WritePragmaXML, ReadPragmaXML, GetValueJSON, SetValueJSON};

const std::unordered_map<StringView, TKindForm>& Forms() {
  static const std::unordered_map<StringView, TKindForm> Table{
      {u"Element", ElementForm},
      {u"Scope", ScopeForm},
      {u"Package", PackageForm},
      {u"Globals", PackageForm},
      {u"Class", ClassForm},
      {u"Generic", ClassForm},
      {u"ClassAlias", AliasForm},
      {u"Method", MethodForm},
      {u"Property", PropertyForm},
      {u"Value", ValueForm},
      {u"Factory", ValueForm},
      {u"Literal", LiteralForm},
      {u"StringLiteral", LiteralForm},
      {u"IntegerLiteral", LiteralForm},
      {u"RealLiteral", LiteralForm},
      {u"BooleanLiteral", LiteralForm},
      {u"NullLiteral", LiteralForm},
      {u"EnumLiteral", LiteralForm},
      {u"ClassLiteral", LiteralForm},
      {u"MethodCall", MethodCallForm},
      {u"PropertyRef", PropertyRefForm},
      {u"CollectionMethod", CollectionMethodForm},
      {u"Conditional", ConditionalForm},
      {u"Statements", StatementsForm},
      {u"TupleValue", TupleValueForm},
      {u"CollectionValue", CollectionValueForm},
      {u"Pragma", PragmaForm},
  };
  return Table;
}

const TKindForm& Lookup(StringView Kind) {
  auto Found = Forms().find(Kind);
  return Found == Forms().end() ? ElementForm : Found->second;
}

}  // namespace

const TKindForm& FormOf(StringView Kind) {
  // Kind words are the classes' own constants, so their address picks a cache entry, and a
  // word compared there spares hashing it for every element of a large model. The entry keeps
  // its own copy of the word, so a word that is not a constant is still compared safely.
  struct TCached {
    char16_t Word[24];
    std::size_t Size = SIZE_MAX;
    const TKindForm* Form = nullptr;
  };
  thread_local std::array<TCached, 64> Cache;
  if (Kind.size() > std::size(TCached{}.Word)) return Lookup(Kind);
  TCached& Entry = Cache[(reinterpret_cast<std::uintptr_t>(Kind.data()) >> 3) % Cache.size()];
  if (Entry.Size != Kind.size() || !std::equal(Kind.begin(), Kind.end(), Entry.Word)) {
    std::copy(Kind.begin(), Kind.end(), Entry.Word);
    Entry.Size = Kind.size();
    Entry.Form = &Lookup(Kind);
  }
  return *Entry.Form;
}

}  // namespace gello::forms
