#pragma once
// Sequences: insertion order, duplicates allowed, 1-based positions.
#include "gello/foundation/Export.h"
#include "gello/ocl/Collection.h"

namespace gello {

/// An ordered collection; every operation answers a new Sequence.
class GELLO_API TOCLSequence : public TOCLCollection, public virtual IOCLSequence {
 public:
  /// A Sequence of model class AClass (System Sequence(T) when nil).
  explicit TOCLSequence(const Ref<IRTTIClass>& AClass = nullptr, bool InMemory = true);
  using TOCLAny::_EQ_;
  using TOCLAny::_NE_;

  Ref<TOCLCollection> Clone() const override;
  String GetasString() const override { return ListText(u"Sequence{"); }
  /// Equal to another Sequence whose elements are pairwise equal, in step.
  bool isEqual(IOCLAny* Other) const override;

  Ref<IOCLSequence> append(IOCLAny* o) const override;
  Ref<IOCLSequence> prepend(IOCLAny* o) const override;
  /// The element at position i; nil outside 1..size.
  Ref<IOCLAny> at(IOCLInteger* i) const override;
  Ref<IOCLSequence> subSequence(IOCLInteger* lower, IOCLInteger* upper) const override;
  Ref<IOCLSequence> excluding(IOCLAny* e) const override;
  Ref<IOCLAny> first() const override;
  Ref<IOCLAny> last() const override;
  /// Nested collections expanded at every depth, in order.
  Ref<IOCLSequence> flatten() const override;
  Ref<IOCLSequence> including(IOCLAny* e) const override;
  Ref<IOCLInteger> indexOf(IOCLAny* o) const override;
  Ref<IOCLSequence> insertAt(IOCLInteger* i, IOCLAny* o) const override;
  Ref<IOCLSequence> reverse() const override;
  Ref<IOCLSequence> union_(IOCLSequence* b) const override;
  Ref<IOCLSequence> _COLLECTOP_collect(IOCLAny* e) const override;
  Ref<IOCLSequence> _COLLECTOP_reject(IOCLBoolean* e) const override;
  Ref<IOCLSequence> _COLLECTOP_select(IOCLBoolean* e) const override;

 private:
  Ref<IOCLSequence> Empty() const;
  /// A copy holding the elements at 0-based positions [From, To).
  Ref<IOCLSequence> Slice(std::int64_t From, std::int64_t To) const;
};

/// Appends to Into the elements of c, expanding nested collections at every depth.
GELLO_API void AddFlattened(TOCLCollection& Into, IOCLCollection* c, bool Distinct);

}  // namespace gello
