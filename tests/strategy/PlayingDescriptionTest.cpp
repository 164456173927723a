#include "tactix/strategy/private/PlayingDescription.h"

#include <gtest/gtest.h>

#include <optional>
#include <string>

#include "tactix/platform/Error.h"
#include "tests/platform/ErrorCode.h"
#include "tests/support/RowName.h"

namespace tactix::tests {
namespace {

struct DescriptionRow {
  const char* name;
  std::string description;
  std::optional<std::string> text;
  int strategy = 3;
};

class PlayingDescriptionTest : public testing::TestWithParam<DescriptionRow> {};

TEST_P(PlayingDescriptionTest, GivesTheRowText) {
  EXPECT_EQ(PlayingRowText(GetParam().description, GetParam().strategy), GetParam().text);
}

INSTANTIATE_TEST_SUITE_P(
    Rows, PlayingDescriptionTest,
    testing::Values(DescriptionRow{"Present", "note,Basic,False True  ", "Basic"},
                    DescriptionRow{"Absent", "note,Basic,False False  ", "Not Present"},
                    DescriptionRow{"FlagsAsNumbers", "note,Basic,0 -1 ", "Basic"},
                    DescriptionRow{"AbsentAsNumber", "note,Basic,0 0 ", "Not Present"},
                    DescriptionRow{"AnyNumberIsTrue", "note,Basic,0 0.5 ", "Basic"},
                    DescriptionRow{"FlagsInAnyCase", "note,Basic,fALSE tRUE ", "Basic"},
                    DescriptionRow{"NoComma", "note Basic False True ", std::nullopt},
                    DescriptionRow{"NothingAtAll", "", std::nullopt},
                    DescriptionRow{"OneComma", "note,Basic False True ", "Not Present"},
                    DescriptionRow{"OneCommaAndNoFlags", ",", "Not Present"},
                    DescriptionRow{"EmptyTexts", ",,False True ", ""},
                    DescriptionRow{"BlanksInTheText", "a note, Basic  play ,False True ", " Basic  play "},
                    DescriptionRow{"CommaAfterTheText", "note,Basic,0 1 ,more,", "Basic"},
                    DescriptionRow{"TextBehindThePresence", "note,Basic,False True rest of it", "Basic"},
                    // Without a blank behind the comma the presence is looked for from the first character on.
                    DescriptionRow{"PresenceFromTheFirstCharacter", "1 note,Basic,False", "Basic"},
                    DescriptionRow{"AbsenceFromTheFirstCharacter", "0 note,Basic,x", "Not Present"},
                    DescriptionRow{"Shifted", "xy~o,Lk}sm,True True ", "Basic"},
                    DescriptionRow{"ShiftedText", "\x0b,L|,True True ", "Br"},
                    DescriptionRow{"ShiftedButAbsent", "xy~o,Lk}sm,True False ", "Not Present"},
                    DescriptionRow{"ShiftedTextKeepsItsBlanks", "xy~o,*Lk*,True True ", " Ba "},
                    DescriptionRow{"EmptySeat", "note,Basic,False True ", "Not Present", -1},
                    DescriptionRow{"EmptySeatShifted", "xy~o,Lk}sm,True True ", "Not Present", -1},
                    DescriptionRow{"FirstStrategy", "note,Basic,False True ", "Basic", 0},
                    DescriptionRow{"HighestStrategy", "note,Basic,False True ", "Basic", 32767}),
    RowName());

struct FailureRow {
  const char* name;
  std::string description;
  int code;
};

class PlayingDescriptionFailureTest : public testing::TestWithParam<FailureRow> {};

TEST_P(PlayingDescriptionFailureTest, FailsFor) {
  // The seat that nobody plays fails alike: its description is taken apart as well.
  for (const int strategy : {-1, 0, 7}) {
    EXPECT_EQ(ErrorCodeOf([&] { return PlayingRowText(GetParam().description, strategy); }), GetParam().code);
  }
}

INSTANTIATE_TEST_SUITE_P(Rows, PlayingDescriptionFailureTest,
                         testing::Values(FailureRow{"ShiftedIsNoFlag", "note,Basic,maybe True ", 13},
                                         FailureRow{"PresentIsNoFlag", "note,Basic,False maybe ", 13},
                                         FailureRow{"ShiftedIsMissing", "note,Basic, False True ", 13},
                                         FailureRow{"PresentIsMissing", "note,Basic,False  True ", 13},
                                         FailureRow{"PresentIsNotClosed", "note,Basic,False True", 5},
                                         FailureRow{"NoteIsNoFlag", "a note,Basic,False", 13},
                                         FailureRow{"NoBlankAtAll", "note,Basic,False", 5},
                                         FailureRow{"CodeBelowTen", "note,B\x09,True True ", 5}),
                         RowName());

}  // namespace
}  // namespace tactix::tests
