#include "gello/expr/Navigation.h"

#include "SubExpressions.h"

namespace gello {

TRTTIMethodCall::TRTTIMethodCall(const String& Name, const Ref<IRTTIClass>& ResultType,
                                 const Ref<IRTTIValue>& ClassRef,
                                 const Ref<IRTTIElementList>& Params,
                                 const Ref<IRTTIMethod>& MethodRef)
    : TRTTIValue(ResultType), Fclassref(ClassRef), Fparams(Params), Fmethodref(MethodRef) {
  SetName(Name);
}

TRTTIMethodCall::~TRTTIMethodCall() {
  TRTTIMethodCall::Clear();
}

void TRTTIMethodCall::Resolve(IRTTIScope* Scope) {
  TRTTIValue::Resolve(Scope);
  ResolveIfSet(Fclassref, Scope);
  ResolveIfSet(Fmethodref, Scope);
  ResolveIfSet(Fparams, Scope);
}

void TRTTIMethodCall::Clear() {
  ClearPart(Fclassref);
  ClearList(Fparams);
  // The method belongs to its class, which clears it; the call only lets go.
  Fmethodref = nullptr;
  TRTTIValue::Clear();
}

TRTTIPropertyRef::TRTTIPropertyRef(const String& Name, const Ref<IRTTIClass>& ResultType,
                                   const Ref<IRTTIValue>& ClassRef)
    : TRTTIValue(ResultType), Fclassref(ClassRef) {
  SetName(Name);
}

TRTTIPropertyRef::~TRTTIPropertyRef() {
  TRTTIPropertyRef::Clear();
}

void TRTTIPropertyRef::Resolve(IRTTIScope* Scope) {
  TRTTIValue::Resolve(Scope);
  ResolveIfSet(Fclassref, Scope);
}

void TRTTIPropertyRef::Clear() {
  ClearPart(Fclassref);
  TRTTIValue::Clear();
}

TRTTICollectionMethod::TRTTICollectionMethod(const String& Name, const Ref<IRTTIClass>& ResultType,
                                             const Ref<IRTTIValue>& ClassRef,
                                             const Ref<IRTTIProperty>& Iterator,
                                             const Ref<IRTTIProperty>& Accum,
                                             const Ref<IRTTIElementList>& Params)
    : TRTTIValue(ResultType),
      Fclassref(ClassRef),
      Fiterator(Iterator),
      Faccum(Accum),
      Fparams(Params) {
  SetName(Name);
}

TRTTICollectionMethod::~TRTTICollectionMethod() {
  TRTTICollectionMethod::Clear();
}

void TRTTICollectionMethod::Resolve(IRTTIScope* Scope) {
  TRTTIValue::Resolve(Scope);
  ResolveIfSet(Fclassref, Scope);
  ResolveIfSet(Faccum, Scope);
  ResolveIfSet(Fiterator, Scope);
  ResolveIfSet(Fparams, Scope);
}

void TRTTICollectionMethod::Clear() {
  ClearPart(Fclassref);
  ClearPart(Fiterator);
  ClearPart(Faccum);
  ClearList(Fparams);
  TRTTIValue::Clear();
}

}  // namespace gello
