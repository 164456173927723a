#include "tactix/platform/Object.h"

#include <gtest/gtest.h>

#include <string_view>

#include "tactix/platform/Variant.h"
#include "tests/platform/ErrorCode.h"

namespace tactix {
namespace {

using tests::ErrorCodeOf;

class Seat : public Object {};

TEST(ObjectTest, TheBaseHasNoMembers) {
  Seat seat;
  Variant arguments[] = {1, "two"};
  EXPECT_EQ(ErrorCodeOf([&] { return seat.Get("PlayerName"); }), 438);
  EXPECT_EQ(ErrorCodeOf([&] {
              seat.Put("PlayerName", "Ann");
              return 0;
            }),
            438);
  EXPECT_EQ(ErrorCodeOf([&] { return seat.Call("Show", arguments); }), 438);
  try {
    seat.Get("PlayerName");
  } catch (const Error& error) {
    EXPECT_EQ(error.Description(), "No such member: PlayerName");
  }
}

TEST(ObjectTest, NamesCompareWithoutCase) {
  EXPECT_TRUE(SameName("HardTotal", "hARDtOTAL"));
  EXPECT_TRUE(SameName("", ""));
  EXPECT_TRUE(SameName("AZaz09_", "azAZ09_"));
  EXPECT_FALSE(SameName("HardTotal", "HardTota"));
  EXPECT_FALSE(SameName("HardTotal", std::string_view("HardTotal", 4)));
  EXPECT_FALSE(SameName(std::string_view("HardTotal", 4), "HardTotal"));
  EXPECT_FALSE(SameName("HardTotal", "SoftTotal"));
  EXPECT_FALSE(SameName("a@", "a`"));  // neighbours of the letters, as the next
  EXPECT_FALSE(SameName("[", "{"));
  EXPECT_FALSE(SameName("\xC3\x84", "\xC3\xA4"));  // beyond ASCII case counts
}

}  // namespace
}  // namespace tactix
