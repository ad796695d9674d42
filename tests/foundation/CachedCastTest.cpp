#include "gello/foundation/CachedCast.h"

#include <gtest/gtest.h>

#include "gello/foundation/RefCounted.h"

using namespace gello;

namespace {

struct IFirst : public virtual RefCounted {};
struct ISecond : public virtual RefCounted {};
struct IThird : public virtual RefCounted {};

// Casts itself while it is being built: as part of TOuter its bases lie elsewhere than in a TInner
// of its own, and an answer kept from one must not be given for the other.
struct TInner : public virtual IFirst, public virtual ISecond {
  TInner() { SeenWhileBuilt = CachedCast<ISecond>(static_cast<IFirst*>(this)); }
  ISecond* SeenWhileBuilt;
};

struct TPadding {
  char Bytes[40] = {};
};

struct TOuter : public TPadding, public virtual IThird, public TInner {};

}  // namespace

TEST(CachedCast, AgreesWithDynamicCastForWholeObjectsAndObjectsBeingBuilt) {
  for (int Round = 0; Round < 2; ++Round) {  // the second round answers from what was kept
    TOuter Outer;
    TInner Inner;
    IFirst* OuterFirst = static_cast<TInner*>(&Outer);
    EXPECT_EQ(Outer.SeenWhileBuilt, dynamic_cast<ISecond*>(OuterFirst));
    EXPECT_EQ(Inner.SeenWhileBuilt, dynamic_cast<ISecond*>(static_cast<IFirst*>(&Inner)));
    EXPECT_EQ(CachedCast<ISecond>(OuterFirst), dynamic_cast<ISecond*>(OuterFirst));
    EXPECT_EQ(CachedCast<ISecond>(static_cast<IFirst*>(&Inner)), static_cast<ISecond*>(&Inner));
    EXPECT_EQ(CachedCast<IThird>(OuterFirst), static_cast<IThird*>(&Outer));
    EXPECT_EQ(CachedCast<IThird>(static_cast<IFirst*>(&Inner)), nullptr);  // a kept miss
    EXPECT_EQ(CachedCast<IThird>(static_cast<IFirst*>(nullptr)), nullptr);
  }
}
