#pragma once
// Collections of Integers, Reals and Strings for the collection tests.
#include <initializer_list>
#include "gello/ocl/Bag.h"
#include "gello/ocl/Integer.h"
#include "gello/ocl/Sequence.h"
#include "gello/ocl/Set.h"
#include "gello/ocl/String.h"

namespace gello {

inline Ref<IOCLInteger> Int(std::int64_t Value) {
  return MakeRef<TOCLInteger>(Value);
}

template <class C>
Ref<C> Of(std::initializer_list<std::int64_t> Values) {
  auto Result = MakeRef<C>();
  for (std::int64_t Value : Values)
    Result->Add(Int(Value));
  return Result;
}

inline Ref<TOCLSequence> Seq(std::initializer_list<std::int64_t> Values) {
  return Of<TOCLSequence>(Values);
}

inline Ref<TOCLSet> SetOf(std::initializer_list<std::int64_t> Values) {
  return Of<TOCLSet>(Values);
}

inline Ref<TOCLBag> BagOf(std::initializer_list<std::int64_t> Values) {
  return Of<TOCLBag>(Values);
}

inline String Text(const Ref<IOCLAny>& Value) {
  return Value ? Value->GetasString() : u"nil";
}

}  // namespace gello
