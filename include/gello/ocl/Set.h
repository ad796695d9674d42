#pragma once
// Sets: no two elements equal, kept in the order they were first added.
#include "gello/foundation/Export.h"
#include "gello/ocl/Collection.h"

namespace gello {

/// A collection without duplicates; every operation answers a new collection.
class GELLO_API TOCLSet : public TOCLCollection, public virtual IOCLSet {
 public:
  /// A Set of model class AClass (System Set(T) when nil).
  explicit TOCLSet(const Ref<IRTTIClass>& AClass = nullptr, bool InMemory = true);
  using IOCLSet::intersection;
  using IOCLSet::union_;
  using TOCLAny::_EQ_;
  using TOCLAny::_NE_;

  Ref<TOCLCollection> Clone() const override;
  String GetasString() const override { return ListText(u"Set{"); }
  /// One-directional on purpose: every element of the receiver is in the other Set.
  bool isEqual(IOCLAny* Other) const override;

  Ref<IOCLSet> _COLLECTOP_select(IOCLBoolean* e) const override;
  Ref<IOCLSet> _COLLECTOP_reject(IOCLBoolean* e) const override;
  Ref<IOCLSet> including(IOCLAny* e) const override;
  Ref<IOCLSet> excluding(IOCLAny* e) const override;
  Ref<IOCLSet> flatten() const override;
  Ref<IOCLBag> union_(IOCLBag* b) const override;
  Ref<IOCLSet> union_(IOCLSet* s) const override;
  Ref<IOCLBag> intersection(IOCLBag* b) const override;
  Ref<IOCLSet> intersection(IOCLSet* s) const override;
  Ref<IOCLSet> symmetricDifference(IOCLSet* s) const override;
  Ref<IOCLBag> _COLLECTOP_collect(IOCLAny* e) const override;
  Ref<IOCLSet> _SUBTRACT_(IOCLSet* s) const override;
  /// `union` by the argument's run-time kind: a Bag gives a Bag, a Set a Set.
  Ref<IOCLCollection> union_(IOCLCollection* c) const;
  /// `intersection` by the argument's run-time kind.
  Ref<IOCLCollection> intersection(IOCLCollection* c) const;

 private:
  /// An empty Bag of class "Bag(" + element class + ")".
  Ref<TOCLCollection> NewBag() const;
};

}  // namespace gello
