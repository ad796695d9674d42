#pragma once
// Host interfaces of a pretend plug-in, with an implementation, for the registry tests.
#include "gello/ocl/String.h"
#include "gello/registry/IntfDecl.h"

namespace gello {

struct IAddress : virtual IInvokable {
  static constexpr GUID IID = GUIDLiteral("{3C1E5D2A-7B6F-4A10-9E21-5F0B8C7D6E41}");
  virtual String GetCity() = 0;
  virtual void SetCity(const String& Value) = 0;
};

struct IPatient : virtual IInvokable {
  static constexpr GUID IID = GUIDLiteral("{6D2F1A9B-0C4E-4F83-B7A5-91E2D3C4B5A6}");
  virtual std::int32_t GetAge() = 0;
  virtual void SetAge(std::int32_t Value) = 0;
  virtual bool GetAlive() = 0;
  virtual void SetAlive(bool Value) = 0;
  virtual Extended GetWeight() = 0;
  virtual void SetWeight(Extended Value) = 0;
  virtual String GetName() = 0;
  virtual void SetName(const String& Value) = 0;
  virtual Ref<IAddress> GetHome() = 0;
  virtual void SetHome(IAddress* Value) = 0;
  virtual Ref<IOCLString> GetNickname() = 0;
  virtual void SetNickname(IOCLString* Value) = 0;
  virtual Ref<IOCLInteger> ageIn(IOCLInteger* years) = 0;
  virtual Ref<IOCLBoolean> livesIn(IAddress* place) = 0;
};

/// Interfaces the registry must refuse, and a method table for BuildMethods.
struct IOddCall : virtual IInvokable {
  static constexpr GUID IID = GUIDLiteral("{A1000000-0000-4000-8000-000000000001}");
  virtual Ref<IOCLInteger> count() = 0;
};
struct IOddResult : virtual IInvokable {
  static constexpr GUID IID = GUIDLiteral("{A1000000-0000-4000-8000-000000000002}");
  virtual Ref<IAddress> home() = 0;
};
struct IOddProperty : virtual IInvokable {
  static constexpr GUID IID = GUIDLiteral("{A1000000-0000-4000-8000-000000000003}");
  virtual std::int32_t GetX() = 0;
  virtual void SetX(const String& Value) = 0;
};
struct IRecord : virtual IInvokable {
  static constexpr GUID IID = GUIDLiteral("{A1000000-0000-4000-8000-000000000004}");
  virtual Ref<IOCLInteger> GetSize() = 0;
  virtual Ref<IOCLInteger> GetTotal() = 0;
  virtual Ref<IOCLBoolean> _EQ_(IOCLAny* o) = 0;
  virtual Ref<IOCLInteger> _NEGATE_() = 0;
  virtual void reset() = 0;
  virtual Ref<IAddress> where() = 0;
};

GELLO_DESCRIBED(IAddress, "IAddress");
GELLO_DESCRIBED(IPatient, "IPatient");
GELLO_DESCRIBED(IOddCall, "IOddCall");
GELLO_DESCRIBED(IOddResult, "IOddResult");
GELLO_DESCRIBED(IOddProperty, "IOddProperty");
GELLO_DESCRIBED(IRecord, "IRecord");

class TAddress : public virtual IAddress, public virtual IRTTIClassInstance {};

/// A patient whose every accessor works on plain fields.
class TPatient : public virtual IPatient {
 public:
  std::int32_t Age = 40;
  bool Alive = true;
  Extended Weight = 72.5L;
  String Name = u"Ann";
  Ref<IAddress> Home;
  Ref<IOCLString> Nickname;
  /// References of the arguments seen inside the last call.
  int ArgRefsSeen = 0;

  std::int32_t GetAge() override { return Age; }
  void SetAge(std::int32_t Value) override { Age = Value; }
  bool GetAlive() override { return Alive; }
  void SetAlive(bool Value) override { Alive = Value; }
  Extended GetWeight() override { return Weight; }
  void SetWeight(Extended Value) override { Weight = Value; }
  String GetName() override { return Name; }
  void SetName(const String& Value) override { Name = Value; }
  Ref<IAddress> GetHome() override { return Home; }
  void SetHome(IAddress* Value) override { Home = Value; }
  Ref<IOCLString> GetNickname() override { return Nickname; }
  void SetNickname(IOCLString* Value) override { Nickname = Value; }
  Ref<IOCLInteger> ageIn(IOCLInteger* years) override;
  Ref<IOCLBoolean> livesIn(IAddress* place) override;
};

/// A city that prints itself.
class TCity : public TAddress {
 public:
  explicit TCity(String Name) : City(std::move(Name)) {}
  String City;
  String GetCity() override { return City; }
  void SetCity(const String& Value) override { City = Value; }
  String GetasString() const override { return City; }
  // The rest of the instance interface is not used by the tests.
  Ref<IRTTIClassInstance> CreateProperty(const String&) override { return nullptr; }
  Ref<IRTTIClassInstance> ClassFactory(const String&) override { return nullptr; }
  TJSON GetasCompactJSON() const override { return {}; }
  TJSON GetasJSON() const override { return {}; }
  const RefCounted* GetasObject() const override { return this; }
  String GetasToken() const override { return City; }
  Ref<IRTTIClass> GetInstanceType() const override { return nullptr; }
  Ref<IRTTIClassInstance> GetPropertyByName(const String&) const override { return nullptr; }
  int GetPropertyCount() const override { return 0; }
  String GetPropertyName(int) const override { return {}; }
  Ref<IRTTIClassInstance> GetPropertyValue(int) const override { return nullptr; }
  void SetasCompactJSON(const TJSON&) override {}
  void SetasJSON(const TJSON&) override {}
  void SetasString(const String& Value) override { City = Value; }
  void SetasToken(const String& Value) override { City = Value; }
  void SetInstanceType(const Ref<IRTTIClass>&) override {}
  void SetPropertyByName(const String&, const Ref<IRTTIClassInstance>&) override {}
  void SetPropertyValue(int, const Ref<IRTTIClassInstance>&) override {}
};

inline constexpr THostClassInfo TPatientClass{"TPatient"};

}  // namespace gello
