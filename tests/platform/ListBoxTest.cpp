#include "tactix/platform/widgets/ListBox.h"

#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <vector>

#include "tactix/platform/Error.h"
#include "tests/support/HeadlessProbe.h"
#include "tests/support/RowName.h"

namespace tactix::tests {
namespace {

using Log = std::vector<std::string>;

/// The probe's list (apple, banana, cherry, avocado, "") with its notifications alone.
struct ListProbe : HeadlessProbe {
  ListBox& list = Children().RowList;
  EventRecorder notes;

  ListProbe() {
    notes.Watch(list.Clicked);
    notes.Watch(list.Changed);
  }
  void Press(std::int32_t code, std::int16_t shift = 0) {
    list.SetFocus();
    site->PressKey({code, shift});
  }
};

/// Something done to the list, and what then holds.
struct ListRow {
  std::string name;
  std::function<void(ListProbe&)> act;
  std::int32_t row;
  std::string text;
  Log notes;
};

class ListRowTest : public testing::TestWithParam<ListRow> {};

TEST_P(ListRowTest, IsAndReportsThis) {
  const ListRow& expected = GetParam();
  ListProbe probe;
  expected.act(probe);
  EXPECT_EQ(probe.list.ListIndex(), expected.row);
  EXPECT_EQ(probe.list.Text(), expected.text);
  EXPECT_EQ(probe.notes.Take(), expected.notes);
}

void Select(ListProbe& p, std::int32_t row) {
  p.list.ListIndex(row);
  p.notes.Forget();
}

const ListRow RowsFromCode[] = {
    {"AtFirst", [](ListProbe&) {}, -1, "", {}},
    {"SetRow", [](ListProbe& p) { p.list.ListIndex(2); }, 2, "cherry", {"Click"}},
    {"SetTheSameRow",
     [](ListProbe& p) {
       Select(p, 2);
       p.list.ListIndex(2);
     },
     2,
     "cherry",
     {"Click"}},
    {"SetRowThoughDisabled",
     [](ListProbe& p) {
       p.list.Enabled(false);
       p.list.ListIndex(0);
     },
     0,
     "apple",
     {"Click"}},
    {"SetTheLastRow", [](ListProbe& p) { p.list.ListIndex(4); }, 4, "", {"Click"}},
    {"Deselect",
     [](ListProbe& p) {
       Select(p, 1);
       p.list.ListIndex(-1);
     },
     -1,
     "banana",
     {}},
    {"DeselectWhatIsNotSelected", [](ListProbe& p) { p.list.ListIndex(-1); }, -1, "", {}},
};

const ListRow Texts[] = {
    {"TextOfNoRow",
     [](ListProbe& p) {
       Select(p, 1);
       p.list.Text("plum");
     },
     -1,
     "plum",
     {"Change"}},
    {"TextOfTheSelectedRow",
     [](ListProbe& p) {
       Select(p, 1);
       p.list.Text("banana");
     },
     1,
     "banana",
     {}},
    {"TextOfAnotherRow",
     [](ListProbe& p) {
       Select(p, 1);
       p.list.Text("cherry");
     },
     -1,
     "cherry",
     {"Change"}},
    {"TextInAnotherCase",
     [](ListProbe& p) {
       Select(p, 1);
       p.list.Text("Banana");
     },
     -1,
     "Banana",
     {"Change"}},
    {"TextAgain",
     [](ListProbe& p) {
       p.list.Text("plum");
       p.notes.Forget();
       p.list.Text("plum");
     },
     -1,
     "plum",
     {}},
    {"ItsOwnText",
     [](ListProbe& p) {
       Select(p, 1);
       p.list.Text(p.list.Text());
     },
     1,
     "banana",
     {}},
    {"EmptyText",
     [](ListProbe& p) {
       Select(p, 1);
       p.list.Text("");
     },
     -1,
     "",
     {"Change"}},
    {"TextThenRow",
     [](ListProbe& p) {
       p.list.Text("plum");
       p.notes.Forget();
       p.list.ListIndex(0);
     },
     0,
     "apple",
     {"Click"}},
    {"TextLosesTheRowBeforeItIsReported",
     [](ListProbe& p) {
       Select(p, 1);
       p.list.Changed.Connect([&p] { p.notes.Note(std::to_string(p.list.ListIndex()) + " " + p.list.Text()); });
       p.list.Text("plum");
     },
     -1,
     "plum",
     {"Change", "-1 plum"}},
};

const ListRow Picks[] = {
    {"Pick", [](ListProbe& p) { p.list.PickRow(3); }, 3, "avocado", {"Click"}},
    {"PickTheSameRow",
     [](ListProbe& p) {
       Select(p, 3);
       p.list.PickRow(3);
     },
     3,
     "avocado",
     {"Click"}},
    {"PickAfterAForeignText",
     [](ListProbe& p) {
       p.list.Text("plum");
       p.notes.Forget();
       p.list.PickRow(0);
     },
     0,
     "apple",
     {"Click"}},
    {"PickNoRow",
     [](ListProbe& p) {
       Select(p, 3);
       p.list.PickRow(-1);
       p.list.PickRow(5);
     },
     3,
     "avocado",
     {}},
    {"PickOfADisabledList",
     [](ListProbe& p) {
       p.list.Enabled(false);
       p.list.PickRow(3);
     },
     -1,
     "",
     {}},
    {"PickOfAHiddenList",
     [](ListProbe& p) {
       p.list.Visible(false);
       p.list.PickRow(3);
     },
     -1,
     "",
     {}},
    {"PickInAHiddenControl",
     [](ListProbe& p) {
       p.outer->Extender().Visible(false);
       p.list.PickRow(3);
     },
     -1,
     "",
     {}},
    {"TheRowStandsWhenThePickIsReported",
     [](ListProbe& p) {
       p.list.Clicked.Connect([&p] { p.notes.Note(std::to_string(p.list.ListIndex()) + " " + p.list.Text()); });
       p.list.PickRow(2);
     },
     2,
     "cherry",
     {"Click", "2 cherry"}},
    {"AHandlerMayGoBackToAnotherRow",
     [](ListProbe& p) {
       p.list.Clicked.Connect([&p] {
         if (p.list.ListIndex() == 2) p.list.ListIndex(0);
       });
       p.list.PickRow(2);
     },
     0,
     "apple",
     {"Click", "Click"}},
};

const ListRow Contents[] = {
    {"ClearDeselectsAndKeepsTheText",
     [](ListProbe& p) {
       Select(p, 1);
       p.list.Clear();
       EXPECT_EQ(p.list.ListCount(), 0);
     },
     -1,
     "banana",
     {}},
    {"AddBelow",
     [](ListProbe& p) {
       Select(p, 1);
       p.list.AddItem("plum");
       EXPECT_EQ(p.list.List(5), "plum");
     },
     1,
     "banana",
     {}},
    {"AddBeforeTheSelectedRow",
     [](ListProbe& p) {
       Select(p, 1);
       p.list.AddItem("plum", 1);
       EXPECT_EQ(p.list.List(1), "plum");
     },
     2,
     "banana",
     {}},
    {"AddAfterTheSelectedRow",
     [](ListProbe& p) {
       Select(p, 1);
       p.list.AddItem("plum", 2);
       EXPECT_EQ(p.list.List(2), "plum");
     },
     1,
     "banana",
     {}},
    {"AddAtTheCount",
     [](ListProbe& p) {
       p.list.AddItem("plum", 5);
       EXPECT_EQ(p.list.List(5), "plum");
       EXPECT_EQ(p.list.ListCount(), 6);
     },
     -1,
     "",
     {}},
    {"AddACopyOfARow",
     [](ListProbe& p) {
       for (int i = 0; i < 50; ++i) p.list.AddItem(p.list.List(0), 0);
       EXPECT_EQ(p.list.List(50), "apple");
       EXPECT_EQ(p.list.List(0), "apple");
     },
     -1,
     "",
     {}},
};

ListRow Key(std::string name, std::int32_t from, std::int32_t code, std::int16_t shift, std::int32_t to, bool picks) {
  static const char* const texts[] = {"", "apple", "banana", "cherry", "avocado", ""};
  return {std::move(name),
          [from, code, shift](ListProbe& p) {
            if (from >= 0) Select(p, from);
            p.Press(code, shift);
          },
          to, texts[to + 1], picks ? Log{"Click"} : Log{}};
}

const ListRow Keys[] = {
    Key("DownFromNone", -1, DownArrowKey, 0, 0, true),
    Key("Down", 1, DownArrowKey, 0, 2, true),
    Key("DownFromTheLast", 4, DownArrowKey, 0, 4, false),
    Key("UpFromNone", -1, UpArrowKey, 0, -1, false),
    Key("Up", 1, UpArrowKey, 0, 0, true),
    Key("UpFromTheFirst", 0, UpArrowKey, 0, 0, false),
    Key("Home", 3, HomeKey, 0, 0, true),
    Key("HomeAtTheFirst", 0, HomeKey, 0, 0, false),
    Key("End", 1, EndKey, 0, 4, true),
    Key("EndAtTheLast", 4, EndKey, 0, 4, false),
    Key("Letter", -1, 'c', 0, 2, true),
    Key("CapitalLetter", -1, 'C', ShiftKey, 2, true),
    Key("LetterOfTheNextMatch", 0, 'A', 0, 3, true),
    Key("LetterGoesRound", 3, 'A', 0, 0, true),
    Key("LetterOfTheSelectedRowAlone", 2, 'C', 0, 2, false),
    Key("LetterWithoutARow", 1, 'Z', 0, 1, false),
    Key("CtrlLetter", 1, 'C', CtrlKey, 1, false),
    Key("CtrlDown", 1, DownArrowKey, CtrlKey, 1, false),
    Key("AltDown", 1, DownArrowKey, AltKey, 1, false),
    Key("ShiftDown", 1, DownArrowKey, ShiftKey, 2, true),
    Key("FunctionKey", 1, FunctionKey1, 0, 1, false),
};

INSTANTIATE_TEST_SUITE_P(FromCode, ListRowTest, testing::ValuesIn(RowsFromCode), RowName());
INSTANTIATE_TEST_SUITE_P(Text, ListRowTest, testing::ValuesIn(Texts), RowName());
INSTANTIATE_TEST_SUITE_P(Pick, ListRowTest, testing::ValuesIn(Picks), RowName());
INSTANTIATE_TEST_SUITE_P(Contents, ListRowTest, testing::ValuesIn(Contents), RowName());
INSTANTIATE_TEST_SUITE_P(Keys, ListRowTest, testing::ValuesIn(Keys), RowName());

struct FailureRow {
  std::string name;
  std::function<void(ListBox&)> act;
  std::int32_t code;
};

class ListFailureTest : public testing::TestWithParam<FailureRow> {};

TEST_P(ListFailureTest, FailsAndChangesNothing) {
  ListProbe probe;
  Select(probe, 1);
  try {
    GetParam().act(probe.list);
    FAIL() << "did not fail";
  } catch (const Error& error) {
    EXPECT_EQ(error.Code(), GetParam().code);
  }
  EXPECT_EQ(probe.list.ListIndex(), 1);
  EXPECT_EQ(probe.list.Text(), "banana");
  EXPECT_EQ(probe.list.ListCount(), 5);
  EXPECT_EQ(probe.notes.Take(), Log{});
}

const FailureRow Failures[] = {
    {"RowBelow", [](ListBox& list) { list.ListIndex(-2); }, 380},
    {"RowAbove", [](ListBox& list) { list.ListIndex(5); }, 380},
    {"RowFarAbove", [](ListBox& list) { list.ListIndex(2147483647); }, 380},
    {"TextOfRowBelow", [](ListBox& list) { list.List(-1); }, 380},
    {"TextOfRowAbove", [](ListBox& list) { list.List(5); }, 380},
    {"AddBelow", [](ListBox& list) { list.AddItem("plum", -1); }, 5},
    {"AddAbove", [](ListBox& list) { list.AddItem("plum", 6); }, 5},
    {"LateBoundRowAbove", [](ListBox& list) { list.Handle()->Put("ListIndex", 5); }, 380},
};

INSTANTIATE_TEST_SUITE_P(Rows, ListFailureTest, testing::ValuesIn(Failures), RowName());

TEST(ListBoxTest, StyleReadsZero) { EXPECT_EQ(ListBox().Style(), 0); }

TEST(ListBoxTest, AnEmptyListTakesItsKeysAndPicksNothing) {
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

TEST(ListBoxTest, KeysThatItKnowsGoNoFurtherAndOthersDo) {
  ListProbe probe;
  Select(probe, 1);
  probe.recorder.Forget();
  probe.Press(UpArrowKey);
  probe.Press('Z');
  EXPECT_EQ(probe.recorder.Take(), Log{"RowPicked#4(0)"});
  probe.Press('C', CtrlKey);
  probe.Press(FunctionKey1);
  EXPECT_EQ(probe.recorder.Take(), (Log{"KeyPressed#9(box, C)", "KeyPressed#9(box, )"}));
}

TEST(ListBoxTest, AHandlerMayDestroyTheControl) {
  const std::function<void(ListProbe&)> ways[] = {
      [](ListProbe& p) { p.list.ListIndex(1); }, [](ListProbe& p) { p.list.PickRow(1); },
      [](ListProbe& p) { p.list.Text("plum"); }, [](ListProbe& p) { p.Press(DownArrowKey); },
      [](ListProbe& p) { p.Press('B'); },
  };
  for (const auto& way : ways) {
    ListProbe probe;
    probe.list.Clicked.Connect([&probe] { probe.DestroyWindow(); });
    probe.list.Changed.Connect([&probe] { probe.DestroyWindow(); });
    way(probe);
    EXPECT_EQ(probe.outer, nullptr);
    EXPECT_EQ(probe.notes.Entries().size(), 1U);
  }
}

/// Front ends draw from this.
struct ListWatcher final : WidgetObserver {
  Log log;

  void Changed(Widget& widget, Aspect aspect) override {
    const auto& list = static_cast<ListBox&>(widget);
    if (aspect == Aspect::Row) log.push_back("row " + std::to_string(list.ListIndex()));
    if (aspect == Aspect::Text) log.push_back("text " + list.Text());
  }
  void RowInserted(ListBox& list, std::int32_t row) override { log.push_back("inserted " + list.List(row)); }
  void RowsCleared(ListBox&) override { log.emplace_back("cleared"); }
  void Gone(Widget&) override { log.emplace_back("gone"); }
};

TEST(ListBoxTest, TellsItsObserverWhatToDraw) {
  ListWatcher watcher;
  {
    ListBox list;
    list.Observe(&watcher);
    list.AddItem("one");
    list.AddItem("zero", 0);
    list.ListIndex(1);
    list.Text("two");
    list.ListIndex(0);
    list.ListIndex(-1);
    list.Clear();
  }
  EXPECT_EQ(watcher.log, (Log{"inserted one", "inserted zero", "row 1", "row -1", "text two", "row 0", "row -1",
                              "cleared", "gone"}));
}

}  // namespace
}  // namespace tactix::tests
