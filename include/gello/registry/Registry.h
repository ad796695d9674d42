#pragma once
// The OCL class registry: qualified GELLO class names bound to model classes, implementing
// interfaces and implementing classes. One per process, made by RegisterInterfaces.
#include <memory>
#include <vector>
#include "gello/foundation/Export.h"

#include "gello/model/Globals.h"
#include "gello/registry/IntfInfo.h"

namespace gello {

/// One registered interface with its model class and implementing class.
class GELLO_API TOCLRegistryEntry {
 public:
  /// Gives the class the interface's GUID and the interface as its host type.
  TOCLRegistryEntry(const TIntfInfo& Intf, const Ref<IRTTIClass>& Class);

  const TIntfInfo& GetIntf() const noexcept { return *FIntf; }
  const Ref<IRTTIClass>& GetClass() const noexcept { return FClass; }
  THostClass GetImplClass() const noexcept { return FImplClass; }
  void SetImplClass(THostClass Value);
  bool GetNative() const noexcept { return FNative; }
  void SetNative(bool Value) noexcept { FNative = Value; }

 private:
  const TIntfInfo* FIntf;
  Ref<IRTTIClass> FClass;
  THostClass FImplClass = nullptr;
  bool FNative = false;
};

/// The registry: its entries in order, and the global scope that holds the registered packages.
class GELLO_API TOCLClassRegistry {
 public:
  TOCLClassRegistry();
  ~TOCLClassRegistry();
  TOCLClassRegistry(const TOCLClassRegistry&) = delete;
  TOCLClassRegistry& operator=(const TOCLClassRegistry&) = delete;

  const Ref<TRTTIGlobals>& GetGlobals() const noexcept { return FGlobals; }
  int GetCount() const noexcept { return static_cast<int>(FEntries.size()); }
  const TOCLRegistryEntry& GetItems(int Index) const { return *FEntries.at(Index); }
  /// Positive: UnregisterAllInterfaces dumps the registry at its end; RegisterRTTIClass logs.
  int Debug = 0;

  /// Finds or makes the class of a host interface; Name is "Package::Class" or empty.
  Ref<IRTTIClass> AddIntf(const String& Name, const TIntfInfo& Intf);
  /// Finds or makes a class that no interface backs; Name must be "Package::Class".
  Ref<IRTTIClass> AddClass1(const String& Name);
  void RegisterInterface(const TIntfInfo& Intf, const Ref<IRTTIClass>& Class);
  /// Registers an OCL value interface: class, parent, element type and script methods.
  Ref<IRTTIClass> RegisterRTTIInterface(const String& Name, const TIntfInfo& Intf,
                                        const TIntfInfo* ElementIntf, THostClass ImplClass);
  /// Registers a native host interface: its script methods and its Get/Set properties.
  Ref<IRTTIClass> RegisterHostInterface(const String& Name, const TIntfInfo& Intf,
                                        THostClass ImplClass);
  /// BuildMethods with a debug line per method.
  void RegisterRTTIClass(const Ref<IRTTIClass>& Class, const TIntfInfo& MethodTable);
  /// Adds a model method per function entry of the table with an OCL result.
  void BuildMethods(const Ref<IRTTIClass>& Class, const TIntfInfo& MethodTable);
  void SetInstanceClass(const TIntfInfo& Intf, THostClass ImplClass);

  Ref<IRTTIPackage> RegisterPackage(const String& Name, const std::vector<String>& Imports);
  void UnregisterPackage(const String& Name);
  Ref<IRTTIPackage> GetPackage(const String& Name) const;

  Ref<IRTTIClass> FindClassByGUID(const GUID& IID) const;
  const TOCLRegistryEntry* GetItemByGUID(const GUID& IID) const;
  const TOCLRegistryEntry* GetItemByTypeInfo(const TIntfInfo& Intf) const;
  const TOCLRegistryEntry* GetItemByClass(const IRTTIClass* Class) const;
  /// The interface's name, or "<unknown>".
  String FindInterfaceNameByGUID(const GUID& IID) const;
  const TIntfInfo* FindInterfaceTypeByName(const String& Name) const;
  /// The class whose implementing class has that host name.
  Ref<IRTTIClass> FindHostClass(const String& Name) const;
  /// A registered class by its qualified (or plain) model name.
  Ref<IRTTIClass> FindOCLClass(const String& Name) const;
  Ref<IRTTIClass> FindRegisteredType(const TIntfInfo& Intf) const;

  /// Logs the registry: a header and one line per entry (verbose: with its methods).
  void Dump(bool Verbose) const;
  /// Logs the method table of the class's interface.
  void DumpInterface(const IRTTIClass& Class) const;

 private:
  Ref<IRTTIClass> ClassOfIntf(const TIntfInfo& Intf);
  /// The model class of a host value kind (an interface by reference, else by type name).
  Ref<IRTTIClass> ValueClass(THostKind Kind, const TIntfInfo* Intf, const char* TypeName);
  Ref<IRTTIMethod> BuildMethod(const String& ModelName, const TIntfEntry& Entry, int Slot);
  std::vector<Ref<IRTTIMethod>> BuildMethodList(IRTTIClass& Class, const TIntfInfo& Table);
  void AddHostMembers(const Ref<IRTTIClass>& Class, const struct THostPlan& Plan);
  void DumpIntf(const String& Title, const TIntfInfo& Intf) const;

  Ref<TRTTIGlobals> FGlobals;
  std::vector<std::unique_ptr<TOCLRegistryEntry>> FEntries;
};

/// The registry; raises when RegisterInterfaces has not made it.
GELLO_API TOCLClassRegistry& OCLRegistry();
/// Makes a new registry (freeing any previous one) with the System classes and Booleans.
GELLO_API void RegisterInterfaces();
/// Unregisters the System package.
GELLO_API void UnregisterInterfaces();
/// Unregisters every package, last first.
GELLO_API void UnregisterAllInterfaces();
/// Dumps and frees the registry and drops the System handles (also done at process end).
GELLO_API void FinalizeOCLRegistry();
/// Target := Source seen through the registered interface IID, or none.
GELLO_API void OCLCast(RefCounted* Source, const GUID& IID, Ref<RefCounted>& Target);

}  // namespace gello
