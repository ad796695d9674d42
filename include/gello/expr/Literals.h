#pragma once
// Constant nodes with a text form: what the model files store and printers show.
#include <cstdint>
#include "gello/foundation/Export.h"

#include "gello/expr/Value.h"

namespace gello {

/// A constant value node; its text form is GetasString / SetasString.
class GELLO_API TRTTILiteral : public TRTTIValue, public virtual IRTTILiteral {
 public:
  static constexpr TRTTINodeKind Kind = TRTTINodeKind::Literal;
  static constexpr TNodeKindRange Kinds{Kind, TRTTINodeKind::ClassLiteral};
  using TRTTIValue::TRTTIValue;
  TRTTINodeKind GetNodeKind() const override { return Kind; }
};

/// A constant kept as its text, unchanged; read for the plain kind "Literal".
class GELLO_API TRTTITextLiteral : public TRTTILiteral {
 public:
  using TRTTILiteral::TRTTILiteral;
  TRTTITextLiteral(const Ref<IRTTIClass>& Class, const String& Text);
  String GetasString() const override { return FText; }
  void SetasString(const String& Value) override { FText = Value; }

 private:
  String FText;
};

/// A string constant.
class GELLO_API TRTTIStringLiteral : public TRTTITextLiteral {
 public:
  static constexpr TRTTINodeKind Kind = TRTTINodeKind::StringLiteral;
  using TRTTITextLiteral::TRTTITextLiteral;
  TRTTINodeKind GetNodeKind() const override { return Kind; }
};

/// A 64-bit integer constant whose text is read back as a 32-bit integer.
class GELLO_API TRTTIIntegerLiteral : public TRTTILiteral {
 public:
  static constexpr TRTTINodeKind Kind = TRTTINodeKind::IntegerLiteral;
  explicit TRTTIIntegerLiteral(String Name) : TRTTILiteral(std::move(Name)) {}
  TRTTIIntegerLiteral(const Ref<IRTTIClass>& Class, std::int64_t Value);
  TRTTINodeKind GetNodeKind() const override { return Kind; }
  std::int64_t GetValue() const { return FValue; }
  String GetasString() const override { return IntToStr(FValue); }
  /// Raises EConvertError for text that is not a 32-bit decimal integer; the value is kept.
  void SetasString(const String& Value) override;

 private:
  std::int64_t FValue = 0;
};

/// A real constant held as a 64-bit float; its text goes through the engine's real form.
class GELLO_API TRTTIRealLiteral : public TRTTILiteral {
 public:
  static constexpr TRTTINodeKind Kind = TRTTINodeKind::RealLiteral;
  explicit TRTTIRealLiteral(String Name) : TRTTILiteral(std::move(Name)) {}
  TRTTIRealLiteral(const Ref<IRTTIClass>& Class, double Value);
  TRTTINodeKind GetNodeKind() const override { return Kind; }
  double GetValue() const { return FValue; }
  String GetasString() const override;
  void SetasString(const String& Value) override;

 private:
  double FValue = 0;
};

/// A three-valued boolean constant.
class GELLO_API TRTTIBooleanLiteral : public TRTTILiteral {
 public:
  static constexpr TRTTINodeKind Kind = TRTTINodeKind::BooleanLiteral;
  explicit TRTTIBooleanLiteral(String Name) : TRTTILiteral(std::move(Name)) {}
  TRTTIBooleanLiteral(const Ref<IRTTIClass>& Class, TRTTIExtendedBoolean Value);
  /// A plain boolean keeps its ordinal: false is rtti_false, true is rtti_true.
  TRTTIBooleanLiteral(const Ref<IRTTIClass>& Class, bool Value);
  TRTTINodeKind GetNodeKind() const override { return Kind; }
  TRTTIExtendedBoolean GetValue() const { return FValue; }
  String GetasString() const override { return ExtendedBooleanToString(FValue); }
  void SetasString(const String& Value) override { FValue = StringToExtendedBoolean(Value); }

 private:
  TRTTIExtendedBoolean FValue = rtti_false;
};

/// The null constant: always "null", whatever text it is given.
class GELLO_API TRTTINullLiteral : public TRTTILiteral {
 public:
  static constexpr TRTTINodeKind Kind = TRTTINodeKind::NullLiteral;
  explicit TRTTINullLiteral(String Name) : TRTTILiteral(std::move(Name)) {}
  explicit TRTTINullLiteral(const Ref<IRTTIClass>& Class) : TRTTILiteral(Class) {}
  TRTTINodeKind GetNodeKind() const override { return Kind; }
  String GetasString() const override { return u"null"; }
  void SetasString(const String&) override {}
};

/// A constant that denotes a class by its name.
class GELLO_API TRTTIClassLiteral : public TRTTITextLiteral {
 public:
  static constexpr TRTTINodeKind Kind = TRTTINodeKind::ClassLiteral;
  using TRTTITextLiteral::TRTTITextLiteral;
  TRTTINodeKind GetNodeKind() const override { return Kind; }
};

/// A literal of an enumeration: its text is its name, its ordinal its position.
class GELLO_API TRTTIEnumLiteral : public TRTTILiteral {
 public:
  static constexpr TRTTINodeKind Kind = TRTTINodeKind::EnumLiteral;
  explicit TRTTIEnumLiteral(String Name) : TRTTILiteral(std::move(Name)) {}
  TRTTIEnumLiteral(const String& Name, const Ref<IRTTIClass>& Class, std::int32_t Ordinal);
  TRTTINodeKind GetNodeKind() const override { return Kind; }
  std::int32_t GetOrdinal() const { return FOrdinal; }
  String GetasString() const override { return GetName(); }
  /// Names the literal; names are write-once.
  void SetasString(const String& Value) override { SetName(Value); }

 private:
  std::int32_t FOrdinal = 0;
};

}  // namespace gello
