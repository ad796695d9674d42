#pragma once
// Navigation nodes: calls, property references and the iterate/select family of collections.
#include "gello/expr/Value.h"
#include "gello/foundation/Export.h"

namespace gello {

/// A call of a method on the value of classref (nil: a call without explicit receiver).
class GELLO_API TRTTIMethodCall : public TRTTIValue {
 public:
  static constexpr TRTTINodeKind Kind = TRTTINodeKind::MethodCall;
  explicit TRTTIMethodCall(String Name) : TRTTIValue(std::move(Name)) {}
  TRTTIMethodCall(const String& Name, const Ref<IRTTIClass>& ResultType,
                  const Ref<IRTTIValue>& ClassRef, const Ref<IRTTIElementList>& Params,
                  const Ref<IRTTIMethod>& MethodRef);
  ~TRTTIMethodCall() override;

  TRTTINodeKind GetNodeKind() const override { return Kind; }
  const Ref<IRTTIValue>& Getclassref() const { return Fclassref; }
  void Setclassref(const Ref<IRTTIValue>& Value) { Fclassref = Value; }
  const Ref<IRTTIElementList>& Getparams() const { return Fparams; }
  void Setparams(const Ref<IRTTIElementList>& Value) { Fparams = Value; }
  /// The bound method; files do not keep it, so a call read back is bound by its name.
  const Ref<IRTTIMethod>& Getmethodref() const { return Fmethodref; }
  void Setmethodref(const Ref<IRTTIMethod>& Value) { Fmethodref = Value; }

  void Resolve(IRTTIScope* Scope) override;
  void Clear() override;

 private:
  Ref<IRTTIValue> Fclassref;
  Ref<IRTTIElementList> Fparams;
  Ref<IRTTIMethod> Fmethodref;
};

/// A reference to the property of that name on the value of classref.
class GELLO_API TRTTIPropertyRef : public TRTTIValue {
 public:
  static constexpr TRTTINodeKind Kind = TRTTINodeKind::PropertyRef;
  explicit TRTTIPropertyRef(String Name) : TRTTIValue(std::move(Name)) {}
  TRTTIPropertyRef(const String& Name, const Ref<IRTTIClass>& ResultType,
                   const Ref<IRTTIValue>& ClassRef);
  ~TRTTIPropertyRef() override;

  TRTTINodeKind GetNodeKind() const override { return Kind; }
  const Ref<IRTTIValue>& Getclassref() const { return Fclassref; }
  void Setclassref(const Ref<IRTTIValue>& Value) { Fclassref = Value; }

  void Resolve(IRTTIScope* Scope) override;
  void Clear() override;

 private:
  Ref<IRTTIValue> Fclassref;
};

/// A collection operation with an iterator variable and, for iterate, an accumulator.
class GELLO_API TRTTICollectionMethod : public TRTTIValue {
 public:
  static constexpr TRTTINodeKind Kind = TRTTINodeKind::CollectionMethod;
  explicit TRTTICollectionMethod(String Name) : TRTTIValue(std::move(Name)) {}
  TRTTICollectionMethod(const String& Name, const Ref<IRTTIClass>& ResultType,
                        const Ref<IRTTIValue>& ClassRef, const Ref<IRTTIProperty>& Iterator,
                        const Ref<IRTTIProperty>& Accum, const Ref<IRTTIElementList>& Params);
  ~TRTTICollectionMethod() override;

  TRTTINodeKind GetNodeKind() const override { return Kind; }
  const Ref<IRTTIValue>& Getclassref() const { return Fclassref; }
  void Setclassref(const Ref<IRTTIValue>& Value) { Fclassref = Value; }
  const Ref<IRTTIProperty>& Getiterator() const { return Fiterator; }
  void Setiterator(const Ref<IRTTIProperty>& Value) { Fiterator = Value; }
  /// The accumulator of an iterate; its initial value is the property's value.
  const Ref<IRTTIProperty>& Getaccum() const { return Faccum; }
  void Setaccum(const Ref<IRTTIProperty>& Value) { Faccum = Value; }
  /// The body expression or expressions.
  const Ref<IRTTIElementList>& Getparams() const { return Fparams; }
  void Setparams(const Ref<IRTTIElementList>& Value) { Fparams = Value; }

  void Resolve(IRTTIScope* Scope) override;
  void Clear() override;

 private:
  Ref<IRTTIValue> Fclassref;
  Ref<IRTTIProperty> Fiterator;
  Ref<IRTTIProperty> Faccum;
  Ref<IRTTIElementList> Fparams;
};

}  // namespace gello
