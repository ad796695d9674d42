#pragma once
// Instances of the primitive kinds: each holds one value and renders it as text, token and JSON.
#include <cstdint>
#include "gello/foundation/Export.h"
#include "gello/foundation/Extended.h"
#include "gello/instance/Instance.h"

namespace gello {

/// A String cell; its token is the text in single quotes, embedded quotes doubled.
class GELLO_API TRTTIStringData : public TRTTIClassInstance {
 public:
  using TRTTIClassInstance::TRTTIClassInstance;
  String GetasString() const override { return FValue; }
  void SetasString(const String& Value) override { FValue = Value; }
  String GetasToken() const override;
  void SetasToken(const String& Value) override;

 protected:
  bool HasValue() const override { return true; }
  TJSON ValueJSON(bool Compact) const override;

 private:
  String FValue;
};

/// An Integer cell (64-bit).
class GELLO_API TRTTIIntegerData : public TRTTIClassInstance {
 public:
  using TRTTIClassInstance::TRTTIClassInstance;
  String GetasString() const override { return IntToStr(FValue); }
  /// Raises EConvertError when the text is not a 64-bit integer.
  void SetasString(const String& Value) override;
  std::int64_t GetValue() const { return FValue; }

 protected:
  bool HasValue() const override { return true; }
  TJSON ValueJSON(bool Compact) const override;

 private:
  std::int64_t FValue = 0;
};

/// A Real cell (80-bit); "NAN", "INF" and "-INF" are read and written.
class GELLO_API TRTTIRealData : public TRTTIClassInstance {
 public:
  using TRTTIClassInstance::TRTTIClassInstance;
  String GetasString() const override;
  void SetasString(const String& Value) override;
  Extended GetValue() const { return FValue; }

 protected:
  bool HasValue() const override { return true; }
  TJSON ValueJSON(bool Compact) const override;

 private:
  Extended FValue = 0;
};

/// A three-valued Boolean cell.
class GELLO_API TRTTIBooleanData : public TRTTIClassInstance {
 public:
  using TRTTIClassInstance::TRTTIClassInstance;
  String GetasString() const override { return ExtendedBooleanToString(FValue); }
  void SetasString(const String& Value) override;
  TRTTIExtendedBoolean GetValue() const { return FValue; }

 protected:
  bool HasValue() const override { return true; }
  TJSON ValueJSON(bool Compact) const override;

 private:
  TRTTIExtendedBoolean FValue = rtti_false;
};

}  // namespace gello
