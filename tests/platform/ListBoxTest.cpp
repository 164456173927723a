#include "tactix/platform/widgets/ListBox.h"

#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "tactix/platform/Error.h"
#include "tests/platform/ErrorCode.h"
#include "tests/platform/ListProbe.h"
#include "tests/support/RowName.h"

namespace tactix::tests {
namespace {

using Log = std::vector<std::string>;

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

const ListRow RowsFromCode[] = {
    {"AtFirst", [](ListProbe&) {}, -1, "", {}},
    {"SetRow", [](ListProbe& p) { p.list.ListIndex(2); }, 2, "cherry", {"Click"}},
    {"SetTheSameRow",
     [](ListProbe& p) {
       p.Select(2);
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
       p.Select(1);
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
       p.Select(1);
       p.list.Text("plum");
     },
     -1,
     "plum",
     {"Change"}},
    {"TextOfTheSelectedRow",
     [](ListProbe& p) {
       p.Select(1);
       p.list.Text("banana");
     },
     1,
     "banana",
     {}},
    {"TextOfAnotherRow",
     [](ListProbe& p) {
       p.Select(1);
       p.list.Text("cherry");
     },
     -1,
     "cherry",
     {"Change"}},
    {"TextInAnotherCase",
     [](ListProbe& p) {
       p.Select(1);
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
       p.Select(1);
       p.list.Text(p.list.Text());
     },
     1,
     "banana",
     {}},
    {"EmptyText",
     [](ListProbe& p) {
       p.Select(1);
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
       p.Select(1);
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
       p.Select(3);
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
       p.Select(3);
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
       p.Select(1);
       p.list.Clear();
       EXPECT_EQ(p.list.ListCount(), 0);
     },
     -1,
     "banana",
     {}},
    {"AddBelow",
     [](ListProbe& p) {
       p.Select(1);
       p.list.AddItem("plum");
       EXPECT_EQ(p.list.List(5), "plum");
     },
     1,
     "banana",
     {}},
    {"AddBeforeTheSelectedRow",
     [](ListProbe& p) {
       p.Select(1);
       p.list.AddItem("plum", 1);
       EXPECT_EQ(p.list.List(1), "plum");
     },
     2,
     "banana",
     {}},
    {"AddAfterTheSelectedRow",
     [](ListProbe& p) {
       p.Select(1);
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

INSTANTIATE_TEST_SUITE_P(FromCode, ListRowTest, testing::ValuesIn(RowsFromCode), RowName());
INSTANTIATE_TEST_SUITE_P(Text, ListRowTest, testing::ValuesIn(Texts), RowName());
INSTANTIATE_TEST_SUITE_P(Pick, ListRowTest, testing::ValuesIn(Picks), RowName());
INSTANTIATE_TEST_SUITE_P(Contents, ListRowTest, testing::ValuesIn(Contents), RowName());

struct FailureRow {
  std::string name;
  std::function<void(ListBox&)> act;
  std::int32_t code;
};

class ListFailureTest : public testing::TestWithParam<FailureRow> {};

TEST_P(ListFailureTest, FailsAndChangesNothing) {
  ListProbe probe;
  probe.Select(1);
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

TEST(ListBoxTest, KeepsANumberWithEachRow) {
  ListBox list;
  list.AddItem("one");
  list.AddItem("two");
  EXPECT_EQ(list.ItemData(1), 0);
  list.ItemData(1, 42);
  list.AddItem("zero", 0);
  EXPECT_EQ(list.ItemData(2), 42) << "it moves with its row";
  EXPECT_EQ(list.ItemData(1), 0);
  for (const int row : {-1, 3}) {
    EXPECT_EQ(ErrorCodeOf([&] { return list.ItemData(row); }), 380);
    EXPECT_EQ(ErrorCodeOf([&] { list.ItemData(row, 1); }), 380);
  }
}

/// Notes rows that come together as one.
struct AppendingWatcher final : WidgetObserver {
  Log log;

  void Changed(Widget&, Aspect aspect) override {
    if (aspect == Aspect::Row) log.emplace_back("row");
    if (aspect == Aspect::Text) log.emplace_back("text");
  }
  void RowInserted(ListBox&, std::int32_t row) override { log.push_back("inserted " + std::to_string(row)); }
  void RowsAppended(ListBox&, std::int32_t first, std::int32_t count) override {
    log.push_back("appended " + std::to_string(first) + " " + std::to_string(count));
  }
  void RowsCleared(ListBox&) override { log.emplace_back("cleared"); }
  void Gone(Widget&) override {}
};

/// What is done while rows are appended, and what is drawn.
struct AppendingRow {
  const char* name;
  std::function<void(ListBox&)> act;
  Log log;
};

class ListBoxAppendingTest : public testing::TestWithParam<AppendingRow> {};

TEST_P(ListBoxAppendingTest, DrawsRowsTogether) {
  AppendingWatcher watcher;
  ListBox list;
  list.AddItem("there before");
  list.Observe(&watcher);
  {
    const ListBox::Appending appending(list);
    GetParam().act(list);
  }
  EXPECT_EQ(watcher.log, GetParam().log);
  list.AddItem("afterwards");
  EXPECT_EQ(watcher.log.back(), "inserted " + std::to_string(list.ListCount() - 1));
  list.Observe(nullptr);
}

TEST(ListBoxTest, WhatFailsInTheDrawingIsPassedOverAtItsEnd) {
  struct FailingWatcher final : WidgetObserver {
    int failures = 0;
    void Changed(Widget&, Aspect) override {}
    void RowsAppended(ListBox&, std::int32_t, std::int32_t) override {
      if (++failures == 1) throw Error(13);
      throw 13;
    }
    void Gone(Widget&) override {}
  } watcher;
  ListBox list;
  list.Observe(&watcher);
  for (int time = 1; time <= 2; ++time) {
    {
      const ListBox::Appending appending(list);
      list.AddItem("row");
    }
    EXPECT_EQ(watcher.failures, time);
    EXPECT_EQ(list.ListCount(), time);
  }
  list.Observe(nullptr);
}

void Append(ListBox& list, int count) {
  for (int i = 0; i < count; ++i) list.AddItem("row");
}

INSTANTIATE_TEST_SUITE_P(Rows, ListBoxAppendingTest,
                         testing::Values(AppendingRow{"Nothing", [](ListBox&) {}, {}},
                                         AppendingRow{"Rows", [](ListBox& list) { Append(list, 3); }, {"appended 1 3"}},
                                         AppendingRow{"RowsOfAClearedList",
                                                      [](ListBox& list) {
                                                        Append(list, 3);
                                                        list.Clear();
                                                        Append(list, 2);
                                                      },
                                                      {"cleared", "appended 0 2"}},
                                         AppendingRow{"ARowInBetween",
                                                      [](ListBox& list) {
                                                        Append(list, 2);
                                                        list.AddItem("first", 0);
                                                        Append(list, 1);
                                                      },
                                                      {"appended 1 2", "inserted 0", "appended 4 1"}},
                                         AppendingRow{"ASelection",
                                                      [](ListBox& list) {
                                                        Append(list, 2);
                                                        list.ListIndex(2);
                                                        Append(list, 1);
                                                      },
                                                      {"appended 1 2", "row", "appended 3 1"}},
                                         AppendingRow{"AText",
                                                      [](ListBox& list) {
                                                        Append(list, 2);
                                                        list.Text("text");
                                                      },
                                                      {"appended 1 2", "text"}},
                                         AppendingRow{"AnotherAppending",
                                                      [](ListBox& list) {
                                                        Append(list, 1);
                                                        {
                                                          const ListBox::Appending inner(list);
                                                          Append(list, 1);
                                                        }
                                                        Append(list, 1);
                                                      },
                                                      {"appended 1 3"}}),
                         RowName());

TEST(ListBoxTest, MayEndWhileRowsAreAppended) {
  auto list = std::make_unique<ListBox>();
  const ListBox::Appending appending(*list);
  Append(*list, 2);
  list.reset();
}

TEST(ListBoxTest, AnErrorOfTheDrawingIsReportedByAnExpressEnd) {
  struct FailingWatcher final : WidgetObserver {
    void Changed(Widget&, Aspect) override {}
    void RowsAppended(ListBox&, std::int32_t, std::int32_t) override { throw Error(1234); }
    void Gone(Widget&) override {}
  } watcher;
  ListBox list;
  list.Observe(&watcher);
  {
    ListBox::Appending appending(list);
    Append(list, 2);
    EXPECT_EQ(ErrorCodeOf([&] { appending.End(); }), 1234);
    EXPECT_EQ(ErrorCodeOf([&] { appending.End(); }), 0) << "it has ended";
  }
  {
    const ListBox::Appending appending(list);
    Append(list, 2);
  }
  EXPECT_EQ(list.ListCount(), 4);
  list.Observe(nullptr);
}

TEST(ListBoxTest, AnObserverThatTakesRowsOneByOneGetsThemSo) {
  ListWatcher watcher;
  ListBox list;
  list.Observe(&watcher);
  {
    const ListBox::Appending appending(list);
    list.AddItem("one");
    list.AddItem("two");
    EXPECT_EQ(list.ListCount(), 2);
    EXPECT_EQ(watcher.log, Log{});
  }
  EXPECT_EQ(watcher.log, (Log{"inserted one", "inserted two"}));
  list.Observe(nullptr);
}

}  // namespace
}  // namespace tactix::tests
