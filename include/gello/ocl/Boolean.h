#pragma once
// Three-valued Booleans. Results are always one of four shared objects: false, true, unknown
// and an undefined Boolean; no Boolean operation allocates.
#include "gello/foundation/Export.h"
#include "gello/ocl/Any.h"

namespace gello {

/// An abstract Boolean: it reads its state through the extended-boolean accessors.
class GELLO_API TOCLBoolean : public TOCLAny, public virtual IOCLBoolean {
 public:
  using TOCLAny::_EQ_;
  using TOCLAny::_NE_;
  using TOCLAny::TOCLAny;

  /// The shared true or false.
  static Ref<IOCLBoolean> BooleanValue(bool Value) noexcept;
  /// The shared false, true or unknown; nil for any other ordinal.
  static Ref<IOCLBoolean> BooleanValue(TRTTIExtendedBoolean Value) noexcept;
  /// The shared undefined Boolean.
  static Ref<IOCLBoolean> UndefinedBoolean() noexcept;

  TJSON GetasCompactJSON() const override;
  TJSON GetasJSON() const override;
  /// Reads back what GetasCompactJSON and GetasJSON write; other JSON leaves the value as it is.
  void SetasCompactJSON(const TJSON& Value) override;
  void SetasJSON(const TJSON& Value) override;
  String GetasString() const override;
  void SetasString(const String& Value) override;
  Ref<IRTTIClass> GetInstanceType() const override;
  bool isEqual(IOCLAny* Other) const override;

  bool GetasBoolean() const override;
  Ref<IOCLString> asOCLString() const override;
  Ref<IOCLBoolean> implies(IOCLBoolean* rhs) const override;
  void SetasBoolean(bool Value) override { SetasExtendedBoolean(Value ? rtti_true : rtti_false); }
  Ref<IOCLBoolean> _AND_(IOCLBoolean* rhs) const override;
  Ref<IOCLBoolean> _EQ_(IOCLBoolean* rhs) const override;
  Ref<IOCLBoolean> _NE_(IOCLBoolean* rhs) const override;
  Ref<IOCLBoolean> _NOT_() const override;
  Ref<IOCLBoolean> _OR_(IOCLBoolean* rhs) const override;
  Ref<IOCLBoolean> _XOR_(IOCLBoolean* rhs) const override;

 private:
  Ref<IOCLBoolean> LookUp(const TRTTIExtendedBoolean (&Table)[9], IOCLBoolean* rhs) const;
};

/// A Boolean that holds its value. The shared ones cannot change: every result of the Boolean
/// operations is one of them.
class GELLO_API TOCLBooleanValue : public TOCLBoolean {
 public:
  /// Selects the constructor of the shared, read-only values.
  struct TShared {};
  explicit TOCLBooleanValue(TRTTIExtendedBoolean Value) : FasExtendedBoolean(Value) {}
  explicit TOCLBooleanValue(bool Value) : FasExtendedBoolean(Value ? rtti_true : rtti_false) {}
  /// A Boolean of a model class; it starts false.
  explicit TOCLBooleanValue(const Ref<IRTTIClass>& AClass) : TOCLBoolean(AClass) {}
  /// An undefined Boolean; its value reads as unknown.
  explicit TOCLBooleanValue(const TUndefined& Reason)
      : TOCLBoolean(Reason), FasExtendedBoolean(rtti_unknown) {}
  TOCLBooleanValue(TShared, TRTTIExtendedBoolean Value)
      : FasExtendedBoolean(Value), FReadOnly(true) {}
  TOCLBooleanValue(TShared, const TUndefined& Reason)
      : TOCLBoolean(Reason), FasExtendedBoolean(rtti_unknown), FReadOnly(true) {}

  TRTTIExtendedBoolean GetasExtendedBoolean() const override { return FasExtendedBoolean; }
  /// Raises on a shared value.
  void SetasExtendedBoolean(TRTTIExtendedBoolean Value) override;

 private:
  TRTTIExtendedBoolean FasExtendedBoolean = rtti_false;
  bool FReadOnly = false;
};

}  // namespace gello
