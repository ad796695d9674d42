#pragma once
// The System classes that value objects answer as their instance type.
#include "gello/foundation/Export.h"
#include "gello/model/Interfaces.h"

namespace gello {

/// Process-wide handles of the System built-ins; filled once, before values are used.
struct GELLO_API TOCLSystemClasses {
  Ref<IRTTIClass> Any, T, Boolean, String, Real, Integer, Iterator;
  Ref<IRTTIClass> Collection, Bag, Sequence, Set, Tuple;
};

/// The current handles (all empty until set).
GELLO_API const TOCLSystemClasses& OCLSystemClasses() noexcept;
/// Takes the handles from a global scope's built-ins (Iterator stays as it was: the global
/// scope has no such class; the registry sets it).
GELLO_API void SetOCLSystemClasses(const IRTTIGlobals& Globals);
/// Replaces every handle at once.
GELLO_API void SetOCLSystemClasses(const TOCLSystemClasses& Classes);
/// Drops every handle, so the classes can be freed.
GELLO_API void ClearOCLSystemClasses();

}  // namespace gello
