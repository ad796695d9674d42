// The table of forms by kind tag.
#include "KindForms.h"

#include <array>

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

// In the order of the kind tags. A package list has no form of its own.
constexpr std::array<const TKindForm*, NodeKindCount> FormsByKind{
    &ElementForm,         &ScopeForm,   &PackageForm,     &PackageForm,     &ElementForm,
    &ClassForm,           &ClassForm,   &AliasForm,       &MethodForm,      &PropertyForm,
    &ValueForm,           &ValueForm,   &ConditionalForm, &StatementsForm,  &TupleValueForm,
    &CollectionValueForm, &PragmaForm,  &MethodCallForm,  &PropertyRefForm, &CollectionMethodForm,
    &LiteralForm,         &LiteralForm, &LiteralForm,     &LiteralForm,     &LiteralForm,
    &LiteralForm,         &LiteralForm, &LiteralForm};

const TKindForm& FormOfKind(TRTTINodeKind Kind) {
  return *FormsByKind[static_cast<std::size_t>(Kind)];
}

// A word no kind has gets the plain element's form.
const TKindForm& FormOfWord(StringView Word) {
  for (std::size_t i = 0; i < NodeKindCount; ++i)
    if (KindWord(static_cast<TRTTINodeKind>(i)) == Word)
      return FormOfKind(static_cast<TRTTINodeKind>(i));
  return ElementForm;
}

}  // namespace

const TKindForm& FormOf(const IRTTIElement& Element) {
  const TRTTINodeKind Kind = Element.GetNodeKind();
  const StringView Word = Element.GetKind();
  // The library's classes answer their tag's word; a foreign class may claim another.
  return Word == KindWord(Kind) ? FormOfKind(Kind) : FormOfWord(Word);
}

}  // namespace gello::forms
