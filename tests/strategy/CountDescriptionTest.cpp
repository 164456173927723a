#include "tactix/strategy/private/CountDescription.h"

#include <gtest/gtest.h>

#include <string>

#include "tests/platform/ErrorCode.h"
#include "tests/support/RowName.h"

namespace tactix::tests {
namespace {

struct TextsRow {
  const char* name;
  std::string text;
  bool isListed;
  std::string rowText;
  std::string description;
  bool enciphered = false;
};

class CountTextsTest : public testing::TestWithParam<TextsRow> {};

TEST_P(CountTextsTest, AreRead) {
  CountStrategyRecord record;
  EXPECT_EQ(CountDescription(GetParam().text).ReadTexts(record, 20), GetParam().isListed);
  EXPECT_EQ(record.Name, GetParam().rowText);
  EXPECT_EQ(record.Description, GetParam().description);
  EXPECT_EQ(record.Enciphered, GetParam().enciphered);
  EXPECT_EQ(record.Listed, GetParam().isListed);
}

INSTANTIATE_TEST_SUITE_P(
    Rows, CountTextsTest,
    testing::Values(TextsRow{"Listed", "a note,HI-Opt I,False True 1 2 3 4 ", true, "HI-Opt I", "a note"},
                    TextsRow{"NotListed", "a note,HI-Opt I,False False ", false, "Not Present", "a note"},
                    TextsRow{"FlagsAsNumbers", "note,Name,0 -1 ", true, "Name", "note"},
                    TextsRow{"OneComma", "note,Name False True ", false, "Not Present", "note"},
                    TextsRow{"EmptyTexts", ",,False True ", true, "", ""},
                    TextsRow{"BlanksInTheTexts", " a note , Name ,0 1 ", true, " Name ", " a note "},
                    TextsRow{"Enciphered", "*xy~o*,*Rs7Yz~*,True True ", true, " Hi-Opt ", "note", true},
                    TextsRow{"EncipheredBeyondTheWidth",
                             std::string(65, 'k') + "\x09," + std::string(65, 'l') + "\x09,1 1 ", true,
                             std::string(65, 'b'), std::string(65, 'a'), true},
                    TextsRow{"EncipheredWide", "\xC3\xB3,\xC3\xB3l,1 1 ", true,
                             "\xC3\xA9"
                             "b",
                             "\xC3\xA9", true},
                    TextsRow{"EncipheredAndNotListed", "xy~o,Rs7Yz~,1 0 ", false, "Not Present", "note", true}),
    RowName());

TEST(CountDescriptionTest, AFurtherCommaBelongsToTheFlags) {
  CountStrategyRecord record;
  EXPECT_EQ(ErrorCodeOf([&] { return CountDescription("note,Na,me,False True ").ReadTexts(record, 20); }), 13);
}

TEST(CountDescriptionTest, TheSeatWithOneCommaIsEmpty) {
  CountStrategyRecord record;
  EXPECT_FALSE(CountDescription("note,Name").ReadTexts(record, -1));
  EXPECT_EQ(record.Name, "Empty Seat");
}

TEST(CountDescriptionTest, KeepsTheFlagsOfAnEarlierTextThatHadThem) {
  CountStrategyRecord record;
  CountDescription("note,Name,True True ").ReadTexts(record, 20);
  EXPECT_FALSE(CountDescription("note,Name").ReadTexts(record, 20)) << "no numbers follow";
  EXPECT_TRUE(record.Listed);
}

struct CountFailureRow {
  const char* name;
  std::string text;
  int code;
};

class CountTextsFailureTest : public testing::TestWithParam<CountFailureRow> {};

TEST_P(CountTextsFailureTest, FailsFor) {
  CountStrategyRecord record;
  EXPECT_EQ(ErrorCodeOf([&] { return CountDescription(GetParam().text).ReadTexts(record, 20); }), GetParam().code);
}

INSTANTIATE_TEST_SUITE_P(Rows, CountTextsFailureTest,
                         testing::Values(CountFailureRow{"Nothing", "", 5}, CountFailureRow{"NoComma", "note Name ", 5},
                                         CountFailureRow{"NoBlankAtAll", "note,Name,True", 5},
                                         CountFailureRow{"OneFlagOnly", "note,Name,False ", 5},
                                         CountFailureRow{"SecondFlagIsNotClosed", "note,Name,False True", 5},
                                         CountFailureRow{"FirstIsNoFlag", "note,Name,maybe True ", 13},
                                         CountFailureRow{"SecondIsNoFlag", "note,Name,False maybe ", 13},
                                         CountFailureRow{"FlagIsMissing", "note,Name, False ", 13},
                                         CountFailureRow{"CodeBelowTen", "note,\x09,True True ", 5},
                                         CountFailureRow{"LastCodeBelowTen",
                                                         std::string(64, 'k') + "\x09,Name,True True ", 5}),
                         RowName());

TEST(CountDescriptionTest, WhatWasReadStaysWhereALaterFieldFails) {
  CountStrategyRecord record;
  EXPECT_EQ(ErrorCodeOf([&] { return CountDescription("note,Name,False maybe ").ReadTexts(record, 20); }), 13);
  EXPECT_EQ(record.Description, "note");
  EXPECT_EQ(record.Name, "Name");
  CountStrategyRecord shifted;
  EXPECT_EQ(ErrorCodeOf([&] { return CountDescription("xy~o,Xkwo,True maybe ").ReadTexts(shifted, 20); }), 13);
  EXPECT_EQ(shifted.Description, "note");
  EXPECT_EQ(shifted.Name, "Name");
  EXPECT_TRUE(shifted.Enciphered);
  CountDescription numbers("note,Name,False True 1 2 x 4 ");
  EXPECT_TRUE(numbers.ReadTexts(record, 20));
  EXPECT_EQ(ErrorCodeOf([&] { numbers.ReadNumbers(record, 20); }), 13);
  EXPECT_EQ(record.CountSetting3, 1);
  EXPECT_EQ(record.CountSetting4, 2);
  EXPECT_EQ(record.CountSetting1, 0);
}

struct NumbersRow {
  const char* name;
  std::string numbers;
  int code = 0;
};

class CountNumbersTest : public testing::TestWithParam<NumbersRow> {};

TEST_P(CountNumbersTest, AreReadOrFail) {
  const std::string text = "note,Name,False True " + GetParam().numbers;
  CountStrategyRecord record;
  CountDescription description(text);
  ASSERT_TRUE(description.ReadTexts(record, 20));
  const auto read = [&] {
    description.ReadNumbers(record, 20);
    return 0;
  };
  EXPECT_EQ(ErrorCodeOf(read), GetParam().code);
}

INSTANTIATE_TEST_SUITE_P(
    Rows, CountNumbersTest,
    testing::Values(NumbersRow{"Four", "1 2 3 4 "}, NumbersRow{"Signed", "-1 +2 0 -32768 "},
                    NumbersRow{"ATextThatIsNoField", "1 2 3 4 trailing"}, NumbersRow{"None", "", 5},
                    NumbersRow{"Three", "1 2 3 ", 5}, NumbersRow{"LastIsNotClosed", "1 2 3 4", 5},
                    NumbersRow{"TooLarge", "1 2 3 32768 ", 6}, NumbersRow{"Words", "1 two 3 4 ", 13},
                    NumbersRow{"Empty", "1  2 3 4 ", 13}, NumbersRow{"AFifthField", "1 2 3 4 5 ", 9},
                    NumbersRow{"AFifthFieldOfZero", "1 2 3 4 0 ", 9}, NumbersRow{"TwoBlanksAtTheEnd", "1 2 3 4  ", 13}),
    RowName());

TEST(CountDescriptionTest, TheNumbersAreTheThirdAndFourthSettingFirst) {
  CountStrategyRecord record;
  CountDescription description("note,Name,False True 1.5 -2 3 4 ");
  description.ReadTexts(record, 20);
  description.ReadNumbers(record, 20);
  EXPECT_EQ(record.CountSetting3, 2);
  EXPECT_EQ(record.CountSetting4, -2);
  EXPECT_EQ(record.CountSetting1, 3);
  EXPECT_EQ(record.CountSetting2, 4);
}

TEST(CountDescriptionTest, PointValuesWouldGoUnderTheSystemsNumber) {
  CountStrategyRecord record;
  CountDescription description("note,Name,False True 1 2 3 4 10 11.6 -12 ");
  description.ReadTexts(record, 4);
  description.ReadNumbers(record, 4);
  EXPECT_EQ(record.PointValues(4, 0), 0);
  EXPECT_EQ(record.PointValues(4, 1), 10);
  EXPECT_EQ(record.PointValues(4, 2), 12);
  EXPECT_EQ(record.PointValues(4, 3), -12);
  EXPECT_EQ(record.PointValues(4, 4), 0);
  EXPECT_EQ(record.PointValues(3, 1), 0);
}

TEST(CountDescriptionTest, ReadsThirteenPointValuesAtMost) {
  CountStrategyRecord record;
  CountDescription description("note,Name,False True 1 2 3 4 1 2 3 4 5 6 7 8 9 10 11 12 13 words ");
  description.ReadTexts(record, 1);
  description.ReadNumbers(record, 1);
  EXPECT_EQ(record.PointValues(1, 13), 13);
}

TEST(CountStrategyRecordTest, HasSubscriptsOneToFourAndZeroToThirteen) {
  const CountStrategyRecord record;
  for (const int first : {0, 1, 4, 5, -1}) {
    for (const int second : {-1, 0, 13, 14}) {
      const bool isValid = first >= 1 && first <= 4 && second >= 0 && second <= 13;
      EXPECT_EQ(ErrorCodeOf([&] { return record.PointValues(first, second); }), isValid ? 0 : 9);
    }
  }
}

}  // namespace
}  // namespace tactix::tests
