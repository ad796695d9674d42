#pragma once
// The interfaces through which every holder sees model elements.
#include <cstdint>
#include "gello/foundation/Export.h"

#include "gello/foundation/FunctionRef.h"
#include "gello/foundation/GUID.h"
#include "gello/foundation/Logic.h"
#include "gello/foundation/RefCounted.h"
#include "gello/foundation/String.h"
#include "gello/model/NodeKind.h"

namespace gello {

struct IRTTIElement;
struct IRTTIElementList;
struct IRTTIScope;
struct IRTTIClass;
struct IRTTIProperty;
struct IRTTIMethod;
struct IRTTIValue;
struct IRTTIDebugInfo;
struct IRTTIPackage;
struct IRTTIGlobals;

/// Opaque handles of host implementations, bound by the class registry.
using THostClass = const struct THostClassInfo*;
using TPropInfo = const struct THostPropInfo*;

/// The interface that instances of a model class offer unless the class names another.
inline constexpr GUID IID_IRTTIClassInstance =
    GUIDLiteral("{9E4FBA43-A6C7-42A8-A021-E6577B3A8EF3}");

/// Source position of an element.
struct GELLO_API IRTTIDebugInfo : virtual RefCounted {
  static constexpr GUID IID = GUIDLiteral("{04803E8D-FDEC-492C-A692-B8DC31D807D1}");
  virtual String GetSourceFile() const = 0;
  virtual void SetSourceFile(const String& Value) = 0;
  virtual std::int32_t GetLineNumber() const = 0;
  virtual void SetLineNumber(std::int32_t Value) = 0;
};

/// Every thing in a model: identity, naming, resolution and the default type answers.
struct GELLO_API IRTTIElement : virtual RefCounted {
  static constexpr GUID IID = GUIDLiteral("{0E8BD1BB-A38F-460C-BA75-678A75567A22}");
  virtual const String& GetName() const = 0;
  virtual void SetName(const String& Value) = 0;
  /// Whether the name is Name (compares without copying it).
  virtual bool IsNamed(const String& Name) const = 0;
  virtual String GetAnnotation() const = 0;
  virtual void SetAnnotation(const String& Value) = 0;
  virtual Ref<IRTTIDebugInfo> GetDebugInfo() const = 0;
  virtual void SetDebugInfo(const Ref<IRTTIDebugInfo>& Value) = 0;
  virtual bool GetHidden() const = 0;
  virtual void SetHidden(bool Value) = 0;
  virtual bool GetResolved() const = 0;
  virtual void SetResolved(bool Value) = 0;
  /// The class name without its "TRTTI" prefix; the text lives as long as the program.
  virtual StringView GetKind() const = 0;
  /// The kind tag of the element's class (model/NodeKind.h).
  virtual TRTTINodeKind GetNodeKind() const = 0;
  virtual String ExternalTypeName() const = 0;
  virtual GUID GetGUID() = 0;
  virtual String GetUML_ID() = 0;
  virtual void SetUML_ID(const String& Value) = 0;
  /// The UML id without making one: empty while the element has neither a UML id nor a GUID.
  virtual String PeekUML_ID() const = 0;
  virtual void Resolve(IRTTIScope* Scope) = 0;
  virtual bool Compatible(IRTTIClass* Other) = 0;
  virtual bool Derives(IRTTIClass* Other, IRTTIElementList& Path) = 0;
  virtual void WalkClasses(IRTTIElementList& List) = 0;
  virtual void Clear() = 0;
};

/// An ordered list of elements with a case-sensitive name index.
struct GELLO_API IRTTIElementList : virtual RefCounted {
  static constexpr GUID IID = GUIDLiteral("{D7B341A9-15E0-4A0C-AB4A-752C87C9B8B8}");
  virtual int Add(const Ref<IRTTIElement>& Element) = 0;
  virtual void Insert(int Index, const Ref<IRTTIElement>& Element) = 0;
  virtual void Delete(int Index) = 0;
  virtual void Clear() = 0;
  virtual bool Exists(IRTTIElement* Element) const = 0;
  virtual int IndexOf(const String& Name) const = 0;
  virtual int IndexOfElement(IRTTIElement* Element) const = 0;
  virtual void Include(IRTTIElementList* Other) = 0;
  virtual void IncludeElement(const Ref<IRTTIElement>& Element) = 0;
  virtual int GetCount() const = 0;
  virtual Ref<IRTTIElement> GetItems(int Index) const = 0;
  virtual void SetItems(int Index, const Ref<IRTTIElement>& Element) = 0;
  virtual Ref<IRTTIElement> GetItemByName(const String& Name) const = 0;
  virtual void SetItemByName(const String& Name, const Ref<IRTTIElement>& Element) = 0;
  virtual Ref<IRTTIElement> GetItemByUMLID(const String& Id) const = 0;
  virtual Ref<IRTTIElementList> ItemsByName(const String& Name) const = 0;
  /// Visits the items named Name, oldest first, until Visit answers true; answers whether it
  /// did. Unlike ItemsByName it makes no list.
  virtual bool AnyNamed(const String& Name, TFunctionRef<bool(IRTTIElement&)> Visit) const = 0;
  virtual Ref<IRTTIElementList> GetSortedItems() const = 0;
  virtual void Sort() = 0;
  virtual void Swap(int I, int J) = 0;
  virtual void Reset() = 0;
  virtual void Resolve(IRTTIScope* Scope) = 0;
  virtual bool GetMergeElements() const = 0;
  virtual void SetMergeElements(bool Value) = 0;
};

/// An element with members: searched by name and by the interface the result must support.
struct GELLO_API IRTTIScope : virtual IRTTIElement {
  static constexpr GUID IID = GUIDLiteral("{C0044D10-C756-482A-863F-667E60C36B03}");
  virtual Ref<IRTTIElementList> GetMembers() const = 0;
  virtual void SetMembers(const Ref<IRTTIElementList>& Value) = 0;
  virtual Ref<IRTTIElementList> GetStatements() const = 0;
  virtual void SetStatements(const Ref<IRTTIElementList>& Value) = 0;
  virtual bool GetOwnsMembers() const = 0;
  virtual void SetOwnsMembers(bool Value) = 0;
  virtual bool AddMember(const Ref<IRTTIElement>& Element) = 0;
  virtual Ref<IRTTIElement> Find(const String& Name, const GUID& InterfaceId) = 0;
  virtual Ref<IRTTIElementList> FindAll(const String& Name, const GUID& InterfaceId) = 0;
  virtual Ref<IRTTIClass> FindClass(const String& Name) = 0;
  virtual Ref<IRTTIElement> Lookup(const String& Name, const GUID& InterfaceId) = 0;
  virtual Ref<IRTTIElementList> LookupAll(const String& Name, const GUID& InterfaceId) = 0;
  virtual int GetVisibleCount() const = 0;
  virtual Ref<IRTTIElement> GetVisibleMembers(int Index) const = 0;
  virtual void SortAll() = 0;

