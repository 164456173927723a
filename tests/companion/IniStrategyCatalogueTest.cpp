#include "tactix/companion/IniStrategyCatalogue.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <initializer_list>
#include <memory>
#include <string>

#include "tactix/companion/ShiftedText.h"
#include "tests/support/Repeated.h"
#include "tests/support/RowName.h"

namespace tactix::tests {
namespace {

using companion::HandKind;
using companion::IniError;
using companion::IniStrategyCatalogue;
using companion::PlayCode;

const std::string AllHits =
    "hard 4-21 = H H H H H H H H H H\n"
    "soft 12-21 = H H H H H H H H H H\n";

std::string Described(IniStrategyCatalogue& catalogue, int number) {
  auto asked = static_cast<std::int16_t>(number);
  const std::string description = catalogue.DescribeStrategy(asked);
  EXPECT_EQ(asked, number);
  return description;
}

struct DescriptionRow {
  const char* name;
  std::string section;
  std::string description;
};

class IniStrategyCatalogueTest : public testing::TestWithParam<DescriptionRow> {};

TEST_P(IniStrategyCatalogueTest, DescribesAStrategy) {
  IniStrategyCatalogue catalogue("[Playing 2]\n" + GetParam().section, "s.ini");
  EXPECT_EQ(Described(catalogue, 2), GetParam().description);
}

INSTANTIATE_TEST_SUITE_P(
    Rows, IniStrategyCatalogueTest,
    testing::Values(DescriptionRow{"CaptionOnly", "caption=Basic\n", ",Basic,False True"},
                    DescriptionRow{"Note", "note=For all\ncaption=Basic\n", "For all,Basic,False True"},
                    DescriptionRow{"Shifted", "caption=Basic\nnote=a b\nshifted=yes\n", "k*l,Lk}sm,True True"},
                    DescriptionRow{"ShiftedWithoutNote", "caption=Basic\nshifted=true\n", ",Lk}sm,True True"},
                    DescriptionRow{"NotPresent", "caption=Basic\npresent=no\n", ",Basic,False False"},
                    DescriptionRow{"ShiftedAndNotPresent", "caption=Basic\nshifted=YES\npresent=False\n",
                                   ",Lk}sm,True False"},
                    DescriptionRow{"SaidAsItIs", "caption=Basic\nshifted=No\npresent=Yes\n", ",Basic,False True"},
                    DescriptionRow{"KeysInAnyCase", "CAPTION=Basic\nNote=x\n", "x,Basic,False True"},
                    DescriptionRow{"QuotesKeepBlanks", "caption=\" Basic \"\n", ", Basic ,False True"},
                    DescriptionRow{"QuotesInside", "caption=The \"best\"\n", ",The \"best\",False True"},
                    DescriptionRow{"BeyondAscii", "caption=Za\xC3\xA9\xE2\x99\xA0\nshifted=yes\n",
                                   ",dk\xC3\xB3\xE2\x99\xAA,True True"},
                    DescriptionRow{"LongestShifted", "caption=" + std::string(65, 'a') + "\nshifted=yes\n",
                                   "," + std::string(65, 'k') + ",True True"},
                    DescriptionRow{"LongestBeyondAscii", "caption=x\nnote=" + Repeated(1010, "\xC3\xA9") + "\n",
                                   Repeated(1010, "\xC3\xA9") + ",x,False True"},
                    DescriptionRow{"Longest", "caption=x\nnote=" + std::string(1010, 'n') + "\n",
                                   std::string(1010, 'n') + ",x,False True"},
                    DescriptionRow{"LongestNotPresent", "caption=x\npresent=no\nnote=" + std::string(1009, 'n') + "\n",
                                   std::string(1009, 'n') + ",x,False False"}),
    RowName());

TEST(IniStrategyCatalogueTest, LeavesGapsEmpty) {
  IniStrategyCatalogue catalogue("[playing 3]\ncaption=c\n[Playing 0]\ncaption=a\n", "s.ini");
  EXPECT_EQ(Described(catalogue, 0), ",a,False True");
  EXPECT_EQ(Described(catalogue, 3), ",c,False True");
  for (const int number : {-32768, -2, -1, 1, 2, 4, 55, 32767}) EXPECT_EQ(Described(catalogue, number), "") << number;
}

TEST(IniStrategyCatalogueTest, DescribesTheEmptySeat) {
  IniStrategyCatalogue catalogue("[Playing -1]\ncaption=Nobody\npresent=no\n", "s.ini");
  EXPECT_EQ(Described(catalogue, -1), ",Nobody,False False");
  EXPECT_EQ(Described(catalogue, 0), "");
}

TEST(IniStrategyCatalogueTest, TellsTheHighestNumber) {
  const auto highest = [](const std::string& number) {
    return IniStrategyCatalogue("[Playing " + number + "]\ncaption=x\n", "s.ini").GetStrategyRange();
  };
  EXPECT_EQ(highest("-1").HighestPlayingStrategy, 0);
  EXPECT_EQ(highest("0").HighestPlayingStrategy, 0);
  EXPECT_EQ(highest("1").HighestPlayingStrategy, 1);
  EXPECT_EQ(highest("54").HighestPlayingStrategy, 54);
  EXPECT_EQ(highest("54").HighestBettingStrategy, 0);
}

TEST(IniStrategyCatalogueTest, HasOnlyWhatTheFileHas) {
  IniStrategyCatalogue catalogue("[Playing 0]\ncaption=x\n", "s.ini");
  for (std::int16_t number = -1; number <= 40; ++number) {
    std::int16_t asked = number;
    EXPECT_EQ(catalogue.DescribeBettingStrategy(asked), "");
    EXPECT_EQ(asked, number);
    std::string text = "left over";
    catalogue.DescribeStrategy(number, text);
    EXPECT_EQ(text, "");
  }
  catalogue.AttachCountStrategyStore(nullptr);
}

TEST(IniStrategyCatalogueTest, NamesTheTables) {
  const IniStrategyCatalogue catalogue(
      "[Playing 0]\ncaption=a\nplays=My  Table\n"
      "[Playing 1]\ncaption=b\n"
      "[Playing 2]\ncaption=c\nplays=other\n"
      "[Table my  TABLE]\n" +
          AllHits +
          "[table other]\n"
          "hard 4-21 = S S S S S S S S S S\nsoft 12-21 = S S S S S S S S S S\n",
      "s.ini");
  EXPECT_EQ(catalogue.PlaysOf(0), "My  Table");
  ASSERT_NE(catalogue.TableOf(0), nullptr);
  EXPECT_EQ(catalogue.TableOf(0)->Find(HandKind::Hard, 16, 10), PlayCode::Hit);
  EXPECT_EQ(catalogue.PlaysOf(2), "other");
  ASSERT_NE(catalogue.TableOf(2), nullptr);
  EXPECT_EQ(catalogue.TableOf(2)->Find(HandKind::Hard, 16, 10), PlayCode::Stand);
  EXPECT_EQ(catalogue.TableOf(2), catalogue.FindTable("OTHER"));
  for (const std::int16_t none : std::initializer_list<std::int16_t>{-2, -1, 1, 3, 32767}) {
    EXPECT_EQ(catalogue.PlaysOf(none), "") << none;
    EXPECT_EQ(catalogue.TableOf(none), nullptr) << none;
  }
  EXPECT_EQ(catalogue.FindTable(""), nullptr);
}

TEST(IniStrategyCatalogueTest, TellsCaptionsAsTheyAreRead) {
  const IniStrategyCatalogue catalogue(
      "[Playing 0]\ncaption=Basic\nshifted=yes\n[Playing 2]\nnote=x\ncaption=\" B \"\npresent=no\n", "s.ini");
  EXPECT_EQ(catalogue.CaptionOf(0), "Basic");
  EXPECT_EQ(catalogue.CaptionOf(2), " B ");
  for (const std::int16_t none : std::initializer_list<std::int16_t>{-2, -1, 1, 3}) {
    EXPECT_EQ(catalogue.CaptionOf(none), "") << none;
  }
}

TEST(IniStrategyCatalogueTest, CopiesStandAlone) {
  const auto original =
      std::make_unique<IniStrategyCatalogue>("[Playing 0]\ncaption=a\nplays=t\n[Table t]\n" + AllHits, "s.ini");
  const IniStrategyCatalogue copy(*original);
  EXPECT_NE(copy.TableOf(0), original->TableOf(0));
  EXPECT_EQ(*copy.TableOf(0), *original->TableOf(0));
}

TEST(IniStrategyCatalogueTest, IsReadFromDisk) {
  const std::filesystem::path path = std::filesystem::path(testing::TempDir()) / "tactix-catalogue-test.ini";
  std::ofstream(path, std::ios::binary) << "\xEF\xBB\xBF[Playing 0]\r\ncaption = Basic\r\n";
  IniStrategyCatalogue catalogue(path);
  EXPECT_EQ(Described(catalogue, 0), ",Basic,False True");
  std::filesystem::remove(path);
  EXPECT_THROW(IniStrategyCatalogue{path}, IniError);
}

struct RefusedRow {
  const char* name;
  std::string text;
  std::string description;
};

class IniStrategyCatalogueRefusalTest : public testing::TestWithParam<RefusedRow> {};

TEST_P(IniStrategyCatalogueRefusalTest, NamesFileAndLine) {
  try {
    const IniStrategyCatalogue catalogue(GetParam().text, "s.ini");
    FAIL() << "not refused";
  } catch (const IniError& error) {
    EXPECT_EQ(error.Description(), GetParam().description);
  }
}

const std::string NoNumber = "s.ini:1: expected '[Playing -1]' ... '[Playing 54]'";

INSTANTIATE_TEST_SUITE_P(
    Rows, IniStrategyCatalogueRefusalTest,
    testing::Values(
        RefusedRow{"Empty", "", "s.ini: holds no playing strategy"},
        RefusedRow{"TablesOnly", "[Table t]\n" + AllHits, "s.ini: holds no playing strategy"},
        RefusedRow{"Junk", "[Playing 0]\ncaption=a\nBasic\n", "s.ini:3: expected 'key = value'"},
        RefusedRow{"UnknownSection", "[Playing 0]\ncaption=a\n\n[Strategies]\n",
                   "s.ini:4: expected '[Playing number]', '[Betting number]', '[Count number]' or '[Table name]', "
                   "found 'Strategies'"},
        RefusedRow{"UnknownSectionInTable", "[Tables t]\n",
                   "s.ini:1: expected '[Playing number]', '[Betting number]', '[Count number]' or '[Table name]', "
                   "found 'Tables t'"},
        RefusedRow{"NoNumber", "[Playing]\ncaption=a\n", NoNumber},
        RefusedRow{"NumberTooLow", "[Playing -2]\ncaption=a\n", NoNumber},
        RefusedRow{"NumberTooHigh", "[Playing 55]\ncaption=a\n", NoNumber},
        RefusedRow{"HugeNumber", "[Playing 4294967296]\ncaption=a\n", NoNumber},
        RefusedRow{"WordForANumber", "[Playing one]\ncaption=a\n", NoNumber},
        RefusedRow{"TwoNumbers", "[Playing 1 2]\ncaption=a\n", NoNumber},
        RefusedRow{"NumberTwice", "[Playing 1]\ncaption=a\n[Playing 01]\ncaption=b\n",
                   "s.ini:3: playing strategy 1 was given before"},
        RefusedRow{"SectionTwice", "[Playing 1]\ncaption=a\n[Playing 1]\ncaption=b\n",
                   "s.ini:3: section 'Playing 1' was given in line 1"},
        RefusedRow{"UnknownKey", "[Playing 0]\ncaption=a\ntitle=b\n", "s.ini:3: unknown key 'title'"},
        RefusedRow{"NoCaption", "\n[Playing 0]\nnote=a\n", "s.ini:2: 'Playing 0' has no caption"},
        RefusedRow{"EmptyCaption", "[Playing 0]\nnote=a\ncaption=\n", "s.ini:3: the caption is empty"},
        RefusedRow{"CommaInTheCaption", "[Playing 0]\ncaption=a,b\n", "s.ini:2: caption holds a ','"},
        RefusedRow{"CommaInTheNote", "[Playing 0]\ncaption=a\nnote=b,\n", "s.ini:3: note holds a ','"},
        RefusedRow{"CommaInAShiftedCaption", "[Playing 0]\ncaption=a,b\nshifted=yes\n", "s.ini:2: caption holds a ','"},
        RefusedRow{"TabInTheCaption", "[Playing 0]\ncaption=a\tb\n", "s.ini:2: caption holds a tab"},
        RefusedRow{"QuoteInAShiftedCaption", "[Playing 0]\nshifted=yes\ncaption=a \"b\"\n",
                   "s.ini:3: caption: a '\"' cannot be stored shifted"},
        RefusedRow{"QuoteInAShiftedNote", "[Playing 0]\nshifted=yes\ncaption=a\nnote=5\"\n",
                   "s.ini:4: note: a '\"' cannot be stored shifted"},
        RefusedRow{"ShiftedIntoTheSurrogates", "[Playing 0]\nshifted=yes\ncaption=\xED\x9F\xBF\n",
                   "s.ini:3: caption: holds a character that cannot be stored shifted"},
        RefusedRow{"ShiftedCaptionTooLong", "[Playing 0]\nshifted=yes\ncaption=" + std::string(66, 'a') + "\n",
                   "s.ini:3: caption: longer than the 65 characters that can be stored shifted"},
        RefusedRow{"NoteTooLong", "[Playing 0]\ncaption=x\nnote=" + std::string(1011, 'n') + "\n",
                   "s.ini:2: caption and note are too long together"},
        RefusedRow{"NoteTooLongAndNotPresent",
                   "[Playing 0]\ncaption=x\npresent=no\nnote=" + std::string(1010, 'n') + "\n",
                   "s.ini:2: caption and note are too long together"},
        RefusedRow{"NoFlag", "[Playing 0]\ncaption=a\npresent=1\n", "s.ini:3: expected 'yes' or 'no', found '1'"},
        RefusedRow{"EmptyFlag", "[Playing 0]\ncaption=a\nshifted=\n", "s.ini:3: expected 'yes' or 'no', found ''"},
        RefusedRow{"NoSuchTable", "[Playing 0]\ncaption=a\nplays=basic\n", "s.ini:3: there is no table 'basic'"},
        RefusedRow{"EmptyPlays", "[Playing 0]\ncaption=a\nplays=\n", "s.ini:3: there is no table ''"},
        RefusedRow{"TableWithoutName", "[Table]\n" + AllHits, "s.ini:1: expected '[Table name]'"},
        RefusedRow{"TableTwice", "[Table t]\n" + AllHits + "[table  T]\n" + AllHits,
                   "s.ini:4: table 'T' was given before"},
        RefusedRow{"MalformedRow", "[Playing 0]\ncaption=a\n[Table t]\n" + AllHits + "pair 2 = H\n",
                   "s.ini:6: expected 10 plays, against 2 ... 10 and A, found 1"}),
    RowName());

}  // namespace
}  // namespace tactix::tests
