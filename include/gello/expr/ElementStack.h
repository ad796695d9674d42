#pragma once
// The element stack the expression builder keeps its open nodes on.
#include "gello/foundation/Export.h"
#include "gello/model/ElementList.h"

namespace gello {

/// A stack of elements whose top is the list's last item.
struct GELLO_API IRTTIElementStack : virtual IRTTIElementList {
  static constexpr GUID IID = GUIDLiteral("{B4615B17-224F-47EC-B7C6-1D57F84CA628}");
  virtual void Push(const Ref<IRTTIElement>& Element) = 0;
  virtual Ref<IRTTIElement> Pop() = 0;
  virtual Ref<IRTTIElement> GetTop() const = 0;
  virtual void SetTop(const Ref<IRTTIElement>& Element) = 0;
  virtual bool Empty() const = 0;
};

/// An element list used as a stack; Pop, GetTop and SetTop raise on an empty stack.
class GELLO_API TRTTIElementStack : public TRTTIElementList, public virtual IRTTIElementStack {
 public:
  void Push(const Ref<IRTTIElement>& Element) override { Add(Element); }
  Ref<IRTTIElement> Pop() override;
  Ref<IRTTIElement> GetTop() const override;
  void SetTop(const Ref<IRTTIElement>& Element) override;
  bool Empty() const override { return GetCount() == 0; }
};

}  // namespace gello
