#pragma once
// Guards for walks up an ancestor chain: a loop of any length ends the chain with one log line.
#include <algorithm>
#include <cstdint>
#include <vector>

#include "gello/model/Interfaces.h"

namespace gello {

/// Writes the line that reports a loop met in Operation at the class named Name.
void LogAncestorLoop(StringView Operation, const String& Name);

/// Marks one recursive operation as running on one class; a second entry means the chain loops.
class TWalkGuard {
 public:
  /// Bit selects the operation in Flags; Operation names it in the log line when Report is set.
  TWalkGuard(std::uint32_t& Flags, std::uint32_t Bit, StringView Operation, const String& Name,
             bool Report = true);
  ~TWalkGuard();
  TWalkGuard(const TWalkGuard&) = delete;
  TWalkGuard& operator=(const TWalkGuard&) = delete;
  bool Looped() const { return FLooped; }

 private:
  std::uint32_t& FFlags;
  std::uint32_t FBit;
  bool FLooped;
};

/// The classes a walk has passed; chains are short, so they are kept in place up to a depth.
class TSeenClasses {
 public:
  void Add(IRTTIClass* Class) {
    if (FCount < Inline)
      FInline[FCount] = Class;
    else
      FMore.push_back(Class);
    ++FCount;
  }
  bool Contains(IRTTIClass* Class) const {
    for (std::size_t i = 0; i < FCount && i < Inline; ++i)
      if (FInline[i] == Class) return true;
    return std::find(FMore.begin(), FMore.end(), Class) != FMore.end();
  }

 private:
  static constexpr std::size_t Inline = 16;
  IRTTIClass* FInline[Inline];
  std::size_t FCount = 0;
  std::vector<IRTTIClass*> FMore;
};

/// Calls Visit(c) for Start and each ancestor until it returns true or the chain ends or loops.
template <class F>
void WalkAncestors(IRTTIClass* Start, StringView Operation, F Visit) {
  TSeenClasses Seen;
  Ref<IRTTIClass> C(Start);
  while (C) {
    Seen.Add(C.get());
    if (Visit(C.get())) return;
    Ref<IRTTIClass> Next = C->GetAncestor();
    if (Next && Seen.Contains(Next.get())) {
      LogAncestorLoop(Operation, C->GetName());
      return;
    }
    C = Next;
  }
}

}  // namespace gello
