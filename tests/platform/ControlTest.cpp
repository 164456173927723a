#include "tactix/platform/Control.h"

#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "tests/support/HeadlessProbe.h"
#include "tests/support/RowName.h"

namespace tactix::tests {
namespace {

using Log = std::vector<std::string>;

/// What the container does, and which of its notifications the two controls hear.
struct NotificationRow {
  const char* name;
  std::function<void(HeadlessProbe&)> act;
  Log heard;
};

class NotificationTest : public testing::TestWithParam<NotificationRow> {};

TEST_P(NotificationTest, IsHeard) {
  HeadlessProbe probe;
  probe.NoteNotifications();
  GetParam().act(probe);
  EXPECT_EQ(probe.recorder.Take(), GetParam().heard);
}

const NotificationRow Notifications[] = {
    {"Displayed", [](HeadlessProbe& p) { p.outer->Displayed(); }, {"outer: Displayed", "inner: Displayed"}},
    {"AmbientChanged",
     [](HeadlessProbe& p) { p.outer->AmbientChanged(); },
     {"outer: AmbientChanged", "inner: AmbientChanged"}},
    {"Terminated", [](HeadlessProbe& p) { p.outer->Terminated(); }, {"outer: Terminated", "inner: Terminated"}},
    {"InitPropertiesStaysWithTheOuter", [](HeadlessProbe& p) { p.outer->InitProperties(); }, {"outer: InitProperties"}},
    {"Width", [](HeadlessProbe& p) { p.outer->Extender().Width(1); }, {"outer: Resized"}},
    {"Height", [](HeadlessProbe& p) { p.outer->Extender().Height(1); }, {"outer: Resized"}},
    {"BothAtOnce", [](HeadlessProbe& p) { p.outer->Extender().Place(1, 2, 3, 4); }, {"outer: Resized"}},
    {"Moved", [](HeadlessProbe& p) { p.outer->Extender().Place(1, 2, 6000, 3000); }, {}},
    {"TheSameSize", [](HeadlessProbe& p) { p.outer->Extender().Width(6000); }, {}},
    {"DesignSize", [](HeadlessProbe& p) { p.outer->Extender().DesignSize(1, 2); }, {}},
    {"InnerWidth", [](HeadlessProbe& p) { p.Children().Inner.Extender().Width(1); }, {"inner: Resized"}},
    {"ANestedControlsNoticeStaysWithIt", [](HeadlessProbe& p) { p.Children().Inner.Mark(5); }, {}},
    {"AnOuterControlsNotice", [](HeadlessProbe& p) { p.outer->Tag("x"); }, {"notice: Tag", "TagChanged#8"}},
};

INSTANTIATE_TEST_SUITE_P(Rows, NotificationTest, testing::ValuesIn(Notifications), RowName());

TEST(ControlTest, AHandlerMayDestroyItInANotification) {
  const std::function<void(OuterProbe&)> ways[] = {
      [](OuterProbe& outer) { outer.Displayed(); },
      [](OuterProbe& outer) { outer.AmbientChanged(); },
      [](OuterProbe& outer) { outer.Extender().Width(1); },
      [](OuterProbe& outer) { outer.Tag("x"); },
  };
  for (const auto& way : ways) {
    HeadlessProbe probe;
    probe.Children().Inner.OnNote = [&probe](const std::string&) { probe.DestroyWindow(); };
    probe.outer->OnNote = [&probe](const std::string& note) {
      if (note == "outer: Resized") probe.DestroyWindow();
    };
    probe.site->OnPropertyChanged([&probe](std::string_view) { probe.DestroyWindow(); });
    way(*probe.outer);
    EXPECT_EQ(probe.outer, nullptr);
    EXPECT_EQ(probe.recorder.Take(), Log{});
  }
}

TEST(ControlTest, ReachesControlsInsideItsPanels) {
  HeadlessProbe probe;
  InnerProbe inPanel(probe.outer->SiteOfInner);
  probe.Children().ButtonPanel.Add(inPanel.Extender(), "InPanel");
  inPanel.OnNote = [&probe](const std::string& note) { probe.recorder.Note("in panel, " + note); };
  probe.outer->Displayed();
  EXPECT_EQ(probe.recorder.Take(), Log{"in panel, inner: Displayed"});
}

TEST(ControlTest, TellsNobodyInsideItOnceItIsGone) {
  HeadlessProbe probe;
  auto second = std::make_unique<InnerProbe>(probe.outer->SiteOfInner);
  probe.outer->Extender().Add(second->Extender(), "Second");
  second->OnNote = [&probe](const std::string& note) { probe.recorder.Note("second, " + note); };
  probe.Children().Inner.OnNote = [&](const std::string&) {
    second.reset();
    probe.DestroyWindow();
  };
  probe.outer->Displayed();
  EXPECT_EQ(probe.recorder.Take(), Log{});
}

TEST(ControlTest, AnnouncesItselfToItsSite) {
  struct CountingSite final : Site {
    Log log;
    void Attach(Control&) override { log.emplace_back("attach"); }
    void Detach(Control&) override { log.emplace_back("detach"); }
    Font AmbientFont() const override { return {}; }
    Color AmbientForeColor() const override { return 0; }
    Color AmbientBackColor() const override { return 0; }
    bool UserMode() const override { return true; }
    void PropertyChanged(std::string_view) override {}
    void StartTimer(Timer&) override {}
    void StopTimer(Timer&) override {}
    void RunUntil(const std::function<bool()>&) override {}
    void Beep() override {}
    void PopUp(Menu&, Widget&, float, float) override {}
    float ScreenWidth() const override { return 0; }
    float ScreenHeight() const override { return 0; }
    void SetFocus(Widget*) override {}
    Widget* Focus() const override { return nullptr; }
    void MadeDefault(PushButton&) override {}
    void Unhandled(const Error&) override {}
  } site;
  { const OuterProbe probe(site); }
  EXPECT_EQ(site.log, (Log{"attach", "detach"})) << "the nested control stands on the outer one's site for it";
}

struct ScaleRow {
  const char* name;
  std::function<const Widget&(HeadlessProbe&)> widget;
  float twipsPerUnit;
};

class ScaleTest : public testing::TestWithParam<ScaleRow> {};

TEST_P(ScaleTest, ItsPlaceIsInTheseUnits) {
  HeadlessProbe probe;
  EXPECT_EQ(GetParam().widget(probe).TwipsPerUnit(), GetParam().twipsPerUnit);
}

const ScaleRow Scales[] = {
    {"TheOuterControl", [](HeadlessProbe& p) -> const Widget& { return p.outer->Extender(); }, 1},
    {"AChildOfTheOuter", [](HeadlessProbe& p) -> const Widget& { return p.Children().FirstButton; }, 1},
    {"AChildOfAPanel", [](HeadlessProbe& p) -> const Widget& { return p.Children().PanelButton; }, 1},
    {"TheInnerControl", [](HeadlessProbe& p) -> const Widget& { return p.Children().Inner.Extender(); }, 1},
    {"AChildOfTheInner", [](HeadlessProbe& p) -> const Widget& { return p.InnerChildren().InnerButton; }, 15},
    {"TheInnerControlInPixels",
     [](HeadlessProbe& p) -> const Widget& {
       p.outer->Extender().Scale(ScaleUnit::Pixels);
       return p.Children().Inner.Extender();
     },
     15},
    {"AnOuterControlInPixelsIsPlacedInTwips",
     [](HeadlessProbe& p) -> const Widget& {
       p.outer->Extender().Scale(ScaleUnit::Pixels);
       return p.outer->Extender();
     },
     1},
};

INSTANTIATE_TEST_SUITE_P(Rows, ScaleTest, testing::ValuesIn(Scales), RowName());

TEST(ExtenderTest, KnowsItsInnerSizeInItsOwnUnits) {
  HeadlessProbe probe;
  Extender& outer = probe.outer->Extender();
  Extender& inner = probe.Children().Inner.Extender();
  EXPECT_EQ(outer.ScaleWidth(), 6000);
  EXPECT_EQ(outer.ScaleHeight(), 3000);
  EXPECT_EQ(inner.ScaleWidth(), 160);
  EXPECT_EQ(inner.ScaleHeight(), 80);
  outer.Scale(ScaleUnit::Pixels);
  EXPECT_EQ(outer.ScaleWidth(), 400);
  EXPECT_EQ(inner.ScaleWidth(), 2400) << "its place is in pixels now";
}

TEST(ExtenderTest, BelongsToTheControlAroundIt) {
  HeadlessProbe probe;
  Extender& inner = probe.Children().Inner.Extender();
  EXPECT_EQ(inner.Owner(), &probe.outer->Extender());
  EXPECT_EQ(probe.InnerChildren().InnerButton.Owner(), &inner);
  EXPECT_EQ(probe.outer->Extender().Owner(), nullptr);
  EXPECT_EQ(probe.Children().PanelButton.Owner(), &probe.outer->Extender());
  EXPECT_EQ(&inner.ItsControl(), &probe.Children().Inner);
}

TEST(ExtenderTest, TheControlsOwnFlagsHideNothing) {
  HeadlessProbe probe;
  probe.outer->Visible(false);
  probe.outer->Enabled(false);
  EXPECT_TRUE(probe.Children().FirstButton.Shown());
  EXPECT_TRUE(probe.Children().FirstButton.Usable());
}

TEST(NestedSiteTest, TakesFromTheOuterSiteWhatIsNotItsOwn) {
  HeadlessSite outer;
  NestedSite middle(outer);
  Site& outerOfSite = middle;
  NestedSite site(outerOfSite);
  outer.AmbientFont({"Liberation Sans", 9, false, false});
  outer.AmbientForeColor(1);
  outer.AmbientBackColor(2);
  outer.UserMode(false);
  outer.ScreenSize(3, 4);
  EXPECT_EQ(site.AmbientFont().Name, "Liberation Sans");
  EXPECT_EQ(site.AmbientForeColor(), 1);
  EXPECT_EQ(site.AmbientBackColor(), 2);
  EXPECT_FALSE(site.UserMode());
  EXPECT_EQ(site.ScreenWidth(), 3);
  EXPECT_EQ(site.ScreenHeight(), 4);
  EXPECT_EQ(&site.Outermost(), &outer);

  site.Beep();
  EXPECT_EQ(outer.Beeps(), 1);
  site.PropertyChanged("Mark");
  EXPECT_EQ(outer.Changes(), Log{});
  site.Unhandled(Error(Error::Overflow));
  EXPECT_EQ(outer.Errors().size(), 1U);

  OuterProbe probe(outer);
  Menu menu("Inside");
  site.PopUp(menu, probe.Extender(), 5, 6);
  ASSERT_EQ(outer.PopUps().size(), 1U);
  EXPECT_EQ(outer.PopUps()[0].caption, "Inside");
  site.SetFocus(&probe.Extender());
  EXPECT_EQ(outer.Focus(), &probe.Extender());
  EXPECT_EQ(site.Focus(), &probe.Extender());
  bool done = false;
  outer.After(10, [&done] { done = true; });
  site.RunUntil([&done] { return done; });
  EXPECT_EQ(outer.Now(), 10);
}

TEST(ControlTest, SavesAndReadsWhatItPersists) {
  HeadlessProbe probe;
  MemoryPropertyBag bag;
  probe.outer->WriteProperties(bag);
  EXPECT_EQ(bag.Names(), Log{});
  probe.outer->Tag("x");
  probe.outer->WriteProperties(bag);
  probe.Children().Inner.WriteProperties(bag);
  EXPECT_EQ(bag.Names(), Log{"Tag"});
  HeadlessProbe another;
  another.outer->ReadProperties(bag);
  another.Children().Inner.ReadProperties(bag);
  EXPECT_EQ(another.outer->Tag(), "x");
  EXPECT_EQ(another.recorder.Take(), Log{}) << "reading is no change";
}

}  // namespace
}  // namespace tactix::tests
