#include "gello/model/ElementRegistry.h"

#include <algorithm>
#include <unordered_map>

#include "gello/foundation/Exceptions.h"

namespace gello {
namespace {

struct TKindHash {
  using is_transparent = void;
  std::size_t operator()(StringView Kind) const { return std::hash<StringView>()(Kind); }
};
using TRegistry = std::unordered_map<String, TElementFactory, TKindHash, std::equal_to<>>;

// Filled during module initialisation, before concurrent use.
TRegistry& Registry() {
  static TRegistry Classes;
  return Classes;
}

}  // namespace

void RegisterRTTI(std::initializer_list<TRTTIElementClass> Classes) {
  for (const TRTTIElementClass& Class : Classes)
    Registry()[Class.Kind] = Class.Create;
}

std::vector<String> RegisteredKinds() {
  std::vector<String> Kinds;
  for (const auto& Entry : Registry())
    Kinds.push_back(Entry.first);
  std::sort(Kinds.begin(), Kinds.end());
  return Kinds;
}

TElementFactory ElementFactoryFor(StringView Kind) {
  auto Found = Registry().find(Kind);
  if (Found == Registry().end())
    throw Exception(u"RTTI class name not registered : TRTTI" + String(Kind));
  return Found->second;
}

Ref<IRTTIElement> CreateForReader(StringView Kind, String Name) {
  if (Kind.empty()) return nullptr;
  return ElementFactoryFor(Kind)(std::move(Name));
}

}  // namespace gello
