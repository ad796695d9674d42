#pragma once
// Methods of classes: parameters, result type and body.
#include "gello/foundation/Export.h"
#include "gello/model/Element.h"

namespace gello {

/// A method whose parameters are properties; it conforms as its result type does.
class GELLO_API TRTTIMethod : public TRTTIElement, public virtual IRTTIMethod {
 public:
  static constexpr TRTTINodeKind Kind = TRTTINodeKind::Method;
  /// The reader's form: result type and parameters come later.
  explicit TRTTIMethod(String Name);
  /// Fails an assertion when ResultType is empty; empty Params become a new empty list.
  TRTTIMethod(const String& Name, const Ref<IRTTIClass>& ResultType,
              const Ref<IRTTIElementList>& Params = nullptr);
  ~TRTTIMethod() override;

  TRTTINodeKind GetNodeKind() const override { return Kind; }
  bool GetCollectionOp() const override { return FCollectionOp; }
  Ref<IRTTIElementList> GetParams() const override { return FParams; }
  Ref<IRTTIClass> GetResultType() const override { return FResultType; }
  Ref<IRTTIValue> GetResultValue() const override { return FResultValue; }
  std::int32_t GetVmtIndex() const override { return FVmtIndex; }
  void SetCollectionOp(bool Value) override { FCollectionOp = Value; }
  void SetParams(const Ref<IRTTIElementList>& Value) override { FParams = Value; }
  void SetResultType(const Ref<IRTTIClass>& Value) override { FResultType = Value; }
  void SetResultValue(const Ref<IRTTIValue>& Value) override { FResultValue = Value; }
  void SetVmtIndex(std::int32_t Value) override { FVmtIndex = Value; }

  bool Compatible(IRTTIClass* Other) override;
  bool Derives(IRTTIClass* Other, IRTTIElementList& Path) override;
  void Resolve(IRTTIScope* Scope) override;
  void WalkClasses(IRTTIElementList& List) override;
  void Clear() override;

 private:
  Ref<IRTTIElementList> FParams;
  Ref<IRTTIClass> FResultType;
  Ref<IRTTIValue> FResultValue;
  bool FCollectionOp = false;
  std::int32_t FVmtIndex = 0;
};

}  // namespace gello
