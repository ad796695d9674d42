#include "gello/foundation/RefCounted.h"

#include <gtest/gtest.h>

using namespace gello;

namespace {

struct IShape : virtual RefCounted {
  virtual int Sides() const = 0;
};
struct INamed : virtual RefCounted {
  virtual const char* Name() const = 0;
};

int Alive = 0;

class TSquare : public virtual IShape, public virtual INamed {
 public:
  // Hands `this` out and takes it back while being built: must not free the object.
  TSquare() {
    ++Alive;
    Ref<IShape> Self(this);
  }
  TSquare(const TSquare& Other) : RefCounted(Other), IShape(Other), INamed(Other) { ++Alive; }
  ~TSquare() override { --Alive; }
  int Sides() const override { return 4; }
  const char* Name() const override { return "square"; }
};

}  // namespace

TEST(RefCounted, CountsThroughEveryInterfaceFreesAtZeroAndCopiesCountAnew) {
  {
    Ref<TSquare> Square = MakeRef<TSquare>();
    EXPECT_EQ(Alive, 1);
    EXPECT_EQ(Square->GetRefCount(), 1);
    Ref<IShape> Shape = Square;
    Ref<INamed> Named = DynCast<INamed>(Shape);
    ASSERT_TRUE(Named);
    EXPECT_STREQ(Named->Name(), "square");
    EXPECT_EQ(Square->GetRefCount(), 3);
    Shape = nullptr;
    EXPECT_EQ(Square->GetRefCount(), 2);
    Ref<INamed> Moved = std::move(Named);
    EXPECT_FALSE(Named);
    EXPECT_EQ(Square->GetRefCount(), 2);
  }
  EXPECT_EQ(Alive, 0);
  Ref<TSquare> First = MakeRef<TSquare>();
  Ref<TSquare> Extra = First;
  Ref<TSquare> Copy = MakeRef<TSquare>(*First);
  EXPECT_EQ(First->GetRefCount(), 2);
  EXPECT_EQ(Copy->GetRefCount(), 1);
  Extra = nullptr;
  Copy = nullptr;
  EXPECT_EQ(Alive, 1);
}
