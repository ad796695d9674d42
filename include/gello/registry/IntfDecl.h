#pragma once
// Declares an interface's method table once, in slot order, from member-function pointers:
//
//   constexpr TIntfEntry Entries[] = {Script<IFoo, &IFoo::bar, "bar", "rhs">, ...};
//   constinit const TIntfInfo TDescribed<IFoo>::Info = DescribeIntf<IFoo, IParent>(Entries);
//
// Parameter and result types come from the pointer; the names, which C++ cannot see, are given
// as literals and must be one per parameter. Each entry carries its slot thunks.
#include <algorithm>
#include <cstddef>
#include <string_view>
#include <type_traits>
#include <utility>
#include "gello/foundation/Export.h"

#include "gello/foundation/CachedCast.h"
#include "gello/registry/OCLIntfTables.h"

namespace gello {

/// A string literal usable as a template argument.
template <std::size_t N>
struct TLit {
  char Text[N];
  consteval TLit(const char (&S)[N]) { std::copy_n(S, N, Text); }
};

/// The name of an interface type; described interfaces answer their own.
template <class I>
struct TIntfName {
  static constexpr const char* Text = TDescribed<I>::Name;
};
template <>
struct TIntfName<IRTTIClass> {
  static constexpr const char* Text = "IRTTIClass";
};
template <>
struct TIntfName<IFastIterator> {
  static constexpr const char* Text = "IFastIterator";
};
template <>
struct TIntfName<IGelloVM> {
  static constexpr const char* Text = "IGelloVM";
};

/// The object behind a native-interface value, or the value itself (registry/NativeInterface).
GELLO_API RefCounted* NativeTarget(IOCLAny* Value) noexcept;
/// Raised when Self does not support the interface whose slot is called.
[[noreturn]] GELLO_API void RaiseUnsupportedSelf(const char* IntfName);

namespace detail {

template <class... A>
struct TTypes {};

template <class F>
struct TFnTraits;
template <class R, class C, class... A>
struct TFnTraits<R (C::*)(A...)> {
  using Result = R;
  using Class = C;
  using Args = TTypes<A...>;
};
template <class R, class C, class... A>
struct TFnTraits<R (C::*)(A...) const> : TFnTraits<R (C::*)(A...)> {};

// The interface a parameter or result type refers to (void for host values).
template <class T>
struct TIntfOf {
  using Type = void;
};
template <class I>
struct TIntfOf<I*> {
  using Type = std::conditional_t<
      std::conjunction_v<std::negation<std::is_const<I>>, std::is_base_of<RefCounted, I>>, I, void>;
};
template <class I>
struct TIntfOf<Ref<I>> {
  using Type = I;
};
template <class T>
using IntfOf = typename TIntfOf<std::remove_cvref_t<T>>::Type;

template <class T>
consteval const char* TypeName() {
  using V = std::remove_cvref_t<T>;
  if constexpr (!std::is_void_v<IntfOf<T>>)
    return TIntfName<IntfOf<T>>::Text;
  else if constexpr (std::is_same_v<V, std::int32_t>)
    return "Integer";
  else if constexpr (std::is_same_v<V, std::int64_t>)
    return "Int64";
  else if constexpr (std::is_same_v<V, bool>)
    return "Boolean";
  else if constexpr (std::is_same_v<V, Extended>)
    return "Extended";
  else if constexpr (std::is_same_v<V, String>)
    return "string";
  else if constexpr (std::is_same_v<V, TRTTIExtendedBoolean>)
    return "TRTTIExtendedBoolean";
  else if constexpr (std::is_same_v<V, TJSON>)
    return "TJSON";
  else if constexpr (std::is_same_v<V, const RefCounted*>)
    return "TObject";
  else if constexpr (std::is_same_v<V, const TInternalOCLException*>)
    return "TInternalOCLException";
  else
    static_assert(sizeof(T) == 0, "no type name for this parameter type");
}

template <class T>
consteval const TIntfInfo* TypeRef() {
  using I = IntfOf<T>;
  if constexpr (std::is_void_v<I>)
    return nullptr;
  else if constexpr (TDescribed<I>::Known)
    return &TDescribed<I>::Info;
  else
    return nullptr;
}

template <class T>
consteval THostKind KindOf() {
  using V = std::remove_cvref_t<T>;
  if constexpr (!std::is_void_v<IntfOf<T>>)
    return hk_interface;
  else if constexpr (std::is_same_v<V, std::int32_t>)
    return hk_integer;
  else if constexpr (std::is_same_v<V, bool>)
    return hk_boolean;
  else if constexpr (std::is_same_v<V, Extended>)
    return hk_float;
  else if constexpr (std::is_same_v<V, String>)
    return hk_string;
  else
    return hk_other;
}

template <class T>
consteval std::uint8_t FlagsOf() {
  if constexpr (!std::is_reference_v<T>)
    return 0;
  else if constexpr (std::is_const_v<std::remove_reference_t<T>>)
    return pf_const;
  else
    return pf_var;
}

template <class T>
consteval TIntfParam MakeParam(const char* Name) {
  return TIntfParam{FlagsOf<T>(), Name, TypeName<T>(), TypeRef<T>(), KindOf<T>()};
}

template <class I, class Args, TLit... Names>
struct TParamTable;
template <class I, class... A, TLit... Names>
struct TParamTable<I, TTypes<A...>, Names...> {
  static_assert(sizeof...(A) == sizeof...(Names), "give one name per parameter");
  static constexpr TIntfParam WithSelf[] = {MakeParam<I*>("Self"), MakeParam<A>(Names.Text)...};
  static constexpr std::span<const TIntfParam> WithoutSelf{WithSelf + 1, sizeof...(A)};
};

// An argument as the parameter type wants it: OCL interfaces by query, others unwrapped from
// their native-interface value first.
template <class T>
T ArgAs(IOCLAny* Arg) {
  using P = std::remove_pointer_t<T>;
  if constexpr (std::is_same_v<P, IOCLAny>)
    return Arg;
  else if constexpr (std::is_base_of_v<IOCLAny, P>)
    return CachedCast<P>(Arg);
  else
    return CachedCast<P>(NativeTarget(Arg));
}

// Self, or the host object of a native-interface value.
template <class I>
I* SelfAs(RefCounted* Self) {
  I* Target = CachedCast<I>(Self);
  if (!Target) Target = CachedCast<I>(NativeTarget(CachedCast<IOCLAny>(Self)));
  if (!Target) RaiseUnsupportedSelf(TIntfName<I>::Text);
  return Target;
}

template <class R>
constexpr bool OCLResult = std::is_void_v<R> || std::is_base_of_v<IOCLAny, IntfOf<R>>;

template <class... A>
struct TFirst {
  using Type = void;
};
template <class F, class... A>
struct TFirst<F, A...> {
  using Type = F;
};

template <class I, auto Fn, class Args>
struct TThunks;
template <class I, auto Fn, class... A>
struct TThunks<I, Fn, TTypes<A...>> {
  using R = typename TFnTraits<decltype(Fn)>::Result;
  using A0 = typename TFirst<A...>::Type;

