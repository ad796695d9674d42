#pragma once
// Control nodes and constructed values: conditional, statement block, tuple, collection, pragma.
#include "gello/expr/Value.h"
#include "gello/foundation/Export.h"

namespace gello {

/// if condition then thenPart else elsePart.
class GELLO_API TRTTIConditional : public TRTTIValue {
 public:
  static constexpr TRTTINodeKind Kind = TRTTINodeKind::Conditional;
  explicit TRTTIConditional(String Name) : TRTTIValue(std::move(Name)) {}
  TRTTIConditional(const Ref<IRTTIClass>& ResultType, const Ref<IRTTIValue>& Condition,
                   const Ref<IRTTIValue>& ThenPart, const Ref<IRTTIValue>& ElsePart);
  ~TRTTIConditional() override;

  TRTTINodeKind GetNodeKind() const override { return Kind; }
  const Ref<IRTTIValue>& GetCondition() const { return FCondition; }
  void SetCondition(const Ref<IRTTIValue>& Value) { FCondition = Value; }
  const Ref<IRTTIValue>& GetThenPart() const { return FThenPart; }
  void SetThenPart(const Ref<IRTTIValue>& Value) { FThenPart = Value; }
  const Ref<IRTTIValue>& GetElsePart() const { return FElsePart; }
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
  static constexpr TRTTINodeKind Kind = TRTTINodeKind::Statements;
  explicit TRTTIStatements(String Name) : TRTTIValue(std::move(Name)) {}
  TRTTIStatements(const Ref<IRTTIClass>& ResultType, const Ref<IRTTIElementList>& Declaratives,
                  const Ref<IRTTIValue>& ReturnValue);
  ~TRTTIStatements() override;

  TRTTINodeKind GetNodeKind() const override { return Kind; }
  const Ref<IRTTIElementList>& GetDeclaratives() const { return FDeclaratives; }
  void SetDeclaratives(const Ref<IRTTIElementList>& Value) { FDeclaratives = Value; }
  const Ref<IRTTIValue>& GetReturnValue() const { return FReturnValue; }
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
  static constexpr TRTTINodeKind Kind = TRTTINodeKind::TupleValue;
  explicit TRTTITupleValue(String Name) : TRTTIValue(std::move(Name)) {}
  TRTTITupleValue(const Ref<IRTTIClass>& ResultType, const Ref<IRTTIElementList>& Values);
  ~TRTTITupleValue() override;

  TRTTINodeKind GetNodeKind() const override { return Kind; }
  const Ref<IRTTIElementList>& GetValues() const { return FValues; }
  void SetValues(const Ref<IRTTIElementList>& Value) { FValues = Value; }

  void Resolve(IRTTIScope* Scope) override;
  void Clear() override;

 private:
  Ref<IRTTIElementList> FValues;
};

/// A collection literal.
class GELLO_API TRTTICollectionValue : public TRTTIValue {
 public:
  static constexpr TRTTINodeKind Kind = TRTTINodeKind::CollectionValue;
  explicit TRTTICollectionValue(String Name) : TRTTIValue(std::move(Name)) {}
  TRTTICollectionValue(const Ref<IRTTIClass>& ResultType, const Ref<IRTTIElementList>& Elements);
  ~TRTTICollectionValue() override;

  TRTTINodeKind GetNodeKind() const override { return Kind; }
  const Ref<IRTTIElementList>& GetElements() const { return FElements; }
  void SetElements(const Ref<IRTTIElementList>& Value) { FElements = Value; }

  void Resolve(IRTTIScope* Scope) override;
  void Clear() override;

 private:
  Ref<IRTTIElementList> FElements;
};

/// A compiler directive with its nested pragmas; only its type is resolved.
class GELLO_API TRTTIPragma : public TRTTIValue {
 public:
  static constexpr TRTTINodeKind Kind = TRTTINodeKind::Pragma;
  explicit TRTTIPragma(String Name) : TRTTIValue(std::move(Name)) {}
  TRTTIPragma(const Ref<IRTTIClass>& ResultType, const String& Directive,
              const Ref<IRTTIElementList>& Pragmas);
  ~TRTTIPragma() override;

  TRTTINodeKind GetNodeKind() const override { return Kind; }
  String Getdirective() const { return Fdirective; }
  void Setdirective(const String& Value) { Fdirective = Value; }
  const Ref<IRTTIElementList>& Getpragmas() const { return Fpragmas; }
  void Setpragmas(const Ref<IRTTIElementList>& Value) { Fpragmas = Value; }

  void Clear() override;

 private:
  String Fdirective;
  Ref<IRTTIElementList> Fpragmas;
};

}  // namespace gello
