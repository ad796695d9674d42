#pragma once
// A model type used as a value: the result of oclType, the argument of oclIsKindOf.
#include "gello/foundation/Export.h"
#include "gello/ocl/Any.h"

namespace gello {

/// Wraps a model class; two type values are equal when they hold the same class.
class GELLO_API TOCLT : public TOCLAny, public virtual IOCLT {
 public:
  explicit TOCLT(const Ref<IRTTIClass>& AClass = nullptr) : FOCLClassType(AClass) {}
  explicit TOCLT(const TUndefined& Reason) : TOCLAny(Reason) {}

  Ref<IRTTIClass> GetOCLClassType() const override { return FOCLClassType; }
  void SetOCLClassType(const Ref<IRTTIClass>& Value) override { FOCLClassType = Value; }
  Ref<IRTTIClass> GetInstanceType() const override;
  void SetInstanceType(const Ref<IRTTIClass>& Value) override { FOCLClassType = Value; }
  String GetasString() const override;
  bool isEqual(IOCLAny* Other) const override;

 private:
  Ref<IRTTIClass> FOCLClassType;
};

}  // namespace gello
