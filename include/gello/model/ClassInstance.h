#pragma once
// The interface of every dynamic instance and every OCL value: typed, with properties and text.
#include "gello/foundation/Export.h"
#include "gello/foundation/JSON.h"
#include "gello/model/Interfaces.h"

namespace gello {

/// An instance of a model class: its type, its property values by name or position, its text
/// and JSON forms. Operations are declared in slot order.
struct GELLO_API IRTTIClassInstance : virtual RefCounted {
  static constexpr GUID IID = IID_IRTTIClassInstance;
  virtual Ref<IRTTIClassInstance> CreateProperty(const String& Name) = 0;
  virtual Ref<IRTTIClassInstance> ClassFactory(const String& ClassName) = 0;
  virtual TJSON GetasCompactJSON() const = 0;
  virtual TJSON GetasJSON() const = 0;
  virtual const RefCounted* GetasObject() const = 0;
  virtual String GetasString() const = 0;
  virtual String GetasToken() const = 0;
  virtual Ref<IRTTIClass> GetInstanceType() const = 0;
  virtual Ref<IRTTIClassInstance> GetPropertyByName(const String& Name) const = 0;
  virtual int GetPropertyCount() const = 0;
  virtual String GetPropertyName(int Index) const = 0;
  virtual Ref<IRTTIClassInstance> GetPropertyValue(int Index) const = 0;
  virtual void SetasCompactJSON(const TJSON& Value) = 0;
  virtual void SetasJSON(const TJSON& Value) = 0;
  virtual void SetasString(const String& Value) = 0;
  virtual void SetasToken(const String& Value) = 0;
  virtual void SetInstanceType(const Ref<IRTTIClass>& Value) = 0;
  virtual void SetPropertyByName(const String& Name, const Ref<IRTTIClassInstance>& Value) = 0;
  virtual void SetPropertyValue(int Index, const Ref<IRTTIClassInstance>& Value) = 0;
};

/// Makes a stand-alone class named ClassName and an instance of it.
using TClassInstanceMaker = Ref<IRTTIClassInstance> (*)(const String& ClassName);
/// Installed by the dynamic-instance classes when the library loads.
GELLO_API void SetClassInstanceMaker(TClassInstanceMaker Maker) noexcept;
/// A new stand-alone class named ClassName (no package, no ancestor) and an instance of it.
GELLO_API Ref<IRTTIClassInstance> NewClassInstance(const String& ClassName);

}  // namespace gello
