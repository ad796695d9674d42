#pragma once
// The OCL value interfaces. Each declares its own operations in slot order: the class registry
// describes them by that order, so it must not change.
#include <cstdint>
#include "gello/foundation/Export.h"
#include "gello/foundation/Extended.h"
#include "gello/model/ClassInstance.h"

namespace gello {

class TInternalOCLException;
struct IOCLT;
struct IOCLString;
struct IOCLBoolean;
struct IOCLReal;
struct IOCLInteger;
struct IOCLCollection;
struct IOCLSequence;
struct IOCLSet;
struct IOCLBag;
struct IOCLIterator;
struct IFastIterator;
struct IGelloVM;

/// Every OCL value: identity, equality, the ocl* type operations and the undefined state.
struct GELLO_API IOCLAny : virtual IRTTIClassInstance {
  static constexpr GUID IID = GUIDLiteral("{B5E1C99E-08A7-4812-9229-EC4170B75A10}");
  virtual Ref<IOCLSet> allInstances() const = 0;
  virtual String Display() const = 0;
  virtual const TInternalOCLException* GetExceptions() const = 0;
  virtual String GetExceptionMessage() const = 0;
  virtual bool isEqual(IOCLAny* Other) const = 0;
  virtual bool GetunDefined() const = 0;
  virtual bool _LessThan(IOCLAny* Other) const = 0;
  virtual Ref<IOCLT> oclAsType(IOCLT* t) const = 0;
  virtual Ref<IOCLBoolean> oclIsDefined() const = 0;
  virtual Ref<IOCLBoolean> oclIsInState(IOCLString* statename) const = 0;
  virtual Ref<IOCLBoolean> oclIsKindOf(IOCLT* baseType) const = 0;
  virtual Ref<IOCLT> oclType() const = 0;
  virtual Ref<IOCLBoolean> _EQ_(IOCLAny* o) const = 0;
  virtual Ref<IOCLBoolean> _NE_(IOCLAny* o) const = 0;
};

/// A model type used as a value.
struct GELLO_API IOCLT : virtual IOCLAny {
  static constexpr GUID IID = GUIDLiteral("{17C083D6-326B-4D40-84B5-F5F6F7C6D685}");
  virtual Ref<IRTTIClass> GetOCLClassType() const = 0;
  virtual void SetOCLClassType(const Ref<IRTTIClass>& Value) = 0;
};

/// A text value.
struct GELLO_API IOCLString : virtual IOCLAny {
  static constexpr GUID IID = GUIDLiteral("{A668974E-1CF9-4049-B99A-F0D64C532425}");
  using IOCLAny::_EQ_;
  using IOCLAny::_NE_;
  virtual Ref<IOCLString> concat(IOCLString* rhs) const = 0;
  // GetasString: slot 2, shared with IRTTIClassInstance.
  virtual Ref<IOCLString> lpad(IOCLInteger* size, IOCLString* padChar) const = 0;
  virtual Ref<IOCLString> ltrim(IOCLString* trimChars) const = 0;
  virtual Ref<IOCLString> replace(IOCLString* replaceThis, IOCLString* withThis) const = 0;
  virtual Ref<IOCLString> rpad(IOCLInteger* size, IOCLString* padChar) const = 0;
  virtual Ref<IOCLString> rtrim(IOCLString* trimChars) const = 0;
  // SetasString: slot 8, shared with IRTTIClassInstance.
  virtual Ref<IOCLInteger> size() const = 0;
  virtual Ref<IOCLString> substring(IOCLInteger* lower, IOCLInteger* upper) const = 0;
  virtual Ref<IOCLInteger> toInteger() const = 0;
  virtual Ref<IOCLString> toLower() const = 0;
  virtual Ref<IOCLReal> toReal() const = 0;
  virtual Ref<IOCLString> toUpper() const = 0;
  virtual Ref<IOCLBoolean> _EQ_(IOCLString* rhs) const = 0;
  virtual Ref<IOCLBoolean> _NE_(IOCLString* rhs) const = 0;
};

/// A three-valued Boolean; every Boolean result is one of the four shared objects.
struct GELLO_API IOCLBoolean : virtual IOCLAny {
  static constexpr GUID IID = GUIDLiteral("{263CF0CD-7B93-4516-AF0D-281CF98DE623}");
  using IOCLAny::_EQ_;
  using IOCLAny::_NE_;
  virtual bool GetasBoolean() const = 0;
  virtual TRTTIExtendedBoolean GetasExtendedBoolean() const = 0;
  virtual Ref<IOCLString> asOCLString() const = 0;
  virtual Ref<IOCLBoolean> implies(IOCLBoolean* rhs) const = 0;
  virtual void SetasBoolean(bool Value) = 0;
  virtual void SetasExtendedBoolean(TRTTIExtendedBoolean Value) = 0;
  virtual Ref<IOCLBoolean> _AND_(IOCLBoolean* rhs) const = 0;
  virtual Ref<IOCLBoolean> _EQ_(IOCLBoolean* rhs) const = 0;
  virtual Ref<IOCLBoolean> _NE_(IOCLBoolean* rhs) const = 0;
  virtual Ref<IOCLBoolean> _NOT_() const = 0;
  virtual Ref<IOCLBoolean> _OR_(IOCLBoolean* rhs) const = 0;
  virtual Ref<IOCLBoolean> _XOR_(IOCLBoolean* rhs) const = 0;
};

/// An 80-bit real number.
struct GELLO_API IOCLReal : virtual IOCLAny {
  static constexpr GUID IID = GUIDLiteral("{2C40B6D1-3FDE-480F-AD7B-DE1758E006FC}");
  using IOCLAny::_EQ_;
  using IOCLAny::_NE_;
  virtual Ref<IOCLReal> abs() const = 0;
  virtual Ref<IOCLInteger> ceiling() const = 0;
  virtual Ref<IOCLInteger> floor() const = 0;
  virtual Extended GetasExtended() const = 0;
  virtual Ref<IOCLReal> inverted() const = 0;
  virtual Ref<IOCLReal> max(IOCLReal* rhs) const = 0;
  virtual Ref<IOCLReal> min(IOCLReal* rhs) const = 0;
  virtual Ref<IOCLReal> power(IOCLReal* rhs) const = 0;
  virtual Ref<IOCLInteger> round() const = 0;
  virtual void SetasExtended(Extended Value) = 0;
  virtual Ref<IOCLString> toChar() const = 0;
  virtual Ref<IOCLString> toCharFormat(IOCLInteger* decimalPlaces) const = 0;
  virtual Ref<IOCLReal> _ADD_(IOCLReal* rhs) const = 0;
  virtual Ref<IOCLReal> _DIVIDE_(IOCLReal* rhs) const = 0;
  virtual Ref<IOCLBoolean> _EQ_(IOCLReal* rhs) const = 0;
  virtual Ref<IOCLBoolean> _GE_(IOCLReal* rhs) const = 0;
  virtual Ref<IOCLBoolean> _GT_(IOCLReal* rhs) const = 0;
  virtual Ref<IOCLBoolean> _LE_(IOCLReal* rhs) const = 0;
  virtual Ref<IOCLBoolean> _LT_(IOCLReal* rhs) const = 0;
  virtual Ref<IOCLReal> _MULTIPLY_(IOCLReal* rhs) const = 0;
  virtual Ref<IOCLReal> _NEGATE_() const = 0;
  virtual Ref<IOCLBoolean> _NE_(IOCLReal* rhs) const = 0;
  virtual Ref<IOCLReal> _SUBTRACT_(IOCLReal* rhs) const = 0;
};

/// A whole number; usable wherever a Real is.
/// Slots 1 `abs`, 6 `toChar` and 11 `_NEGATE_` take no argument, so C++ cannot declare them
/// again with an Integer result: they are the Real ones, which on an Integer answer an Integer.
struct GELLO_API IOCLInteger : virtual IOCLReal {
  static constexpr GUID IID = GUIDLiteral("{7BA8AA21-21C8-44A8-B1FA-E708342353CD}");
  using IOCLReal::_ADD_;
  using IOCLReal::_MULTIPLY_;
  using IOCLReal::_SUBTRACT_;
  using IOCLReal::max;
  using IOCLReal::min;
  virtual std::int64_t GetasInt64() const = 0;
  virtual Ref<IOCLInteger> max(IOCLInteger* rhs) const = 0;
  virtual Ref<IOCLInteger> min(IOCLInteger* rhs) const = 0;
  virtual void SetasInt64(std::int64_t Value) = 0;
  virtual Ref<IOCLInteger> _ADD_(IOCLInteger* rhs) const = 0;
  virtual Ref<IOCLInteger> _DIV_(IOCLInteger* rhs) const = 0;
  virtual Ref<IOCLInteger> _MOD_(IOCLInteger* rhs) const = 0;
  virtual Ref<IOCLInteger> _MULTIPLY_(IOCLInteger* rhs) const = 0;
  virtual Ref<IOCLInteger> _SUBTRACT_(IOCLInteger* rhs) const = 0;
};

/// The common operations of Sequence, Set and Bag.
struct GELLO_API IOCLCollection : virtual IOCLAny {
  static constexpr GUID IID = GUIDLiteral("{B0A38DD6-FFC9-47DD-A621-86B2810AA01F}");
  using IOCLAny::_EQ_;
  using IOCLAny::_NE_;
  virtual void Add(const Ref<IOCLAny>& Value) = 0;
  virtual Ref<IOCLBoolean> excludes(IOCLAny* o) const = 0;
  virtual Ref<IOCLBoolean> excludesAll(IOCLCollection* c) const = 0;
  virtual bool Exists(IOCLAny* o) const = 0;
  virtual Ref<IFastIterator> FastIterator() = 0;
  virtual Ref<IOCLBoolean> includes(IOCLAny* o) const = 0;
  virtual Ref<IOCLBoolean> includesAll(IOCLCollection* c) const = 0;
  virtual Ref<IOCLBoolean> _COLLECTOP_exists(IOCLBoolean* e) const = 0;
  virtual Ref<IOCLBoolean> _COLLECTOP_forAll(IOCLBoolean* e) const = 0;
  virtual int GetCount() const = 0;
  virtual Ref<IOCLAny> GetItems(int Index) const = 0;
  virtual Ref<IOCLBoolean> isEmpty() const = 0;
  virtual void iterate(Ref<IOCLAny>& element, Ref<IOCLAny>& accumulator, std::int32_t thunk_addr,
                       IGelloVM* vm) = 0;
  virtual Ref<IOCLIterator> Iterator(IOCLBoolean* stable) = 0;
  virtual Ref<IOCLBoolean> notEmpty() const = 0;
  virtual void SetCount(int Value) = 0;
  virtual void SetItems(int Index, const Ref<IOCLAny>& Value) = 0;
  virtual Ref<IOCLInteger> size() const = 0;
  virtual Ref<IOCLSequence> sort() const = 0;
  virtual Ref<IOCLAny> sum() const = 0;
  virtual Ref<IOCLSequence> _COLLECTOP_sortedBy(IOCLAny* e) const = 0;
  virtual Ref<IOCLInteger> _count_(IOCLAny* o) const = 0;
  virtual Ref<IOCLBoolean> _EQ_(IOCLCollection* o) const = 0;
  virtual Ref<IOCLBoolean> _NE_(IOCLCollection* o) const = 0;
  virtual void InternalSort() = 0;
  // Items: the indexed property over GetItems and SetItems.
};

/// A value with named fields; they are reached through the instance property operations.
struct GELLO_API IOCLTuple : virtual IOCLAny {
  static constexpr GUID IID = GUIDLiteral("{02CE128E-DD30-4993-873F-3415D36AAB7F}");
};

/// An ordered collection.
struct GELLO_API IOCLSequence : virtual IOCLCollection {
  static constexpr GUID IID = GUIDLiteral("{B4C3D057-B29D-44FD-AE3F-CF325F253C2A}");
  virtual Ref<IOCLSequence> append(IOCLAny* o) const = 0;
  virtual Ref<IOCLSequence> prepend(IOCLAny* o) const = 0;
  /// The element itself (any kind), so `at`, `first` and `last` answer IOCLAny.
  virtual Ref<IOCLAny> at(IOCLInteger* i) const = 0;
  virtual Ref<IOCLSequence> subSequence(IOCLInteger* lower, IOCLInteger* upper) const = 0;
  virtual Ref<IOCLSequence> excluding(IOCLAny* e) const = 0;
  virtual Ref<IOCLAny> first() const = 0;
  virtual Ref<IOCLAny> last() const = 0;
  virtual Ref<IOCLSequence> flatten() const = 0;
  virtual Ref<IOCLSequence> including(IOCLAny* e) const = 0;
  virtual Ref<IOCLInteger> indexOf(IOCLAny* o) const = 0;
  virtual Ref<IOCLSequence> insertAt(IOCLInteger* i, IOCLAny* o) const = 0;
  virtual Ref<IOCLSequence> reverse() const = 0;
  /// `union` (a C++ keyword, hence the trailing underscore).
  virtual Ref<IOCLSequence> union_(IOCLSequence* b) const = 0;
  virtual Ref<IOCLSequence> _COLLECTOP_collect(IOCLAny* e) const = 0;
  virtual Ref<IOCLSequence> _COLLECTOP_reject(IOCLBoolean* e) const = 0;
  virtual Ref<IOCLSequence> _COLLECTOP_select(IOCLBoolean* e) const = 0;
};

/// A collection without duplicates.
struct GELLO_API IOCLSet : virtual IOCLCollection {
  static constexpr GUID IID = GUIDLiteral("{78E7E08A-2156-448F-AA3F-1372AED0585B}");
  virtual Ref<IOCLSet> _COLLECTOP_select(IOCLBoolean* e) const = 0;
  virtual Ref<IOCLSet> _COLLECTOP_reject(IOCLBoolean* e) const = 0;
  virtual Ref<IOCLSet> including(IOCLAny* e) const = 0;
  virtual Ref<IOCLSet> excluding(IOCLAny* e) const = 0;
  virtual Ref<IOCLSet> flatten() const = 0;
  /// `union` (a C++ keyword, hence the trailing underscore), on a Bag and on a Set.
  virtual Ref<IOCLBag> union_(IOCLBag* b) const = 0;
  virtual Ref<IOCLSet> union_(IOCLSet* s) const = 0;
  virtual Ref<IOCLBag> intersection(IOCLBag* b) const = 0;
  virtual Ref<IOCLSet> intersection(IOCLSet* s) const = 0;
  virtual Ref<IOCLSet> symmetricDifference(IOCLSet* s) const = 0;
  virtual Ref<IOCLBag> _COLLECTOP_collect(IOCLAny* e) const = 0;
  virtual Ref<IOCLSet> _SUBTRACT_(IOCLSet* s) const = 0;
};

/// A collection with duplicates and no order.
struct GELLO_API IOCLBag : virtual IOCLCollection {
  static constexpr GUID IID = GUIDLiteral("{C9ACF637-AE06-4CD8-8F7B-D70A8DEE6294}");
  virtual Ref<IOCLBag> excluding(IOCLAny* e) const = 0;
  virtual Ref<IOCLBag> flatten() const = 0;
  virtual Ref<IOCLBag> including(IOCLAny* e) const = 0;
  virtual Ref<IOCLBag> intersection(IOCLSet* s) const = 0;
  virtual Ref<IOCLBag> intersection(IOCLBag* b) const = 0;
  /// `union` (a C++ keyword, hence the trailing underscore), on a Set and on a Bag.
  virtual Ref<IOCLBag> union_(IOCLSet* s) const = 0;
  virtual Ref<IOCLBag> union_(IOCLBag* b) const = 0;
  virtual Ref<IOCLBag> _COLLECTOP_reject(IOCLBoolean* e) const = 0;
  virtual Ref<IOCLBag> _COLLECTOP_select(IOCLBoolean* e) const = 0;
  virtual Ref<IOCLBag> _COLLECTOP_collect(IOCLAny* e) const = 0;
};

/// A cursor over a collection, usable from GELLO.
struct GELLO_API IOCLIterator : virtual IOCLAny {
  static constexpr GUID IID = GUIDLiteral("{AB4A9121-B62A-490D-836F-0624E038C387}");
  virtual bool at_end() const = 0;
  virtual Ref<IOCLAny> get_element() const = 0;
  virtual bool get_next_element(Ref<IOCLAny>& TheElement) = 0;
  virtual Ref<IOCLBoolean> is_stable() const = 0;
  virtual void next_position() = 0;
  virtual void replace_element(const Ref<IOCLAny>& AElement) = 0;
  virtual void reset() = 0;
};

/// A light cursor for the engine's own loops; it starts before the first element.
struct GELLO_API IFastIterator : virtual RefCounted {
  static constexpr GUID IID = GUIDLiteral("{9CB21584-9C7E-4B76-A466-8157C46A3DBB}");
  /// No current element (the cursor does not move).
  virtual bool AtEnd() const = 0;
  virtual Ref<IOCLAny> CurrentElement() const = 0;
  /// The 0-based position of the current element.
  virtual int CurrentPosition() const = 0;
  /// Moves on; true when the cursor has run off the end.
  virtual bool Advance() = 0;
};

/// The evaluator's callback, through which a collection runs a compiled body per element.
struct GELLO_API IGelloVM : virtual RefCounted {
  static constexpr GUID IID = GUIDLiteral("{05ABD57A-254A-4DF7-BF3E-F3F2BFEDE384}");
  /// Evaluates the body at thunk_addr for one element and the running accumulator.
  virtual Ref<IOCLAny> EvaluateBody(std::int32_t thunk_addr, IOCLAny* element,
                                    IOCLAny* accumulator) = 0;
};

}  // namespace gello
