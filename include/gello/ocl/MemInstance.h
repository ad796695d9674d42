#pragma once
// The storage base of tuples and collections: a model class and an ordered list of values.
#include <vector>
#include "gello/foundation/Export.h"
#include "gello/ocl/Any.h"

namespace gello {

/// Holds its model class and its values in memory.
class GELLO_API TOCLMemInstance : public TOCLAny {
 public:
  TOCLMemInstance() = default;
  /// A value of AClass (refused when its interface GUID is null).
  explicit TOCLMemInstance(const Ref<IRTTIClass>& AClass, bool InMemory = true)
      : TOCLAny(AClass), FinMemory(InMemory), FInstanceType(AClass) {}
  explicit TOCLMemInstance(const TUndefined& Reason) : TOCLAny(Reason) {}

  Ref<IRTTIClass> GetInstanceType() const override { return FInstanceType; }
  void SetInstanceType(const Ref<IRTTIClass>& Value) override { FInstanceType = Value; }
  bool GetInMemory() const { return FinMemory; }

  int GetCount() const { return static_cast<int>(FItems.size()); }
  /// The value at Index; none when out of range.
  Ref<IOCLAny> GetItems(int Index) const;
  /// New slots are empty (nil).
  void SetCount(int Value);
  /// Stores at Index, growing the list when Index lies past its end.
  void SetItems(int Index, const Ref<IOCLAny>& Value);

 protected:
  std::vector<Ref<IOCLAny>>& Items() { return FItems; }
  const std::vector<Ref<IOCLAny>>& Items() const { return FItems; }

 private:
  bool FinMemory = true;
  Ref<IRTTIClass> FInstanceType;
  std::vector<Ref<IOCLAny>> FItems;
};

}  // namespace gello
