#include <gtest/gtest.h>

#include <initializer_list>
#include <string>

#include "tactix/companion/IniStrategyCatalogue.h"
#include "tests/support/RowName.h"

namespace tactix::tests {
namespace {

using companion::CountSettings;
using companion::IniError;
using companion::IniStrategyCatalogue;

const std::string SomePlaying = "[Playing 0]\ncaption=p\n";

std::string DescribedCount(IniStrategyCatalogue& catalogue, std::int16_t number) {
  std::string text = "left over";
  catalogue.DescribeStrategy(number, text);
  return text;
}

struct CountRow {
  const char* name;
  std::string section;
  std::string description;
};

class CountSectionTest : public testing::TestWithParam<CountRow> {};

TEST_P(CountSectionTest, DescribesTheSystem) {
  IniStrategyCatalogue catalogue(SomePlaying + "[Count 22]\n" + GetParam().section, "s.ini");
  EXPECT_EQ(DescribedCount(catalogue, 22), GetParam().description);
}

INSTANTIATE_TEST_SUITE_P(
    Rows, CountSectionTest,
    testing::Values(CountRow{"CaptionOnly", "caption=Zen\n", ",Zen,False True 1 0 0 52 "},
                    CountRow{"Note", "note=For all\ncaption=Zen\n", "For all,Zen,False True 1 0 0 52 "},
                    CountRow{"NotPresent", "caption=Zen\npresent=no\n", ",Zen,False False 1 0 0 52 "},
                    CountRow{"Shifted", "caption=Basic\nnote=a b\nshifted=yes\n", "k*l,Lk}sm,True True 1 0 0 52 "},
                    CountRow{"ShiftedAndNotPresent", "caption=Basic\nshifted=yes\npresent=no\n",
                             ",Lk}sm,True False 1 0 0 52 "},
                    CountRow{"QuotesInside", "caption=The \"best\"\n", ",The \"best\",False True 1 0 0 52 "},
                    CountRow{"EverySetting", "caption=Zen\nlevel=3\ndeck-sum=4\nstart=-5\ndivisor=26\n",
                             ",Zen,False True 3 4 -5 26 "},
                    CountRow{"AnyOrderAndCase", "DIVISOR=13\nStart=7\ncaption=Zen\nDeck-Sum=-6\nLEVEL=2\n",
                             ",Zen,False True 2 -6 7 13 "},
                    CountRow{"Lowest", "caption=Zen\nlevel=1\ndeck-sum=-1000\nstart=-1000\ndivisor=0\n",
                             ",Zen,False True 1 -1000 -1000 0 "},
                    CountRow{"Highest", "caption=Zen\nlevel=20\ndeck-sum=1000\nstart=1000\ndivisor=52\n",
                             ",Zen,False True 20 1000 1000 52 "},
                    CountRow{"Longest", "caption=x\nnote=" + std::string(1000, 'n') + "\n",
                             std::string(1000, 'n') + ",x,False True 1 0 0 52 "}),
    RowName());

TEST(CountSectionTest, HasNumbersElevenToThirtyEight) {
  IniStrategyCatalogue catalogue(SomePlaying + "[Count 38]\ncaption=b\n[Count 11]\ncaption=a\n", "s.ini");
  EXPECT_EQ(DescribedCount(catalogue, 11), ",a,False True 1 0 0 52 ");
  EXPECT_EQ(DescribedCount(catalogue, 38), ",b,False True 1 0 0 52 ");
  for (const std::int16_t none : std::initializer_list<std::int16_t>{-32768, -1, 0, 10, 12, 37, 39, 32767}) {
    EXPECT_EQ(DescribedCount(catalogue, none), "") << none;
    EXPECT_EQ(catalogue.CountCaptionOf(none), "") << none;
    EXPECT_EQ(catalogue.CountSettingsOf(none), nullptr) << none;
  }
  EXPECT_EQ(catalogue.GetStrategyRange(), StrategyRange{}) << "count systems do not belong to the range";
}

TEST(CountSectionTest, TellsCaptionAndSettings) {
  const IniStrategyCatalogue catalogue(SomePlaying +
                                           "[Count 11]\ncaption=Zen\nshifted=yes\nlevel=3\ndeck-sum=4\nstart=-5\n"
                                           "divisor=26\n[Count 12]\ncaption=b\npresent=no\nlevel=3\n",
                                       "s.ini");
  EXPECT_EQ(catalogue.CountCaptionOf(11), "Zen");
  EXPECT_EQ(catalogue.CountCaptionOf(12), "b");
  ASSERT_NE(catalogue.CountSettingsOf(11), nullptr);
  EXPECT_EQ(*catalogue.CountSettingsOf(11), (CountSettings{3, 4, -5, 26}));
  EXPECT_EQ(catalogue.CountSettingsOf(12), nullptr) << "not present";
}

struct RefusedCountRow {
  const char* name;
  std::string text;
  std::string description;
};

class CountSectionRefusalTest : public testing::TestWithParam<RefusedCountRow> {};

TEST_P(CountSectionRefusalTest, NamesFileAndLine) {
  try {
    const IniStrategyCatalogue catalogue(GetParam().text, "s.ini");
    FAIL() << "not refused";
  } catch (const IniError& error) {
    EXPECT_EQ(error.Description(), GetParam().description);
  }
}

const std::string NoCountNumber = "s.ini:1: expected '[Count 11]' ... '[Count 38]'";

std::string NotFrom(const std::string& range, const std::string& found) {
  return "s.ini:3: expected a whole number from " + range + ", found '" + found + "'";
}

std::string Setting(const std::string& line) { return "[Count 11]\ncaption=a\n" + line + "\n"; }

INSTANTIATE_TEST_SUITE_P(
    Rows, CountSectionRefusalTest,
    testing::Values(RefusedCountRow{"Alone", "[Count 11]\ncaption=a\n", "s.ini: holds no playing strategy"},
                    RefusedCountRow{"NoNumber", "[Count]\ncaption=a\n", NoCountNumber},
                    RefusedCountRow{"NumberTooLow", "[Count 10]\ncaption=a\n", NoCountNumber},
                    RefusedCountRow{"NumberTooHigh", "[Count 39]\ncaption=a\n", NoCountNumber},
                    RefusedCountRow{"NumberTwice", "[Count 11]\ncaption=a\n[Count 011]\ncaption=b\n",
                                    "s.ini:3: count system 11 was given before"},
                    RefusedCountRow{"NoCaption", "[Count 11]\nlevel=1\n", "s.ini:1: 'Count 11' has no caption"},
                    RefusedCountRow{"KeyOfABettingStrategy", Setting("plan=flat"), "s.ini:3: unknown key 'plan'"},
                    RefusedCountRow{"KeyOfAPlayingStrategy", Setting("plays=x"), "s.ini:3: unknown key 'plays'"},
                    RefusedCountRow{"ShiftedQuote", "[Count 14]\ncaption=USTON \"SS\"\nshifted=yes\n",
                                    "s.ini:2: caption: a '\"' cannot be stored shifted"},
                    RefusedCountRow{"TooLong", "[Count 11]\ncaption=x\nnote=" + std::string(1001, 'n') + "\n",
                                    "s.ini:2: caption and note are too long together"},
                    RefusedCountRow{"LevelTooLow", Setting("level=0"), NotFrom("1 to 20", "0")},
                    RefusedCountRow{"LevelTooHigh", Setting("level=21"), NotFrom("1 to 20", "21")},
                    RefusedCountRow{"HalfALevel", Setting("level=1.5"), NotFrom("1 to 20", "1.5")},
                    RefusedCountRow{"NoLevel", Setting("level="), NotFrom("1 to 20", "")},
                    RefusedCountRow{"DeckSumTooLow", Setting("deck-sum=-1001"), NotFrom("-1000 to 1000", "-1001")},
                    RefusedCountRow{"DeckSumTooHigh", Setting("deck-sum=1001"), NotFrom("-1000 to 1000", "1001")},
                    RefusedCountRow{"StartTooLow", Setting("start=-1001"), NotFrom("-1000 to 1000", "-1001")},
                    RefusedCountRow{"StartTooHigh", Setting("start=1001"), NotFrom("-1000 to 1000", "1001")},
                    RefusedCountRow{"StartWithAPlus", Setting("start=+4"), NotFrom("-1000 to 1000", "+4")},
                    RefusedCountRow{"NegativeDivisor", Setting("divisor=-26"), NotFrom("0 to 52", "-26")},
                    RefusedCountRow{"DivisorTooHigh", Setting("divisor=53"), NotFrom("0 to 52", "53")},
                    RefusedCountRow{"NoPartOfADeck", Setting("divisor=25"),
                                    "s.ini:3: expected 0, 13, 26 or 52 cards, found '25'"},
                    RefusedCountRow{"WrongThoughNotPresent", "[Count 11]\ncaption=a\ndivisor=1\npresent=no\n",
                                    "s.ini:3: expected 0, 13, 26 or 52 cards, found '1'"}),
    RowName());

}  // namespace
}  // namespace tactix::tests
