// The method tables of the OCL value interfaces, each in slot order.
#include "gello/registry/IntfDecl.h"

namespace gello {
namespace {

using I = IRTTIClassInstance;
constexpr TIntfEntry InstanceEntries[] = {
    Internal<I, &I::CreateProperty, "CreateProperty", "Name">,
    Internal<I, &I::ClassFactory, "ClassFactory", "ClassName">,
    Internal<I, &I::GetasCompactJSON, "GetasCompactJSON">,
    Internal<I, &I::GetasJSON, "GetasJSON">,
    Internal<I, &I::GetasObject, "GetasObject">,
    Internal<I, &I::GetasString, "GetasString">,
    Internal<I, &I::GetasToken, "GetasToken">,
    Internal<I, &I::GetInstanceType, "GetInstanceType">,
    Internal<I, &I::GetPropertyByName, "GetPropertyByName", "Name">,
    Internal<I, &I::GetPropertyCount, "GetPropertyCount">,
    Internal<I, &I::GetPropertyName, "GetPropertyName", "Index">,
    Internal<I, &I::GetPropertyValue, "GetPropertyValue", "Index">,
    Internal<I, &I::SetasCompactJSON, "SetasCompactJSON", "Value">,
    Internal<I, &I::SetasJSON, "SetasJSON", "Value">,
    Internal<I, &I::SetasString, "SetasString", "Value">,
    Internal<I, &I::SetasToken, "SetasToken", "Value">,
    Internal<I, &I::SetInstanceType, "SetInstanceType", "Value">,
    Internal<I, &I::SetPropertyByName, "SetPropertyByName", "Name", "Value">,
    Internal<I, &I::SetPropertyValue, "SetPropertyValue", "Index", "Value">,
    Property<I, &I::GetPropertyByName, "PropertyByName", "Name">,
    Property<I, &I::GetPropertyName, "PropertyName", "Index">,
    Property<I, &I::GetPropertyValue, "PropertyValue", "Index">};

using A = IOCLAny;
constexpr TIntfEntry AnyEntries[] = {
    Script<A, &A::allInstances, "allInstances">,
    // Display and GetExceptions answer host values (text, the reason chain), which a script
    // slot cannot carry: they are internal here.
    Internal<A, &A::Display, "Display">, Internal<A, &A::GetExceptions, "GetExceptions">,
    Internal<A, &A::GetExceptionMessage, "GetExceptionMessage">,
    Internal<A, &A::isEqual, "isEqual", "Other">, Internal<A, &A::GetunDefined, "GetunDefined">,
    Internal<A, &A::_LessThan, "_LessThan", "Other">, Script<A, &A::oclAsType, "oclAsType", "t">,
    Script<A, &A::oclIsDefined, "oclIsDefined">,
    Script<A, &A::oclIsInState, "oclIsInState", "statename">,
    Script<A, &A::oclIsKindOf, "oclIsKindOf", "baseType">, Script<A, &A::oclType, "oclType">,
    Script<A, &A::_EQ_, "_EQ_", "o">, Script<A, &A::_NE_, "_NE_", "o">};

constexpr TIntfEntry TypeEntries[] = {
    Internal<IOCLT, &IOCLT::GetOCLClassType, "GetOCLClassType">,
    Internal<IOCLT, &IOCLT::SetOCLClassType, "SetOCLClassType", "Value">};

using S = IOCLString;
using StringTest = Ref<IOCLBoolean>(IOCLString*) const;
constexpr TIntfEntry StringEntries[] = {
    Script<S, &S::concat, "concat", "rhs">,
    Internal<S, &S::GetasString, "GetasString">,
    Script<S, &S::lpad, "lpad", "size", "padChar">,
    Script<S, &S::ltrim, "ltrim", "trimChars">,
    Script<S, &S::replace, "replace", "replaceThis", "withThis">,
    Script<S, &S::rpad, "rpad", "size", "padChar">,
    Script<S, &S::rtrim, "rtrim", "trimChars">,
    Internal<S, &S::SetasString, "SetasString", "Value">,
    Script<S, &S::size, "size">,
    Script<S, &S::substring, "substring", "lower", "upper">,
    Script<S, &S::toInteger, "toInteger">,
    Script<S, &S::toLower, "toLower">,
    Script<S, &S::toReal, "toReal">,
    Script<S, &S::toUpper, "toUpper">,
    Script<S, Pick<StringTest>(&S::_EQ_), "_EQ_", "rhs">,
    Script<S, Pick<StringTest>(&S::_NE_), "_NE_", "rhs">};

using B = IOCLBoolean;
using BooleanOp = Ref<IOCLBoolean>(IOCLBoolean*) const;
constexpr TIntfEntry BooleanEntries[] = {
    Internal<B, &B::GetasBoolean, "GetasBoolean">,
    Internal<B, &B::GetasExtendedBoolean, "GetasExtendedBoolean">,
    Script<B, &B::asOCLString, "asOCLString">,
    Script<B, &B::implies, "implies", "rhs">,
    Internal<B, &B::SetasBoolean, "SetasBoolean", "Value">,
    Internal<B, &B::SetasExtendedBoolean, "SetasExtendedBoolean", "Value">,
    Script<B, &B::_AND_, "_AND_", "rhs">,
    Script<B, Pick<BooleanOp>(&B::_EQ_), "_EQ_", "rhs">,
    Script<B, Pick<BooleanOp>(&B::_NE_), "_NE_", "rhs">,
    Script<B, &B::_NOT_, "_NOT_">,
    Script<B, &B::_OR_, "_OR_", "rhs">,
    Script<B, &B::_XOR_, "_XOR_", "rhs">};

using R = IOCLReal;
using RealTest = Ref<IOCLBoolean>(IOCLReal*) const;
constexpr TIntfEntry RealEntries[] = {Script<R, &R::abs, "abs">,
                                      Script<R, &R::ceiling, "ceiling">,
                                      Script<R, &R::floor, "floor">,
                                      Internal<R, &R::GetasExtended, "GetasExtended">,
                                      Script<R, &R::inverted, "inverted">,
                                      Script<R, &R::max, "max", "rhs">,
                                      Script<R, &R::min, "min", "rhs">,
                                      Script<R, &R::power, "power", "rhs">,
                                      Script<R, &R::round, "round">,
                                      Internal<R, &R::SetasExtended, "SetasExtended", "Value">,
                                      Script<R, &R::toChar, "toChar">,
                                      Script<R, &R::toCharFormat, "toCharFormat", "decimalPlaces">,
                                      Script<R, &R::_ADD_, "_ADD_", "rhs">,
                                      Script<R, &R::_DIVIDE_, "_DIVIDE_", "rhs">,
                                      Script<R, Pick<RealTest>(&R::_EQ_), "_EQ_", "rhs">,
                                      Script<R, &R::_GE_, "_GE_", "rhs">,
                                      Script<R, &R::_GT_, "_GT_", "rhs">,
                                      Script<R, &R::_LE_, "_LE_", "rhs">,
                                      Script<R, &R::_LT_, "_LT_", "rhs">,
                                      Script<R, &R::_MULTIPLY_, "_MULTIPLY_", "rhs">,
                                      Script<R, &R::_NEGATE_, "_NEGATE_">,
                                      Script<R, Pick<RealTest>(&R::_NE_), "_NE_", "rhs">,
                                      Script<R, &R::_SUBTRACT_, "_SUBTRACT_", "rhs">};

// abs, toChar and _NEGATE_ are the Real members; on an Integer they answer an Integer.
using N = IOCLInteger;
using IntegerOp = Ref<IOCLInteger>(IOCLInteger*) const;
constexpr TIntfEntry IntegerEntries[] = {
    ScriptAs<N, &R::abs, N, "abs">,
    Internal<N, &N::GetasInt64, "GetasInt64">,
    Script<N, Pick<IntegerOp>(&N::max), "max", "rhs">,
    Script<N, Pick<IntegerOp>(&N::min), "min", "rhs">,
    Internal<N, &N::SetasInt64, "SetasInt64", "Value">,
    Script<N, &R::toChar, "toChar">,
    Script<N, Pick<IntegerOp>(&N::_ADD_), "_ADD_", "rhs">,
    Script<N, &N::_DIV_, "_DIV_", "rhs">,
    Script<N, &N::_MOD_, "_MOD_", "rhs">,
    Script<N, Pick<IntegerOp>(&N::_MULTIPLY_), "_MULTIPLY_", "rhs">,
    ScriptAs<N, &R::_NEGATE_, N, "_NEGATE_">,
    Script<N, Pick<IntegerOp>(&N::_SUBTRACT_), "_SUBTRACT_", "rhs">};

using C = IOCLCollection;
using CollectionTest = Ref<IOCLBoolean>(IOCLCollection*) const;
constexpr TIntfEntry CollectionEntries[] = {
    Internal<C, &C::Add, "Add", "Value">,
    Script<C, &C::excludes, "excludes", "o">,
    Script<C, &C::excludesAll, "excludesAll", "c">,
    Internal<C, &C::Exists, "Exists", "o">,
    Internal<C, &C::FastIterator, "FastIterator">,
    Script<C, &C::includes, "includes", "o">,
    Script<C, &C::includesAll, "includesAll", "c">,
    Script<C, &C::_COLLECTOP_exists, "_COLLECTOP_exists", "e">,
    Script<C, &C::_COLLECTOP_forAll, "_COLLECTOP_forAll", "e">,
    Internal<C, &C::GetCount, "GetCount">,
    Internal<C, &C::GetItems, "GetItems", "Index">,
    Script<C, &C::isEmpty, "isEmpty">,
    Internal<C, &C::iterate, "iterate", "element", "accumulator", "thunk_addr", "vm">,
    Script<C, &C::Iterator, "Iterator", "stable">,
    Script<C, &C::notEmpty, "notEmpty">,
    Internal<C, &C::SetCount, "SetCount", "Value">,
    Internal<C, &C::SetItems, "SetItems", "Index", "Value">,
    Script<C, &C::size, "size">,
    Script<C, &C::sort, "sort">,
    Script<C, &C::sum, "sum">,
    Script<C, &C::_COLLECTOP_sortedBy, "_COLLECTOP_sortedBy", "e">,
    Script<C, &C::_count_, "_count_", "o">,
    Script<C, Pick<CollectionTest>(&C::_EQ_), "_EQ_", "o">,
    Script<C, Pick<CollectionTest>(&C::_NE_), "_NE_", "o">,
    Internal<C, &C::InternalSort, "InternalSort">,
    Property<C, &C::GetItems, "Items", "Index">};

using Q = IOCLSequence;
constexpr TIntfEntry SequenceEntries[] = {
    Script<Q, &Q::append, "append", "o">,
    Script<Q, &Q::prepend, "prepend", "o">,
    Script<Q, &Q::at, "at", "i">,
    Script<Q, &Q::subSequence, "subSequence", "lower", "upper">,
    Script<Q, &Q::excluding, "excluding", "e">,
    Script<Q, &Q::first, "first">,
    Script<Q, &Q::last, "last">,
    Script<Q, &Q::flatten, "flatten">,
    Script<Q, &Q::including, "including", "e">,
    Script<Q, &Q::indexOf, "indexOf", "o">,
    Script<Q, &Q::insertAt, "insertAt", "i", "o">,
    Script<Q, &Q::reverse, "reverse">,
    Script<Q, &Q::union_, "union", "b">,
    Script<Q, &Q::_COLLECTOP_collect, "_COLLECTOP_collect", "e">,
    Script<Q, &Q::_COLLECTOP_reject, "_COLLECTOP_reject", "e">,
    Script<Q, &Q::_COLLECTOP_select, "_COLLECTOP_select", "e">};

using T = IOCLSet;
constexpr TIntfEntry SetEntries[] = {
    Script<T, &T::_COLLECTOP_select, "_COLLECTOP_select", "e">,
    Script<T, &T::_COLLECTOP_reject, "_COLLECTOP_reject", "e">,
    Script<T, &T::including, "including", "e">,
    Script<T, &T::excluding, "excluding", "e">,
    Script<T, &T::flatten, "flatten">,
    Script<T, Pick<Ref<IOCLBag>(IOCLBag*) const>(&T::union_), "union", "b">,
    Script<T, Pick<Ref<IOCLSet>(IOCLSet*) const>(&T::union_), "union", "s">,
    Script<T, Pick<Ref<IOCLBag>(IOCLBag*) const>(&T::intersection), "intersection", "b">,
    Script<T, Pick<Ref<IOCLSet>(IOCLSet*) const>(&T::intersection), "intersection", "s">,
    Script<T, &T::symmetricDifference, "symmetricDifference", "s">,
    Script<T, &T::_COLLECTOP_collect, "_COLLECTOP_collect", "e">,
    Script<T, &T::_SUBTRACT_, "_SUBTRACT_", "s">};

using G = IOCLBag;
constexpr TIntfEntry BagEntries[] = {
    Script<G, &G::excluding, "excluding", "e">,
    Script<G, &G::flatten, "flatten">,
    Script<G, &G::including, "including", "e">,
    Script<G, Pick<Ref<IOCLBag>(IOCLSet*) const>(&G::intersection), "intersection", "s">,
    Script<G, Pick<Ref<IOCLBag>(IOCLBag*) const>(&G::intersection), "intersection", "b">,
    Script<G, Pick<Ref<IOCLBag>(IOCLSet*) const>(&G::union_), "union", "s">,
    Script<G, Pick<Ref<IOCLBag>(IOCLBag*) const>(&G::union_), "union", "b">,
    Script<G, &G::_COLLECTOP_reject, "_COLLECTOP_reject", "e">,
    Script<G, &G::_COLLECTOP_select, "_COLLECTOP_select", "e">,
    Script<G, &G::_COLLECTOP_collect, "_COLLECTOP_collect", "e">};

using W = IOCLIterator;
constexpr TIntfEntry IteratorEntries[] = {
    Internal<W, &W::at_end, "at_end">,
    Script<W, &W::get_element, "get_element">,
    Internal<W, &W::get_next_element, "get_next_element", "TheElement">,
    Script<W, &W::is_stable, "is_stable">,
    Internal<W, &W::next_position, "next_position">,
    Internal<W, &W::replace_element, "replace_element", "AElement">,
    Internal<W, &W::reset, "reset">};

}  // namespace

constinit const TIntfInfo TDescribed<RefCounted>::Info{
    {"IInterface", hc_interface}, IID_IInterface, nullptr, 3, false, {},
    &detail::Supports<RefCounted>};
constinit const TIntfInfo TDescribed<IInvokable>::Info =
    DescribeEmptyIntf<IInvokable, RefCounted>();
constinit const TIntfInfo TDescribed<IRTTIClassInstance>::Info =
    DescribeIntf<IRTTIClassInstance, RefCounted>(InstanceEntries);
constinit const TIntfInfo TDescribed<IOCLAny>::Info =
    DescribeIntf<IOCLAny, IRTTIClassInstance>(AnyEntries);
constinit const TIntfInfo TDescribed<IOCLT>::Info = DescribeIntf<IOCLT, IOCLAny>(TypeEntries);
constinit const TIntfInfo TDescribed<IOCLString>::Info =
    DescribeIntf<IOCLString, IOCLAny>(StringEntries);
constinit const TIntfInfo TDescribed<IOCLBoolean>::Info =
    DescribeIntf<IOCLBoolean, IOCLAny>(BooleanEntries);
constinit const TIntfInfo TDescribed<IOCLReal>::Info = DescribeIntf<IOCLReal, IOCLAny>(RealEntries);
constinit const TIntfInfo TDescribed<IOCLInteger>::Info =
    DescribeIntf<IOCLInteger, IOCLReal>(IntegerEntries);
constinit const TIntfInfo TDescribed<IOCLCollection>::Info =
    DescribeIntf<IOCLCollection, IOCLAny>(CollectionEntries);
constinit const TIntfInfo TDescribed<IOCLTuple>::Info = DescribeEmptyIntf<IOCLTuple, IOCLAny>();
constinit const TIntfInfo TDescribed<IOCLSequence>::Info =
    DescribeIntf<IOCLSequence, IOCLCollection>(SequenceEntries);
constinit const TIntfInfo TDescribed<IOCLSet>::Info =
    DescribeIntf<IOCLSet, IOCLCollection>(SetEntries);
constinit const TIntfInfo TDescribed<IOCLBag>::Info =
    DescribeIntf<IOCLBag, IOCLCollection>(BagEntries);
constinit const TIntfInfo TDescribed<IOCLIterator>::Info =
    DescribeIntf<IOCLIterator, IOCLAny>(IteratorEntries);

}  // namespace gello
