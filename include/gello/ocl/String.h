#pragma once
// Text values: UTF-16 code units, 1-based positions; every operation answers a new value.
#include "gello/foundation/Export.h"
#include "gello/ocl/Any.h"

namespace gello {

/// A String value holding its text in FasString.
class GELLO_API TOCLString : public TOCLAny, public virtual IOCLString {
 public:
  explicit TOCLString(String Value = String()) : FasString(std::move(Value)) {}
  /// A String of a model class; it starts empty.
  explicit TOCLString(const Ref<IRTTIClass>& AClass) : TOCLAny(AClass) {}
  explicit TOCLString(const TUndefined& Reason) : TOCLAny(Reason) {}
  using TOCLAny::_EQ_;
  using TOCLAny::_NE_;

  String GetasString() const override { return FasString; }
  void SetasString(const String& Value) override { FasString = Value; }
  /// The text in single quotes, inner quotes doubled.
  String GetasToken() const override;
  /// Reads a quoted token back; a text without a leading quote is taken as it stands.
  void SetasToken(const String& Value) override;
  TJSON GetasCompactJSON() const override;
  TJSON GetasJSON() const override;
  void SetasCompactJSON(const TJSON& Value) override;
  void SetasJSON(const TJSON& Value) override;
  Ref<IRTTIClass> GetInstanceType() const override;
  bool isEqual(IOCLAny* Other) const override;
  /// Ordinal order of the code units; raises for a value that is not a String.
  bool _LessThan(IOCLAny* Other) const override;

  Ref<IOCLString> concat(IOCLString* rhs) const override;
  Ref<IOCLString> lpad(IOCLInteger* size, IOCLString* padChar) const override;
  Ref<IOCLString> ltrim(IOCLString* trimChars) const override;
  Ref<IOCLString> replace(IOCLString* replaceThis, IOCLString* withThis) const override;
  Ref<IOCLString> rpad(IOCLInteger* size, IOCLString* padChar) const override;
  Ref<IOCLString> rtrim(IOCLString* trimChars) const override;
  Ref<IOCLInteger> size() const override;
  Ref<IOCLString> substring(IOCLInteger* lower, IOCLInteger* upper) const override;
  /// Raises EConvertError for text that is not a 32-bit integer.
  Ref<IOCLInteger> toInteger() const override;
  Ref<IOCLString> toLower() const override;
  Ref<IOCLReal> toReal() const override;
  Ref<IOCLString> toUpper() const override;
  Ref<IOCLBoolean> _EQ_(IOCLString* rhs) const override;
  Ref<IOCLBoolean> _NE_(IOCLString* rhs) const override;

 private:
  String FasString;
};

/// A String that is never defined; otherwise it behaves as the text it holds.
class GELLO_API TOCLNullString : public TOCLString {
 public:
  using TOCLString::TOCLString;
  bool IsDefined() const override { return false; }
};

}  // namespace gello