  template <class I>
  Ref<I> Find(const String& Name) {
    return DynCast<I>(Find(Name, I::IID));
  }
  template <class I>
  Ref<I> Lookup(const String& Name) {
    return DynCast<I>(Lookup(Name, I::IID));
  }
};

/// A model type: class, primitive, enumeration, tuple or collection.
struct GELLO_API IRTTIClass : virtual IRTTIScope {
  static constexpr GUID IID = GUIDLiteral("{29E67034-006C-4610-B112-9C4F62EEEC9D}");
  virtual int AllocatePropertyIndex() = 0;
  virtual Ref<IRTTIMethod> FindMethod(const String& Name, IRTTIElementList* Args) = 0;
  virtual Ref<IRTTIClass> GetAncestor() const = 0;
  virtual String GetHostClassName() const = 0;
  virtual THostClass GetHostType() const = 0;
  virtual Ref<IRTTIClass> GetElementType() const = 0;
  virtual Ref<IRTTIElementList> GetEnums() const = 0;
  virtual GUID GetInstanceIntf() const = 0;
  virtual Ref<IRTTIClass> GetImmediateElementType() const = 0;
  virtual TRTTIClassKind GetClassKind() const = 0;
  virtual THostClass GetInstanceImpl() const = 0;
  virtual bool IsGeneric() const = 0;
  virtual Ref<IRTTIProperty> GetProperties(int Index) = 0;
  virtual int GetPropertyCount() = 0;
  virtual int GetPropertyIndexAllocation() = 0;
  virtual bool IsClass(IRTTIClass* Other) = 0;
  virtual bool IsCollection() const = 0;
  virtual bool GetIsTuple() const = 0;
  virtual bool HasAncestor(IRTTIClass* Other) const = 0;
  virtual void SetAncestor(const Ref<IRTTIClass>& Value) = 0;
  virtual void SetHostClassName(const String& Value) = 0;
  virtual void SetHostType(THostClass Value) = 0;
  virtual void SetElementType(const Ref<IRTTIClass>& Value) = 0;
  virtual void SetEnums(const Ref<IRTTIElementList>& Value) = 0;
  virtual void SetInstanceIntf(const GUID& Value) = 0;
  virtual void SetClassKind(TRTTIClassKind Value) = 0;
  virtual void SetInstanceImpl(THostClass Value) = 0;
  virtual void SetIsTuple(bool Value) = 0;
  virtual void WalkRefs(IRTTIElementList& List) = 0;
};

/// A property of a class, or a parameter of a method.
struct GELLO_API IRTTIProperty : virtual IRTTIElement {
  static constexpr GUID IID = GUIDLiteral("{B2FAF0E9-2D10-42CD-A05A-21F3E5A644E3}");
  virtual std::int32_t GetGetterVMTIndex() const = 0;
  virtual std::int32_t GetPropertyIndex() const = 0;
  virtual Ref<IRTTIClass> GetPropertyType() const = 0;
  virtual Ref<IRTTIValue> GetPropertyValue() const = 0;
  virtual TPropInfo GetPropInfo() const = 0;
  virtual bool GetReadOnly() const = 0;
  virtual std::int32_t GetSetterVMTIndex() const = 0;
  virtual void SetGetterVMTIndex(std::int32_t Value) = 0;
  virtual void SetPropertyIndex(std::int32_t Value) = 0;
  virtual void SetPropertyType(const Ref<IRTTIClass>& Value) = 0;
  virtual void SetPropertyValue(const Ref<IRTTIValue>& Value) = 0;
  virtual void SetPropInfo(TPropInfo Value) = 0;
  virtual void SetReadOnly(bool Value) = 0;
  virtual void SetSetterVMTIndex(std::int32_t Value) = 0;
};

/// A method of a class; its parameters are properties.
struct GELLO_API IRTTIMethod : virtual IRTTIElement {
  static constexpr GUID IID = GUIDLiteral("{F2A2222E-B4CC-4781-B445-73EB354E0A3F}");
  virtual bool GetCollectionOp() const = 0;
  virtual Ref<IRTTIElementList> GetParams() const = 0;
  virtual Ref<IRTTIClass> GetResultType() const = 0;
  virtual Ref<IRTTIValue> GetResultValue() const = 0;
  virtual std::int32_t GetVmtIndex() const = 0;
  virtual void SetCollectionOp(bool Value) = 0;
  virtual void SetParams(const Ref<IRTTIElementList>& Value) = 0;
  virtual void SetResultType(const Ref<IRTTIClass>& Value) = 0;
  virtual void SetResultValue(const Ref<IRTTIValue>& Value) = 0;
  virtual void SetVmtIndex(std::int32_t Value) = 0;
};

/// A node of a compiled expression: an element with a value type.
struct GELLO_API IRTTIValue : virtual IRTTIElement {
  static constexpr GUID IID = GUIDLiteral("{DA11888B-C93D-4897-9DF9-DDE48E16B459}");
  virtual Ref<IRTTIClass> GetValueType() const = 0;
  virtual void SetValueType(const Ref<IRTTIClass>& Value) = 0;
};

/// A constant value with a text form.
struct GELLO_API IRTTILiteral : virtual IRTTIValue {
  static constexpr GUID IID = GUIDLiteral("{7F092E4E-2D29-4543-B23B-1326BF5BE2BE}");
  virtual String GetasString() const = 0;
  virtual void SetasString(const String& Value) = 0;
};

/// The unit in which a model is loaded, resolved and saved.
struct GELLO_API IRTTIPackage : virtual IRTTIScope {
  static constexpr GUID IID = GUIDLiteral("{262219F1-70F0-4F96-AFB6-C8528F1AE783}");
  virtual Ref<IRTTIElementList> GetImports() const = 0;
  virtual void SetImports(const Ref<IRTTIElementList>& Value) = 0;
  virtual Ref<IRTTIValue> GetMainBlock() const = 0;
  virtual void SetMainBlock(const Ref<IRTTIValue>& Value) = 0;
  virtual std::int32_t GetUseCount() const = 0;
  virtual void Use() = 0;
  virtual void Unuse() = 0;
  virtual Ref<IRTTIClass> FindAddClass(const String& Name, IRTTIGlobals* Globals) = 0;
  virtual void BuildFactory() = 0;
};

/// The scope that holds loaded packages.
struct GELLO_API IRTTIPackageList : virtual IRTTIScope {
  static constexpr GUID IID = GUIDLiteral("{C6778CA1-073B-4B19-AFB0-4A0083C38E19}");
  virtual Ref<IRTTIPackage> FindPackage(const String& Name) = 0;
};

/// The root of every model: the packages, System first, and the built-in types.
struct GELLO_API IRTTIGlobals : virtual IRTTIPackage {
  static constexpr GUID IID = GUIDLiteral("{F465329E-A9A2-4B56-BE9E-D361B12E5A98}");
  virtual Ref<IRTTIClass> Get_Any() const = 0;
  virtual Ref<IRTTIClass> Get_Bag() const = 0;
  virtual Ref<IRTTIClass> Get_Boolean() const = 0;
  virtual Ref<IRTTIClass> Get_Collection() const = 0;
  virtual Ref<IRTTIClass> Get_Integer() const = 0;
  virtual Ref<IRTTIClass> Get_Real() const = 0;
  virtual Ref<IRTTIClass> Get_Sequence() const = 0;
  virtual Ref<IRTTIClass> Get_Set() const = 0;
  virtual Ref<IRTTIClass> Get_String() const = 0;
  virtual Ref<IRTTIPackage> Get_System() const = 0;
  virtual Ref<IRTTIClass> Get_T() const = 0;
  virtual Ref<IRTTIClass> Get_Tuple() const = 0;
  virtual Ref<IRTTIClass> Get_Undefined() const = 0;
  virtual Ref<IRTTIClass> Get_Untyped() const = 0;
  virtual Ref<IRTTIPackage> Get_Main() = 0;
  virtual Ref<IRTTIPackage> GetPackageScope() const = 0;
  virtual void SetPackageScope(const Ref<IRTTIPackage>& Value) = 0;
  virtual Ref<IRTTIClass> BuildClass(const String& Name) = 0;
  virtual Ref<IRTTIClass> BuildCollection(const String& CollectionName,
                                          const String& ElementName) = 0;
};

}  // namespace gello
