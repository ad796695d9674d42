#pragma once
// The model classes of collections that an operation makes with another kind or element type.
#include "gello/model/Interfaces.h"

namespace gello {

/// The class "Kind(Element)": the System class KindClass itself when the element class is T
/// (or unknown), else a stand-alone class of that name deriving from KindClass.
Ref<IRTTIClass> CollectionClassFor(const Ref<IRTTIClass>& KindClass,
                                   const Ref<IRTTIClass>& Element);
/// The innermost element class of Class, through nested collection classes.
Ref<IRTTIClass> InnermostElement(const Ref<IRTTIClass>& Class);

}  // namespace gello
