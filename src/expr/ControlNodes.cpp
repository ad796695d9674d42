#include "gello/expr/ControlNodes.h"

#include "SubExpressions.h"
#include "gello/foundation/Exceptions.h"

namespace gello {

TRTTIConditional::TRTTIConditional(const Ref<IRTTIClass>& ResultType,
                                   const Ref<IRTTIValue>& Condition,
                                   const Ref<IRTTIValue>& ThenPart, const Ref<IRTTIValue>& ElsePart)
    : TRTTIValue(ResultType), FCondition(Condition), FThenPart(ThenPart), FElsePart(ElsePart) {}

TRTTIConditional::~TRTTIConditional() {
  TRTTIConditional::Clear();
}

void TRTTIConditional::Resolve(IRTTIScope* Scope) {
  TRTTIValue::Resolve(Scope);
  ResolveIfSet(FCondition, Scope);
  ResolveIfSet(FThenPart, Scope);
  ResolveIfSet(FElsePart, Scope);
}

void TRTTIConditional::Clear() {
  ClearPart(FCondition);
  ClearPart(FThenPart);
  ClearPart(FElsePart);
  TRTTIValue::Clear();
}

TRTTIStatements::TRTTIStatements(const Ref<IRTTIClass>& ResultType,
                                 const Ref<IRTTIElementList>& Declaratives,
                                 const Ref<IRTTIValue>& ReturnValue)
    : TRTTIValue(ResultType), FDeclaratives(Declaratives), FReturnValue(ReturnValue) {}

TRTTIStatements::~TRTTIStatements() {
  TRTTIStatements::Clear();
}

void TRTTIStatements::Resolve(IRTTIScope* Scope) {
  TRTTIValue::Resolve(Scope);
  GELLO_ASSERT(FDeclaratives && FReturnValue, u"Assertion failure");
  FDeclaratives->Resolve(Scope);
  FReturnValue->Resolve(Scope);
}

void TRTTIStatements::Clear() {
  ClearList(FDeclaratives);
  ClearPart(FReturnValue);
  TRTTIValue::Clear();
}

TRTTITupleValue::TRTTITupleValue(const Ref<IRTTIClass>& ResultType,
                                 const Ref<IRTTIElementList>& Values)
    : TRTTIValue(ResultType), FValues(Values) {}

TRTTITupleValue::~TRTTITupleValue() {
  TRTTITupleValue::Clear();
}

void TRTTITupleValue::Resolve(IRTTIScope* Scope) {
  TRTTIValue::Resolve(Scope);
  ResolveIfSet(FValues, Scope);
}

void TRTTITupleValue::Clear() {
  ClearList(FValues);
  TRTTIValue::Clear();
}

TRTTICollectionValue::TRTTICollectionValue(const Ref<IRTTIClass>& ResultType,
                                           const Ref<IRTTIElementList>& Elements)
    : TRTTIValue(ResultType), FElements(Elements) {}

TRTTICollectionValue::~TRTTICollectionValue() {
  TRTTICollectionValue::Clear();
}

void TRTTICollectionValue::Resolve(IRTTIScope* Scope) {
  TRTTIValue::Resolve(Scope);
  ResolveIfSet(FElements, Scope);
}

void TRTTICollectionValue::Clear() {
  ClearList(FElements);
  TRTTIValue::Clear();
}

TRTTIPragma::TRTTIPragma(const Ref<IRTTIClass>& ResultType, const String& Directive,
                         const Ref<IRTTIElementList>& Pragmas)
    : TRTTIValue(ResultType), Fdirective(Directive), Fpragmas(Pragmas) {}

TRTTIPragma::~TRTTIPragma() {
  TRTTIPragma::Clear();
}

void TRTTIPragma::Clear() {
  ClearList(Fpragmas);
  TRTTIValue::Clear();
}

}  // namespace gello
