#pragma once
// Control nodes and constructed values: conditional, statement block, tuple, collection, pragma.
#include "gello/expr/Value.h"
#include "gello/foundation/Export.h"

namespace gello {

/// if condition then thenPart else elsePart.
class GELLO_API TRTTIConditional : public TRTTIValue {
 public:
  static constexpr StringView KindName = u"Conditional";
  explicit TRTTIConditional(String Name) : TRTTIValue(std::move(Name)) {}
  TRTTIConditional(const Ref<IRTTIClass>& ResultType, const Ref<IRTTIValue>& Condition,
                   const Ref<IRTTIValue>& ThenPart, const Ref<IRTTIValue>& ElsePart);
  ~TRTTIConditional() override;

  StringView GetKind() const override { return KindName; }
  Ref<IRTTIValue> GetCondition() const { return FCondition; }
  void SetCondition(const Ref<IRTTIValue>& Value) { FCondition = Value; }
  Ref<IRTTIValue> GetThenPart() const { return FThenPart; }
  void SetThenPart(const Ref<IRTTIValue>& Value) { FThenPart = Value; }
  Ref<IRTTIValue> GetElsePart() const { return FElsePart; }
  void SetElsePart(const Ref<IRTTIValue>& Value) { FElsePart = Value; }

  void Resolve(IRTTIScope* Scope) override;
  void Clear() override;

 private:
  Ref<IRTTIValue> FCondition;
  Ref<IRTTIValue> FThenPart;
  Ref<IRTTIValue> FElsePart;
};

/// A block of declarations and the value it returns; resolving needs both.
class GELLO_API TRTTIStatements : public TRTTIValue {
 public:
  static constexpr StringView KindName = u"Statements";
  explicit TRTTIStatements(String Name) : TRTTIValue(std::move(Name)) {}
  TRTTIStatements(const Ref<IRTTIClass>& ResultType, const Ref<IRTTIElementList>& Declaratives,
                  const Ref<IRTTIValue>& ReturnValue);
  ~TRTTIStatements() override;

  StringView GetKind() const override { return KindName; }
  Ref<IRTTIElementList> GetDeclaratives() const { return FDeclaratives; }
  void SetDeclaratives(const Ref<IRTTIElementList>& Value) { FDeclaratives = Value; }
  Ref<IRTTIValue> GetReturnValue() const { return FReturnValue; }
  void SetReturnValue(const Ref<IRTTIValue>& Value) { FReturnValue = Value; }

  void Resolve(IRTTIScope* Scope) override;
  void Clear() override;

 private:
  Ref<IRTTIElementList> FDeclaratives;
  Ref<IRTTIValue> FReturnValue;
};

/// A tuple literal: each value's name is the name of its tuple part.
class GELLO_API TRTTITupleValue : public TRTTIValue {
 public:
  static constexpr StringView KindName = u"TupleValue";
  explicit TRTTITupleValue(String Name) : TRTTIValue(std::move(Name)) {}
  TRTTITupleValue(const Ref<IRTTIClass>& ResultType, const Ref<IRTTIElementList>& Values);
  ~TRTTITupleValue() override;

  StringView GetKind() const override { return KindName; }
  Ref<IRTTIElementList> GetValues() const { return FValues; }
  void SetValues(const Ref<IRTTIElementList>& Value) { FValues = Value; }

  void Resolve(IRTTIScope* Scope) override;
  void Clear() override;

 private:
  Ref<IRTTIElementList> FValues;
};

/// A collection literal.
class GELLO_API TRTTICollectionValue : public TRTTIValue {
 public:
  static constexpr StringView KindName = u"CollectionValue";
  explicit TRTTICollectionValue(String Name) : TRTTIValue(std::move(Name)) {}
  TRTTICollectionValue(const Ref<IRTTIClass>& ResultType, const Ref<IRTTIElementList>& Elements);
  ~TRTTICollectionValue() override;

  StringView GetKind() const override { return KindName; }
  Ref<IRTTIElementList> GetElements() const { return FElements; }
  void SetElements(const Ref<IRTTIElementList>& Value) { FElements = Value; }

  void Resolve(IRTTIScope* Scope) override;
  void Clear() override;

 private:
  Ref<IRTTIElementList> FElements;
};

/// A compiler directive with its nested pragmas; only its type is resolved.
class GELLO_API TRTTIPragma : public TRTTIValue {
 public:
  static constexpr StringView KindName = u"Pragma";
  explicit TRTTIPragma(String Name) : TRTTIValue(std::move(Name)) {}
  TRTTIPragma(const Ref<IRTTIClass>& ResultType, const String& Directive,
              const Ref<IRTTIElementList>& Pragmas);
  ~TRTTIPragma() override;

  StringView GetKind() const override { return KindName; }
  String Getdirective() const { return Fdirective; }
  void Setdirective(const String& Value) { Fdirective = Value; }
  Ref<IRTTIElementList> Getpragmas() const { return Fpragmas; }
  void Setpragmas(const Ref<IRTTIElementList>& Value) { Fpragmas = Value; }

  void Clear() override;

 private:
  String Fdirective;
  Ref<IRTTIElementList> Fpragmas;
};

}  // namespace gello
