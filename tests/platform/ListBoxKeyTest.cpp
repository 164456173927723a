#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "tactix/platform/widgets/ListBox.h"
#include "tests/platform/ListProbe.h"
#include "tests/support/RowName.h"

namespace tactix::tests {
namespace {

using Log = std::vector<std::string>;

/// A key for the focused list (apple, banana, cherry, avocado, ""), and the row that it leads to.
struct KeyRow {
  const char* name;
  std::int32_t from;
  std::int32_t code;
  std::int16_t shift;
  std::int32_t to;
  bool picks;
};

class ListBoxKeyRowTest : public testing::TestWithParam<KeyRow> {};

TEST_P(ListBoxKeyRowTest, LeadsToThisRow) {
  const KeyRow& key = GetParam();
  ListProbe probe;
  probe.Select(key.from);
  const std::string before = probe.list.Text();
  probe.Press(key.code, key.shift);
  EXPECT_EQ(probe.list.ListIndex(), key.to);
  EXPECT_EQ(probe.list.Text(), key.picks ? probe.list.List(key.to) : before);
  EXPECT_EQ(probe.notes.Take(), key.picks ? Log{"Click"} : Log{});
}

const KeyRow Keys[] = {
    {"DownFromNone", -1, DownArrowKey, 0, 0, true},
    {"Down", 1, DownArrowKey, 0, 2, true},
    {"DownFromTheLast", 4, DownArrowKey, 0, 4, false},
    {"UpFromNone", -1, UpArrowKey, 0, -1, false},
    {"Up", 1, UpArrowKey, 0, 0, true},
    {"UpFromTheFirst", 0, UpArrowKey, 0, 0, false},
    {"Home", 3, HomeKey, 0, 0, true},
    {"HomeAtTheFirst", 0, HomeKey, 0, 0, false},
    {"End", 1, EndKey, 0, 4, true},
    {"EndAtTheLast", 4, EndKey, 0, 4, false},
    {"Letter", -1, 'c', 0, 2, true},
    {"CapitalLetter", -1, 'C', ShiftKey, 2, true},
    {"LetterOfTheNextMatch", 0, 'A', 0, 3, true},
    {"LetterGoesRound", 3, 'A', 0, 0, true},
    {"LetterOfTheSelectedRowAlone", 2, 'C', 0, 2, false},
    {"LetterWithoutARow", 1, 'Z', 0, 1, false},
    {"CtrlLetter", 1, 'C', CtrlKey, 1, false},
    {"CtrlDown", 1, DownArrowKey, CtrlKey, 1, false},
    {"AltDown", 1, DownArrowKey, AltKey, 1, false},
    {"ShiftDown", 1, DownArrowKey, ShiftKey, 2, true},
    {"FunctionKey", 1, FunctionKey1, 0, 1, false},
};

INSTANTIATE_TEST_SUITE_P(Rows, ListBoxKeyRowTest, testing::ValuesIn(Keys), RowName());

TEST(ListBoxKeyTest, AnEmptyListTakesItsKeysAndPicksNothing) {
  ListProbe probe;
  probe.list.Clear();
  for (const std::int32_t key : {std::int32_t{UpArrowKey}, std::int32_t{DownArrowKey}, std::int32_t{HomeKey},
                                 std::int32_t{EndKey}, std::int32_t{'A'}}) {
    probe.Press(key);
  }
  EXPECT_EQ(probe.list.ListIndex(), -1);
  EXPECT_EQ(probe.notes.Take(), Log{});
  EXPECT_EQ(probe.recorder.Take(), Log{}) << "the box's key map has run, too";
}

TEST(ListBoxKeyTest, KeysThatItKnowsGoNoFurtherAndOthersDo) {
  ListProbe probe;
  probe.Select(1);
  probe.recorder.Forget();
  probe.Press(UpArrowKey);
  probe.Press('Z');
  EXPECT_EQ(probe.recorder.Take(), Log{"RowPicked#4(0)"});
  probe.Press('C', CtrlKey);
  probe.Press(FunctionKey1);
  EXPECT_EQ(probe.recorder.Take(), (Log{"KeyPressed#9(box, C)", "KeyPressed#9(box, )"}));
}

}  // namespace
}  // namespace tactix::tests
