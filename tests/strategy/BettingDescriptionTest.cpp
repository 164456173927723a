#include "tactix/strategy/private/BettingDescription.h"

#include <gtest/gtest.h>

#include <optional>
#include <string>

#include "tests/platform/ErrorCode.h"
#include "tests/support/RowName.h"

namespace tactix::tests {
namespace {

struct BettingRow {
  const char* name;
  std::string description;
  std::optional<std::string> text;
  int strategy = 3;
};

class BettingDescriptionTest : public testing::TestWithParam<BettingRow> {};

TEST_P(BettingDescriptionTest, GivesTheRowText) {
  EXPECT_EQ(BettingRowText(GetParam().description, GetParam().strategy), GetParam().text);
}

INSTANTIATE_TEST_SUITE_P(Rows, BettingDescriptionTest,
                         testing::Values(BettingRow{"Present", "note,Flat,1   ", "Flat"},
                                         BettingRow{"Absent", "note,Flat,0  ", "Not Present"},
                                         BettingRow{"FirstStrategy", "note,Flat,1 ", "Flat", 0},
                                         BettingRow{"SeatPresent", "note,Flat,1 ", "Empty Seat", -1},
                                         BettingRow{"SeatAbsent", "note,Flat,0 ", "Empty Seat", -1},
                                         BettingRow{"BelowTheSeat", "note,Flat,1 ", "Not Present", -2},
                                         BettingRow{"NoComma", "note Flat 1 ", std::nullopt},
                                         BettingRow{"Nothing", "", std::nullopt},
                                         BettingRow{"SeatWithoutComma", "note", std::nullopt, -1},
                                         BettingRow{"OneComma", "note,Flat 1 ", "Not Present"},
                                         BettingRow{"SeatWithOneComma", "note,Flat 1 ", "Empty Seat", -1},
                                         BettingRow{"AnyDigitIsPresent", "note,Flat,7 ", "Flat"},
                                         BettingRow{"OneCharacterOnly", "note,Flat,0123 ", "Not Present"},
                                         BettingRow{"OneCharacterOfMany", "note,Flat,1False ", "Flat"},
                                         BettingRow{"NothingBehindThePresence", "note,Flat,1", "Flat"},
                                         BettingRow{"EmptyTexts", ",,1 ", ""},
                                         BettingRow{"BlanksInTheText", "n, Flat  bet ,1", " Flat  bet "},
                                         BettingRow{"Shifted", "xy~o,Pvk~,1\\ ", "Flat"},
                                         BettingRow{"MarkerFarBehind", "xy~o,Pvk~,1 some text, and \\ here", "Flat"},
                                         BettingRow{"MarkerBeforeTheSecondComma", "n\\ote,Fl\\at,1 ", "Fl\\at"},
                                         BettingRow{"ShiftedAbsent", "xy~o,Pvk~,0\\ ", "Not Present"},
                                         BettingRow{"ShiftedKeepsItsBlanks", "xy~o,*Pvk~*,1\\ ", " Flat "},
                                         BettingRow{"ShiftedSeat", "xy~o,Pvk~,1\\ ", "Empty Seat", -1}),
                         RowName());

struct BettingFailureRow {
  const char* name;
  std::string description;
  int code;
};

class BettingDescriptionFailureTest : public testing::TestWithParam<BettingFailureRow> {};

TEST_P(BettingDescriptionFailureTest, FailsFor) {
  for (const int strategy : {-1, 0, 7}) {
    EXPECT_EQ(ErrorCodeOf([&] { return BettingRowText(GetParam().description, strategy); }), GetParam().code);
  }
}

INSTANTIATE_TEST_SUITE_P(Rows, BettingDescriptionFailureTest,
                         testing::Values(BettingFailureRow{"PresenceIsAMarker", "xy~o,Pvk~,\\1", 13},
                                         BettingFailureRow{"PresenceIsALetter", "note,Flat,True", 13},
                                         BettingFailureRow{"PresenceIsBlank", "note,Flat, 1", 13},
                                         BettingFailureRow{"PresenceIsASign", "note,Flat,-1", 13},
                                         BettingFailureRow{"PresenceIsMissing", "note,Flat,", 13},
                                         BettingFailureRow{"PresenceIsWide", "note,Flat,\xC3\xA9", 13},
                                         BettingFailureRow{"CaptionsCodeBelowTen", "note,B\x09,1\\", 5},
                                         BettingFailureRow{"NotesCodeBelowTen", "n\x09,Basic,1\\", 5}),
                         RowName());

}  // namespace
}  // namespace tactix::tests
