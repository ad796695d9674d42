#include <gtest/gtest.h>

#include <atomic>
#include <thread>
#include <vector>
#include "gello/ocl/Boolean.h"
#include "gello/ocl/Integer.h"
#include "gello/ocl/Set.h"

using namespace gello;

namespace {

constexpr int Threads = 4;
constexpr int Rounds = 20000;

// Runs Body on several threads at once and returns the number of wrong answers they saw.
template <class Fn>
int RunTogether(Fn Body) {
  std::atomic<int> Ready{0}, Wrong{0};
  std::vector<std::thread> Workers;
  for (int t = 0; t < Threads; ++t)
    Workers.emplace_back([&] {
      Ready.fetch_add(1);
      while (Ready.load() < Threads) {
      }
      for (int i = 0; i < Rounds; ++i)
        if (!Body(i)) Wrong.fetch_add(1);
    });
  for (std::thread& Worker : Workers)
    Worker.join();
  return Wrong.load();
}

}  // namespace

TEST(ThreadTest, SharedBooleansAreCountedAndReadFromManyThreads) {
  Ref<IOCLBoolean> True = TOCLBoolean::BooleanValue(true);
  IOCLBoolean* Unknown = TOCLBoolean::BooleanValue(rtti_unknown).get();
  IOCLBoolean* False = TOCLBoolean::BooleanValue(false).get();
  const int CountBefore = True->GetRefCount();
  int Wrong = RunTogether([&](int i) {
    Ref<IOCLBoolean> Held = True;  // a reference taken and dropped on every round
    Ref<IOCLBoolean> And = Held->_AND_(i % 2 ? Unknown : False);
    Ref<IOCLBoolean> Back = And->_NOT_()->_OR_(Held.get());
    return And.get() == (i % 2 ? Unknown : False) && Back.get() == True.get() &&
           Held->_EQ_(Held.get()).get() == True.get();
  });
  EXPECT_EQ(Wrong, 0);
  EXPECT_EQ(True->GetRefCount(), CountBefore);
}

TEST(ThreadTest, ASharedNumberServesOperationsFromManyThreads) {
  Ref<IOCLInteger> Two = MakeRef<TOCLInteger>(2);
  int Wrong = RunTogether([&](int i) {
    auto Mine = MakeRef<TOCLInteger>(i);
    Ref<IOCLInteger> Sum = Mine->_ADD_(Two.get());
    Ref<IOCLInteger> Product = Two->_MULTIPLY_(Mine.get());
    return Sum->GetasInt64() == i + 2 && Product->GetasInt64() == 2 * i;
  });
  EXPECT_EQ(Wrong, 0);
  EXPECT_EQ(Two->GetRefCount(), 1);
}

TEST(ThreadTest, ASharedSetAnswersMembershipAndCopiesFromManyThreads) {
  // Questions and copies never change the receiver, so a shared Set needs no lock.
  auto Shared = MakeRef<TOCLSet>();
  for (int i = 0; i < 1000; ++i)
    Shared->Add(MakeRef<TOCLInteger>(i * 2));
  int Wrong = RunTogether([&](int i) {
    auto Asked = MakeRef<TOCLInteger>(i % 2000);
    Ref<IOCLSet> Grown = Shared->including(Asked.get());
    return Shared->Exists(Asked.get()) == (i % 2 == 0) && Grown->Exists(Asked.get()) &&
           Grown->GetCount() == (i % 2 == 0 ? 1000 : 1001);
  });
  EXPECT_EQ(Wrong, 0);
  EXPECT_EQ(Shared->GetCount(), 1000);
}

TEST(ThreadTest, OlderVersionsAreReadWhileTheNewestAppendsInPlace) {
  // One thread builds a Set by including, element after element; the others read the versions
  // already made while it appends to the store they share.
  constexpr int Count = Rounds;
  std::vector<Ref<IOCLSet>> Versions(Count);
  std::atomic<int> Published{0};
  std::thread Builder([&] {
    Ref<IOCLSet> Last = MakeRef<TOCLSet>();
    for (int i = 0; i < Count; ++i) {
      Last = Last->including(MakeRef<TOCLInteger>(i).get());
      Versions[static_cast<std::size_t>(i)] = Last;
      Published.store(i + 1, std::memory_order_release);
    }
  });
  int Wrong = RunTogether([&](int i) {
    int Seen = Published.load(std::memory_order_acquire);
    if (Seen == 0) return true;
    int k = i % Seen;
    const Ref<IOCLSet>& Version = Versions[static_cast<std::size_t>(k)];
    return Version->GetCount() == k + 1 && Version->Exists(MakeRef<TOCLInteger>(k).get()) &&
           !Version->Exists(MakeRef<TOCLInteger>(k + 1).get());
  });
  Builder.join();
  EXPECT_EQ(Wrong, 0);
  EXPECT_EQ(Versions.back()->GetCount(), Count);
}
