#pragma once
// The common base of Sequence, Set and Bag: elements held in memory, or drawn from external data
// through a fast iterator that a subclass supplies.
#include <functional>
#include "gello/foundation/Export.h"
#include "gello/ocl/Elements.h"
#include "gello/ocl/MemInstance.h"

namespace gello {

/// Membership, counting, sorting and element access, written against the fast iterator so
/// that they serve held and external elements alike; held elements are indexed by value.
class GELLO_API TOCLCollection : public TOCLMemInstance, public virtual IOCLCollection {
 public:
  /// A collection of model class AClass; InMemory false means a subclass supplies the data.
  explicit TOCLCollection(const Ref<IRTTIClass>& AClass = nullptr, bool InMemory = true)
      : TOCLMemInstance(AClass, InMemory) {}
  using TOCLAny::_EQ_;
  using TOCLAny::_NE_;

  /// A new, empty, in-memory collection of the same kind and model class.
  virtual Ref<TOCLCollection> Clone() const;
  /// Calls Visit with every element in order, until it answers true; answers whether it did.
  bool AnyElement(const std::function<bool(const Ref<IOCLAny>&)>& Visit) const;
  /// The held elements; nil for external data.
  const TElements* Held() const { return GetInMemory() ? &FElements : nullptr; }
  /// Appends every element of c (a nil c has none).
  void AddAll(IOCLCollection* c);
  /// Appends the elements of c for which Keep answers true.
  void AddWhere(IOCLCollection* c, const std::function<bool(const Ref<IOCLAny>&)>& Keep);

  /// The Any object with ".value": the elements' JSON in order, null for a nil element.
  TJSON GetasJSON() const override;
  /// The elements' compact JSON in order, as a bare array.
  TJSON GetasCompactJSON() const override;
  String GetasString() const override;
  /// Raises: collections of the base kind cannot be compared.
  bool isEqual(IOCLAny* Other) const override;

  void Add(const Ref<IOCLAny>& Value) override;
  Ref<IOCLBoolean> excludes(IOCLAny* o) const override;
  Ref<IOCLBoolean> excludesAll(IOCLCollection* c) const override;
  bool Exists(IOCLAny* o) const override;
  Ref<IFastIterator> FastIterator() override;
  Ref<IOCLBoolean> includes(IOCLAny* o) const override;
  Ref<IOCLBoolean> includesAll(IOCLCollection* c) const override;
  Ref<IOCLBoolean> _COLLECTOP_exists(IOCLBoolean* e) const override;
  Ref<IOCLBoolean> _COLLECTOP_forAll(IOCLBoolean* e) const override;
  int GetCount() const override;
  Ref<IOCLAny> GetItems(int Index) const override;
  Ref<IOCLBoolean> isEmpty() const override;
  void iterate(Ref<IOCLAny>& element, Ref<IOCLAny>& accumulator, std::int32_t thunk_addr,
               IGelloVM* vm) override;
  Ref<IOCLIterator> Iterator(IOCLBoolean* stable) override;
  Ref<IOCLBoolean> notEmpty() const override;
  void SetCount(int Value) override;
  void SetItems(int Index, const Ref<IOCLAny>& Value) override;
  Ref<IOCLInteger> size() const override;
  Ref<IOCLSequence> sort() const override;
  /// The elements added by their own _ADD_; undefined for an empty collection.
  Ref<IOCLAny> sum() const override;
  Ref<IOCLSequence> _COLLECTOP_sortedBy(IOCLAny* e) const override;
  Ref<IOCLInteger> _count_(IOCLAny* o) const override;
  Ref<IOCLBoolean> _EQ_(IOCLCollection* o) const override;
  Ref<IOCLBoolean> _NE_(IOCLCollection* o) const override;
  void InternalSort() override;

 protected:
  /// Clone with every element of the receiver; held elements are shared, not copied.
  Ref<TOCLCollection> Copy() const;
  /// Clone with the receiver's elements that are not equal to e (nil elements stay).
  Ref<TOCLCollection> Without(IOCLAny* e) const;
  /// Opening + the elements' texts separated by "," (at most 21, then "...") + "}".
  String ListText(const String& Opening) const;
  /// A new fast iterator; external data needs the subclass's own.
  Ref<IFastIterator> Walk() const;

 private:
  TJSON ElementsJSON(bool Compact) const;

  TElements FElements;
};

/// Calls Visit with every element of c in order until it answers true (a nil c has none).
GELLO_API bool AnyElementOf(IOCLCollection* c,
                            const std::function<bool(const Ref<IOCLAny>&)>& Visit);

}  // namespace gello
