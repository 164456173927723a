#include "tactix/platform/widgets/Menu.h"

#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <vector>

#include "tests/support/HeadlessProbe.h"
#include "tests/support/RowName.h"

namespace tactix::tests {
namespace {

using Log = std::vector<std::string>;
using Entries = OuterProbe::ChildWidgets;

TEST(MenuEntryTest, HasTheseDefaults) {
  const MenuEntry entry("&Prompt");
  EXPECT_EQ(entry.Caption(), "&Prompt");
  EXPECT_FALSE(entry.Checked());
  EXPECT_TRUE(entry.Enabled());
  EXPECT_TRUE(entry.Visible());
  EXPECT_EQ(entry.Index(), 0);
  EXPECT_EQ(entry.Parent(), nullptr);
  EXPECT_TRUE(entry.Entries().empty());
  EXPECT_FALSE(entry.IsSeparator());
  EXPECT_TRUE(MenuEntry("-").IsSeparator());
  EXPECT_FALSE(Menu().IsOpen());
}

TEST(MenuEntryTest, KnowsItsPlaceInTheMenu) {
  HeadlessProbe probe;
  Entries& entries = probe.Children();
  ASSERT_EQ(entries.ProbeMenu.Entries().size(), 6U);
  EXPECT_EQ(entries.ProbeMenu.Entries()[0], &entries.PlainEntry);
  EXPECT_EQ(entries.ProbeMenu.Entries()[5], &entries.MoreEntry);
  EXPECT_EQ(entries.DeepEntry.Parent(), &entries.MoreEntry);
  EXPECT_EQ(entries.MoreEntry.Parent(), &entries.ProbeMenu);
}

/// An entry that the user chooses while the menu is open.
struct ChoiceRow {
  const char* name;
  std::function<MenuEntry&(Entries&)> entry;
  std::function<void(Entries&)> before;
  Log heard;
};

class ChoiceTest : public testing::TestWithParam<ChoiceRow> {};

TEST_P(ChoiceTest, IsHeardOrNot) {
  HeadlessProbe probe;
  GetParam().before(probe.Children());
  probe.site->ScriptMenu([&probe](Menu& menu) {
    GetParam().entry(probe.Children()).Choose();
    EXPECT_EQ(menu.IsOpen(), GetParam().heard.empty()) << "a choice closes the menu, nothing else does";
  });
  probe.outer->PopUpMenu();
  Log heard = GetParam().heard;
  heard.emplace_back("MenuClosed#6");
  EXPECT_EQ(probe.recorder.Take(), heard);
}

MenuEntry& Plain(Entries& e) { return e.PlainEntry; }
MenuEntry& Deep(Entries& e) { return e.DeepEntry; }
void AsMade(Entries&) {}

const ChoiceRow Choices[] = {
    {"Plain", Plain, AsMade, {"MenuChosen#5(1)"}},
    {"Checked", [](Entries& e) -> MenuEntry& { return e.CheckedEntry; }, AsMade, {"MenuChosen#5(2)"}},
    {"Disabled", [](Entries& e) -> MenuEntry& { return e.DisabledEntry; }, AsMade, {}},
    {"Hidden", [](Entries& e) -> MenuEntry& { return e.HiddenEntry; }, AsMade, {}},
    {"Separator", [](Entries& e) -> MenuEntry& { return e.SeparatorEntry; }, AsMade, {}},
    {"WithEntriesOfItsOwn", [](Entries& e) -> MenuEntry& { return e.MoreEntry; }, AsMade, {}},
    {"Deep", Deep, AsMade, {"MenuChosen#5(7)"}},
    {"UnderADisabledOne", Deep, [](Entries& e) { e.MoreEntry.Enabled(false); }, {}},
    {"UnderAHiddenOne", Deep, [](Entries& e) { e.MoreEntry.Visible(false); }, {}},
    {"InADisabledMenu", Plain, [](Entries& e) { e.ProbeMenu.Enabled(false); }, {}},
    {"EnabledAgain",
     [](Entries& e) -> MenuEntry& { return e.DisabledEntry; },
     [](Entries& e) { e.DisabledEntry.Enabled(true); },
     {"MenuChosen#5(3)"}},
};

INSTANTIATE_TEST_SUITE_P(Rows, ChoiceTest, testing::ValuesIn(Choices), RowName());

TEST(MenuTest, AnEntryCanBeChosenOnceAndOnlyWhileItsMenuIsOpen) {
  HeadlessProbe probe;
  Entries& entries = probe.Children();
  entries.PlainEntry.Choose();
  probe.site->ScriptMenu([&entries](Menu&) {
    entries.PlainEntry.Choose();
    entries.PlainEntry.Choose();
  });
  probe.outer->PopUpMenu();
  entries.PlainEntry.Choose();
  EXPECT_EQ(probe.recorder.Take(), (Log{"MenuChosen#5(1)", "MenuClosed#6"}));
}

TEST(MenuTest, ChoosingDoesNotCheck) {
  HeadlessProbe probe;
  probe.site->ScriptMenu([&probe](Menu&) { probe.Children().PlainEntry.Choose(); });
  probe.outer->PopUpMenu();
  EXPECT_FALSE(probe.Children().PlainEntry.Checked());
  EXPECT_TRUE(probe.Children().CheckedEntry.Checked());
}

TEST(MenuTest, IsClosedWhenTheChosenEntrysHandlerRuns) {
  HeadlessProbe probe;
  probe.Children().PlainEntry.Chosen.Connect(
      [&probe] { probe.recorder.Note(probe.Children().ProbeMenu.IsOpen() ? "open" : "closed"); });
  probe.site->ScriptMenu([&probe](Menu&) { probe.Children().PlainEntry.Choose(); });
  probe.outer->PopUpMenu();
  EXPECT_EQ(probe.recorder.Take(), (Log{"MenuChosen#5(1)", "closed", "MenuClosed#6"}));
}

TEST(MenuTest, AnErrorOfAnEntrysHandlerEndsAtTheSiteAndThePopUpReturns) {
  HeadlessProbe probe;
  probe.Children().PlainEntry.Chosen.Connect([] { throw Error(Error::ObjectNotSet); });
  probe.site->ScriptMenu([&probe](Menu&) { probe.Children().PlainEntry.Choose(); });
  probe.outer->PopUpMenu();
  EXPECT_EQ(probe.recorder.Take(), (Log{"MenuChosen#5(1)", "MenuClosed#6"}));
  ASSERT_EQ(probe.site->Errors().size(), 1U);
  EXPECT_EQ(probe.site->Errors()[0].Code(), 91);
}

TEST(MenuTest, AHandlerOfAnEntryMayDestroyItsControl) {
  HeadlessProbe probe;
  probe.Children().PlainEntry.Chosen.Connect([&probe] { probe.DestroyWindow(); });
  probe.site->ScriptMenu([&probe](Menu&) { probe.Children().PlainEntry.Choose(); });
  probe.outer->PopUpMenu();
  EXPECT_EQ(probe.recorder.Take(), Log{"MenuChosen#5(1)"});
}

}  // namespace
}  // namespace tactix::tests
