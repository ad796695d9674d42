#pragma once
// A model method bound to a slot of its implementing interface.
#include "gello/foundation/Export.h"
#include "gello/model/Method.h"
#include "gello/registry/IntfInfo.h"

namespace gello {

/// A method the registry made from an interface entry; it carries the slot's information.
class GELLO_API TOCLRegisteredMethod : public TRTTIMethod {
 public:
  TOCLRegisteredMethod(const String& Name, const Ref<IRTTIClass>& ResultType,
                       const TIntfEntry& Entry, int Slot);
  const TMethodInfo& GetMethodInfo() const noexcept { return FInfo; }

 private:
  TMethodInfo FInfo;
};

/// The information ExecuteMethod needs for Method, or none when the registry did not bind it.
GELLO_API const TMethodInfo* GetMethodInfo(const IRTTIMethod* Method) noexcept;

}  // namespace gello
