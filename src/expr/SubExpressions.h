#pragma once
// Helpers for nodes that own sub-expressions: resolving and clearing the optional parts.
#include "gello/model/Interfaces.h"

namespace gello {

/// Resolves Part when it is set.
template <class I>
void ResolveIfSet(const Ref<I>& Part, IRTTIScope* Scope) {
  if (Part) Part->Resolve(Scope);
}

/// Drops Part after clearing it, which breaks the cycles a sub-tree may hold.
template <class I>
void ClearPart(Ref<I>& Part) {
  // Let go first: clearing the part may reach back into its holder.
  const Ref<I> Held = std::move(Part);
  Part = nullptr;
  if (Held) Held->Clear();
}

/// Clears every item of List and the list itself, dropping it.
inline void ClearList(Ref<IRTTIElementList>& List) {
  const Ref<IRTTIElementList> Held = std::move(List);
  List = nullptr;
  if (Held) Held->Reset();
}

}  // namespace gello
