#include "gello/expr/ElementStack.h"

#include "gello/foundation/Exceptions.h"

namespace gello {
namespace {

void CheckNotEmpty(const TRTTIElementStack& Stack, const char16_t* Message) {
  if (Stack.Empty()) throw Exception(Message);
}

}  // namespace

Ref<IRTTIElement> TRTTIElementStack::Pop() {
  CheckNotEmpty(*this, u"trying to pop from empty element stack.");
  const int Last = GetCount() - 1;
  Ref<IRTTIElement> Top = GetItems(Last);
  Delete(Last);
  return Top;
}

Ref<IRTTIElement> TRTTIElementStack::GetTop() const {
  CheckNotEmpty(*this, u"trying to get top of empty element stack");
  return GetItems(GetCount() - 1);
}

void TRTTIElementStack::SetTop(const Ref<IRTTIElement>& Element) {
  CheckNotEmpty(*this, u"trying to set top of empty element stack");
  SetItems(GetCount() - 1, Element);
}

}  // namespace gello
