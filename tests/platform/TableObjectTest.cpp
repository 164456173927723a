#include "tactix/platform/TableObject.h"

#include <gtest/gtest.h>

#include "tests/platform/ErrorCode.h"

namespace tactix::tests {
namespace {

/// As a host writes it.
class Seats final : public TableObject {
 public:
  std::int16_t Count = 7;
  std::int16_t Free() const { return static_cast<std::int16_t>(Count - taken_); }
  void Take(std::int16_t seats) { taken_ = static_cast<std::int16_t>(taken_ + seats); }

 protected:
  const ObjectProperties& Properties() const override {
    static const ObjectProperties table =
        ObjectProperties().Field("Count", &Seats::Count).GetOnly("Free", &Seats::Free);
    return table;
  }
  const ObjectMethods& Methods() const override {
    static const ObjectMethods table = ObjectMethods().Method("Take", &Seats::Take);
    return table;
  }

 private:
  std::int16_t taken_ = 0;
};

TEST(TableObjectTest, HasTheMembersOfItsTables) {
  Seats seats;
  seats.Put("COUNT", "5");
  EXPECT_EQ(seats.Count, 5);
  Variant two[] = {2};
  EXPECT_TRUE(seats.Call("take", two).IsEmpty());
  EXPECT_EQ(seats.Get("free"), 3);
}

TEST(TableObjectTest, FailsAsObjectsDo) {
  Seats seats;
  Variant two[] = {2, 2};
  EXPECT_EQ(ErrorCodeOf([&] { return seats.Get("Nothing"); }), 438);
  EXPECT_EQ(ErrorCodeOf([&] { return seats.Put("Free", 1), 0; }), 438) << "it can only be read";
  EXPECT_EQ(ErrorCodeOf([&] { return seats.Put("Count", "many"), 0; }), 13);
  EXPECT_EQ(seats.Count, 7);
  EXPECT_EQ(ErrorCodeOf([&] { return seats.Call("Leave", {}); }), 438);
  EXPECT_EQ(ErrorCodeOf([&] { return seats.Call("Take", two); }), 5);
}

TEST(TableObjectTest, HasNoMembersOfItsOwn) {
  class Bare final : public TableObject {
  } bare;
  EXPECT_EQ(ErrorCodeOf([&] { return bare.Get("Count"); }), 438);
  EXPECT_EQ(ErrorCodeOf([&] { return bare.Call("Take", {}); }), 438);
}

}  // namespace
}  // namespace tactix::tests
