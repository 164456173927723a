// The descriptions of playing strategies as the compact list takes them.

#include <gtest/gtest.h>

#include <string>

#include "tactix/strategy/private/PlayingDescription.h"
#include "tests/platform/ErrorCode.h"
#include "tests/support/RowName.h"

namespace tactix::tests {
namespace {

struct CompactRow {
  const char* name;
  std::string description;
  std::string text;
  int strategy = 3;
};

class CompactDescriptionTest : public testing::TestWithParam<CompactRow> {};

TEST_P(CompactDescriptionTest, GivesTheRowText) {
  EXPECT_EQ(CompactRowText(GetParam().description, GetParam().strategy), GetParam().text);
}

INSTANTIATE_TEST_SUITE_P(Rows, CompactDescriptionTest,
                         testing::Values(CompactRow{"Present", "note,Basic,False True ", "Basic"},
                                         CompactRow{"FirstStrategy", "note,Basic,False True ", "Basic", 0},
                                         CompactRow{"Absent", "note,Basic,False False ", "Not Present"},
                                         CompactRow{"PresenceFromTheFirstCharacter", "1 note,Basic,False", "Basic"},
                                         CompactRow{"Shifted", "xy~o,Lk}sm,True True ", "Basic"},
                                         CompactRow{"OneComma", "note,Basic False True ", "Not Present"},
                                         CompactRow{"SeatWithOneComma", "note,Basic ", "Empty Seat", -1},
                                         CompactRow{"SeatPresent", "note,Basic,False True ", "Empty Seat", -1},
                                         CompactRow{"SeatAbsent", "note,Basic,False False ", "Empty Seat", -1},
                                         CompactRow{"BelowTheSeat", "note,Basic,False True ", "Not Present", -2}),
                         RowName());

struct CompactFailureRow {
  const char* name;
  std::string description;
  int code;
};

class CompactDescriptionFailureTest : public testing::TestWithParam<CompactFailureRow> {};

TEST_P(CompactDescriptionFailureTest, FailsFor) {
  for (const int strategy : {-1, 0, 7}) {
    EXPECT_EQ(ErrorCodeOf([&] { return CompactRowText(GetParam().description, strategy); }), GetParam().code);
  }
}

INSTANTIATE_TEST_SUITE_P(Rows, CompactDescriptionFailureTest,
                         testing::Values(CompactFailureRow{"NoComma", "note Basic False True ", 5},
                                         CompactFailureRow{"Nothing", "", 5},
                                         CompactFailureRow{"ShiftedIsNoFlag", "note,Basic,maybe True ", 13},
                                         CompactFailureRow{"PresentIsNoFlag", "note,Basic,False maybe ", 13},
                                         CompactFailureRow{"PresentIsNotClosed", "note,Basic,False True", 5},
                                         CompactFailureRow{"NoteIsNoFlag", "a note,Basic,False", 13},
                                         CompactFailureRow{"NoBlankAtAll", "note,Basic,False", 5},
                                         CompactFailureRow{"CaptionsCodeBelowTen", "note,B\x09,True True ", 5},
                                         CompactFailureRow{"NotesCodeBelowTen", "n\x09,Basic,True True ", 5}),
                         RowName());

}  // namespace
}  // namespace tactix::tests