  static Ref<IOCLAny> Call(RefCounted* Self, std::span<IOCLAny* const> Args) {
    I* Target = SelfAs<I>(Self);
    return [&]<std::size_t... K>(std::index_sequence<K...>)->Ref<IOCLAny> {
      if constexpr (std::is_void_v<R>) {
        (Target->*Fn)(ArgAs<A>(Args[K])...);
        return nullptr;
      } else {
        return (Target->*Fn)(ArgAs<A>(Args[K])...);
      }
    }
    (std::index_sequence_for<A...>{});
  }
  static consteval TSlotCall CallOrNone() {
    if constexpr (OCLResult<R> && (std::is_pointer_v<A> && ...) &&
                  (!std::is_void_v<IntfOf<A>> && ...))
      return &Call;
    else
      return nullptr;
  }

  template <class V>
  static V Get(RefCounted* Self) {
    return (SelfAs<I>(Self)->*Fn)();
  }
  template <class V>
  static void Set(RefCounted* Self, V Value) {
    if constexpr (std::is_void_v<IntfOf<A0>>)
      (SelfAs<I>(Self)->*Fn)(Value);
    else
      (SelfAs<I>(Self)->*Fn)(CachedCast<IntfOf<A0>>(Value));
  }
  // A getter (no argument, a host-kind result) or a setter (one host-kind argument, no result).
  static consteval TAccessor AccessorOrNone() {
    TAccessor Result;
    if constexpr (sizeof...(A) == 0 && !std::is_void_v<R>) {
      constexpr THostKind Kind = KindOf<R>();
      if constexpr (Kind == hk_integer)
        Result.GetInt = &Get<std::int32_t>;
      else if constexpr (Kind == hk_boolean)
        Result.GetBool = &Get<bool>;
      else if constexpr (Kind == hk_float)
        Result.GetReal = &Get<Extended>;
      else if constexpr (Kind == hk_string)
        Result.GetStr = &Get<String>;
      else if constexpr (Kind == hk_interface)
        Result.GetIntf = &Get<Ref<RefCounted>>;
    } else if constexpr (sizeof...(A) == 1 && std::is_void_v<R>) {
      constexpr THostKind Kind = KindOf<A0>();
      if constexpr (Kind == hk_integer)
        Result.SetInt = &Set<std::int32_t>;
      else if constexpr (Kind == hk_boolean)
        Result.SetBool = &Set<bool>;
      else if constexpr (Kind == hk_float)
        Result.SetReal = &Set<Extended>;
      else if constexpr (Kind == hk_string)
        Result.SetStr = &Set<const String&>;
      else if constexpr (Kind == hk_interface)
        Result.SetIntf = &Set<RefCounted*>;
    }
    return Result;
  }
};

// Result is the result type as described; it may name a narrower interface than Fn answers.
template <class I, auto Fn, class Result, TCallConv Conv, bool SelfMethod, TLit... Params>
consteval TIntfEntry MakeEntry(const char* Name) {
  using F = TFnTraits<decltype(Fn)>;
  static_assert(std::is_base_of_v<typename F::Class, I>, "the method must belong to the interface");
  using R = Result;
  using Table = TParamTable<I, typename F::Args, Params...>;
  using Thunks = TThunks<I, Fn, typename F::Args>;
  TIntfEntry Entry{{},
                   Name,
                   std::is_void_v<R> ? mk_procedure : mk_function,
                   Conv,
                   SelfMethod ? std::span<const TIntfParam>(Table::WithSelf) : Table::WithoutSelf};
  if constexpr (!std::is_void_v<R>) {
    Entry.ResultTypeName = TypeName<R>();
    Entry.ResultType = TypeRef<R>();
    Entry.ResultKind = KindOf<R>();
  }
  if (SelfMethod) {
    Entry.Call = Thunks::CallOrNone();
    Entry.Accessor = Thunks::AccessorOrNone();
  }
  return Entry;
}

template <class I>
bool Supports(const RefCounted* Object) {
  return CachedCast<I>(Object) != nullptr;
}

}  // namespace detail

template <auto Fn>
using ResultOf = typename detail::TFnTraits<decltype(Fn)>::Result;

/// A callable entry of interface I with any calling convention.
template <class I, auto Fn, TCallConv Conv, TLit Name, TLit... Params>
inline constexpr TIntfEntry Method =
    detail::MakeEntry<I, Fn, ResultOf<Fn>, Conv, true, Params...>(Name.Text);
/// A script operation (stdcall): exposed to GELLO by the registry.
template <class I, auto Fn, TLit Name, TLit... Params>
inline constexpr TIntfEntry Script = Method<I, Fn, cc_stdcall, Name, Params...>;
/// A script operation described with the narrower result R, which Fn answers at run time.
template <class I, auto Fn, class R, TLit Name, TLit... Params>
inline constexpr TIntfEntry ScriptAs =
    detail::MakeEntry<I, Fn, Ref<R>, cc_stdcall, true, Params...>(Name.Text);
/// An internal accessor (register): used by the engine, not exposed to GELLO.
template <class I, auto Fn, TLit Name, TLit... Params>
inline constexpr TIntfEntry Internal = Method<I, Fn, cc_register, Name, Params...>;
/// A property description over its getter; it is listed but takes no slot.
template <class I, auto Getter, TLit Name, TLit... Params>
inline constexpr TIntfEntry Property =
    detail::MakeEntry<I, Getter, ResultOf<Getter>, cc_register, false, Params...>(Name.Text);

/// One overload of a member function: Pick<Ref<IOCLSet>(IOCLSet*) const>(&IOCLSet::union_).
template <class Sig, class C>
consteval auto Pick(Sig C::*Fn) {
  return Fn;
}

/// The description of I below Parent, with its entries in slot order (property entries last).
template <class I, class Parent, std::size_t N>
consteval TIntfInfo DescribeIntf(const TIntfEntry (&Entries)[N]) {
  bool SeenProperty = false;
  for (const TIntfEntry& Entry : Entries) {
    const bool Callable = !Entry.Params.empty() && std::string_view(Entry.Params[0].Name) == "Self";
    if (Callable && SeenProperty) throw "property entries must come after the methods";
    SeenProperty = SeenProperty || !Callable;
  }
  return TIntfInfo{{TDescribed<I>::Name, hc_interface},
                   I::IID,
                   &TDescribed<Parent>::Info,
                   static_cast<std::uint16_t>(N),
                   true,
                   Entries,
                   &detail::Supports<I>};
}

/// The description of an interface with no entries of its own.
template <class I, class Parent>
consteval TIntfInfo DescribeEmptyIntf() {
  return TIntfInfo{{TDescribed<I>::Name, hc_interface},
                   I::IID,
                   &TDescribed<Parent>::Info,
                   0,
                   true,
                   {},
                   &detail::Supports<I>};
}

}  // namespace gello
