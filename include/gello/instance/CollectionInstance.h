#pragma once
// Instances of the collection kinds: an ordered list of element instances.
#include "gello/foundation/Export.h"
#include "gello/instance/Instance.h"

namespace gello {

/// A Bag, Sequence or Set instance; its elements live in the value slots. It has no text value.
class GELLO_API TRTTICollectionInstance : public TRTTIClassInstance {
 public:
  /// An empty collection.
  explicit TRTTICollectionInstance(const Ref<IRTTIClass>& Class);

  void Add(const Ref<IRTTIClassInstance>& Element) { Values().push_back(Element); }
  /// A new instance of the element type, appended and returned.
  Ref<IRTTIClassInstance> CreateElement();
  int GetCount() const { return GetSlotCount(); }
  void SetCount(int Value);
  /// The element at Index, none when out of range.
  Ref<IRTTIClassInstance> GetElements(int Index) const;
  /// Stores at Index, growing the list when Index lies past its end.
  void SetElements(int Index, const Ref<IRTTIClassInstance>& Value);

  String GetasString() const override { return u"(Collection): " + ClassName(); }
  /// Always raises: a collection has no text value.
  void SetasString(const String& Value) override;

 protected:
  bool HasValue() const override { return true; }
  TJSON ValueJSON(bool Compact) const override;
};

}  // namespace gello
