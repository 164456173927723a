#include "tactix/companion/Edition.h"

#include <gtest/gtest.h>

#include <memory>
#include <vector>

#include "tactix/platform/Variant.h"
#include "tests/platform/ErrorCode.h"

namespace tactix::tests {
namespace {

using companion::Edition;

TEST(EditionTest, IsNumberZeroByDefault) {
  Edition edition;
  EXPECT_EQ(edition.thisKelvoEdition(), 0);
  EXPECT_EQ(edition.Get("thisKelvoEdition").Type(), VariantType::Integer);
  EXPECT_EQ(edition.Get("thisKelvoEdition"), Variant(0));
}

TEST(EditionTest, IsReadAndWrittenByName) {
  Edition edition(4);
  EXPECT_EQ(edition.Get("THISkelvoEdition"), Variant(4));
  edition.Put("thiskelvoedition", "-7");
  EXPECT_EQ(edition.thisKelvoEdition(), -7);
  edition.thisKelvoEdition(12);
  EXPECT_EQ(edition.Get("thisKelvoEdition"), Variant(12));
}

TEST(EditionTest, KeepsItsNumberWhenTheNewOneDoesNotConvert) {
  Edition edition(4);
  EXPECT_EQ(ErrorCodeOf([&] { return edition.Put("thisKelvoEdition", 40000), 0; }), 6);
  EXPECT_EQ(ErrorCodeOf([&] { return edition.Put("thisKelvoEdition", "gold"), 0; }), 13);
  EXPECT_EQ(edition.thisKelvoEdition(), 4);
}

TEST(EditionTest, ShowsWhatTheHostShows) {
  Edition edition;
  std::vector<int> flags;
  edition.WhenShown([&](std::int16_t& modalFlag) {
    flags.push_back(modalFlag);
    modalFlag = 9;
  });
  Variant arguments[] = {"1"};
  EXPECT_TRUE(edition.Call("show", arguments).IsEmpty());
  EXPECT_EQ(arguments[0], Variant(9));
  EXPECT_EQ(arguments[0].Type(), VariantType::Integer);
  std::int16_t modalFlag = 3;
  edition.Show(modalFlag);
  EXPECT_EQ(modalFlag, 9);
  EXPECT_EQ(flags, (std::vector<int>{1, 3}));
}

TEST(EditionTest, ShowsNothingWithoutAHost) {
  Edition edition;
  Variant arguments[] = {std::int16_t{1}};
  EXPECT_TRUE(edition.Call("Show", arguments).IsEmpty());
  EXPECT_EQ(arguments[0], Variant(1));
}

TEST(EditionTest, MayBeGivenAnotherHostWhileItShows) {
  Edition edition;
  auto witness = std::make_shared<int>(5);
  edition.WhenShown([&edition, witness](std::int16_t& modalFlag) {
    edition.WhenShown(nullptr);
    modalFlag = static_cast<std::int16_t>(*witness);
  });
  std::int16_t modalFlag = 1;
  edition.Show(modalFlag);
  EXPECT_EQ(modalFlag, 5);
}

TEST(EditionTest, RefusesWrongArgumentsAndNames) {
  Edition edition;
  bool shown = false;
  edition.WhenShown([&](std::int16_t&) { shown = true; });
  Variant two[2];
  Variant word[] = {"modal"};
  EXPECT_EQ(ErrorCodeOf([&] { return edition.Call("Show", {}); }), 5);
  EXPECT_EQ(ErrorCodeOf([&] { return edition.Call("Show", two); }), 5);
  EXPECT_EQ(ErrorCodeOf([&] { return edition.Call("Show", word); }), 13);
  EXPECT_FALSE(shown);
  EXPECT_EQ(ErrorCodeOf([&] { return edition.Call("Hide", {}); }), 438);
  EXPECT_EQ(ErrorCodeOf([&] { return edition.Get("Show"); }), 438);
  EXPECT_EQ(ErrorCodeOf([&] { return edition.Put("Edition", 1), 0; }), 438);
}

}  // namespace
}  // namespace tactix::tests
