#pragma once
// Bags: duplicates allowed, kept in insertion order.
#include "gello/foundation/Export.h"
#include "gello/ocl/Collection.h"

namespace gello {

/// A collection with duplicates; every operation answers a new Bag. Bags cannot be compared.
class GELLO_API TOCLBag : public TOCLCollection, public virtual IOCLBag {
 public:
  /// A Bag of model class AClass (System Bag(T) when nil).
  explicit TOCLBag(const Ref<IRTTIClass>& AClass = nullptr, bool InMemory = true);
  using IOCLBag::intersection;
  using IOCLBag::union_;
  using TOCLAny::_EQ_;
  using TOCLAny::_NE_;

  Ref<TOCLCollection> Clone() const override;
  String GetasString() const override { return ListText(u"Bag{"); }
  /// Raises: comparing Bags is not supported.
  bool isEqual(IOCLAny* Other) const override;

  Ref<IOCLBag> excluding(IOCLAny* e) const override;
  Ref<IOCLBag> flatten() const override;
  Ref<IOCLBag> including(IOCLAny* e) const override;
  /// The receiver's elements that s contains, each once.
  Ref<IOCLBag> intersection(IOCLSet* s) const override;
  /// Each element as often as it occurs in both (the lower count), in the receiver's order.
  Ref<IOCLBag> intersection(IOCLBag* b) const override;
  Ref<IOCLBag> union_(IOCLSet* s) const override;
  Ref<IOCLBag> union_(IOCLBag* b) const override;
  Ref<IOCLBag> _COLLECTOP_reject(IOCLBoolean* e) const override;
  Ref<IOCLBag> _COLLECTOP_select(IOCLBoolean* e) const override;
  Ref<IOCLBag> _COLLECTOP_collect(IOCLAny* e) const override;
  /// `union` by the argument's run-time kind.
  Ref<IOCLBag> union_(IOCLCollection* c) const;
  /// `intersection` by the argument's run-time kind.
  Ref<IOCLBag> intersection(IOCLCollection* c) const;

 private:
  Ref<IOCLBag> Empty() const;
  Ref<IOCLBag> Joined(IOCLCollection* c) const;
};

}  // namespace gello
