#include "tactix/platform/widgets/Widget.h"

#include <gtest/gtest.h>

#include <functional>
#include <limits>
#include <optional>
#include <string>
#include <vector>

#include "tests/platform/ErrorCode.h"
#include "tests/support/HeadlessProbe.h"
#include "tests/support/RowName.h"

namespace tactix::tests {
namespace {

using Log = std::vector<std::string>;

/// Notes what changes about the widgets it is put on.
struct Watcher final : WidgetObserver {
  Log log;
  std::function<void(Aspect)> onChange;

  void Changed(Widget& widget, Aspect aspect) override {
    static const char* const names[] = {"Geometry", "Visible", "Enabled", "ToolTip", "Font", "Colors",
                                        "Order",    "Caption", "Default", "Value",   "Row",  "Text"};
    log.push_back(std::string(widget.Name()) + " " + names[static_cast<std::size_t>(aspect)]);
    if (onChange) onChange(aspect);
  }
  void Gone(Widget&) override { log.emplace_back("gone"); }
};

TEST(WidgetTest, HasTheseDefaults) {
  const Label label;
  EXPECT_TRUE(label.Visible());
  EXPECT_TRUE(label.Enabled());
  EXPECT_EQ(label.ToolTipText(), "");
  EXPECT_EQ(label.Caption(), "");
  EXPECT_EQ(label.Font(), Font());
  EXPECT_EQ(label.ForeColor(), WindowTextColor);
  EXPECT_EQ(label.BackColor(), WindowColor);
  EXPECT_EQ(label.Left() + label.Top() + label.Width() + label.Height(), 0);
  EXPECT_EQ(label.Parent(), nullptr);
  EXPECT_EQ(label.Owner(), nullptr);
  EXPECT_EQ(label.OwnerSite(), nullptr);
  EXPECT_FALSE(label.HasFocus());
}

/// What setting something tells the observer; setting it to what it is tells nothing.
struct ChangeRow {
  const char* name;
  std::function<void(Label&)> set;
  const char* told;
};

class ChangeTest : public testing::TestWithParam<ChangeRow> {};

TEST_P(ChangeTest, IsToldOnce) {
  Watcher watcher;
  Label label;
  label.Observe(&watcher);
  GetParam().set(label);
  EXPECT_EQ(watcher.log, Log{GetParam().told});
  GetParam().set(label);
  EXPECT_EQ(watcher.log, Log{GetParam().told}) << "told again, though nothing changed";
  label.Observe(nullptr);
}

const ChangeRow Changes[] = {
    {"Left", [](Label& l) { l.Left(1); }, " Geometry"},
    {"Top", [](Label& l) { l.Top(1); }, " Geometry"},
    {"Width", [](Label& l) { l.Width(1); }, " Geometry"},
    {"Height", [](Label& l) { l.Height(1); }, " Geometry"},
    {"Place", [](Label& l) { l.Place(1, 2, 3, 4); }, " Geometry"},
    {"Visible", [](Label& l) { l.Visible(false); }, " Visible"},
    {"Enabled", [](Label& l) { l.Enabled(false); }, " Enabled"},
    {"ToolTip", [](Label& l) { l.ToolTipText("tip"); }, " ToolTip"},
    {"Font",
     [](Label& l) {
       l.Font({"Comic Neue", 8, true, false});
     },
     " Font"},
    {"ForeColor", [](Label& l) { l.ForeColor(0x0000FF); }, " Colors"},
    {"BackColor", [](Label& l) { l.BackColor(0x0000FF); }, " Colors"},
    {"Caption", [](Label& l) { l.Caption("text"); }, " Caption"},
};

INSTANTIATE_TEST_SUITE_P(Rows, ChangeTest, testing::ValuesIn(Changes), RowName());

TEST(WidgetTest, SettersOfAPlaceLeaveTheRestOfItAlone) {
  Label label;
  label.Place(1, 2, 3, 4);
  label.Left(10);
  label.Top(20);
  label.Width(30);
  label.Height(40);
  EXPECT_EQ(label.Left(), 10);
  EXPECT_EQ(label.Top(), 20);
  EXPECT_EQ(label.Width(), 30);
  EXPECT_EQ(label.Height(), 40);
}

TEST(WidgetTest, APlaceThatIsNotFiniteIsRefused) {
  constexpr float Infinite = std::numeric_limits<float>::infinity();
  for (const float length : {Infinite, -Infinite, std::numeric_limits<float>::quiet_NaN()}) {
    using Setter = void (Widget::*)(float);
    for (const Setter set :
         {Setter{&Widget::Left}, Setter{&Widget::Top}, Setter{&Widget::Width}, Setter{&Widget::Height}}) {
      Label label;
      label.Place(1, 2, 3, 4);
      EXPECT_EQ(ErrorCodeOf([&] { return (label.*set)(length), 0; }), Error::InvalidPropertyValue) << length;
      EXPECT_EQ(std::vector({label.Left(), label.Top(), label.Width(), label.Height()}),
                (std::vector<float>{1, 2, 3, 4}));
    }
  }
}

TEST(WidgetTest, TellsItsObserverThatItIsGone) {
  Watcher watcher;
  {
    Label label;
    label.Observe(&watcher);
  }
  EXPECT_EQ(watcher.log, Log{"gone"});
}

struct OrderRow {
  const char* name;
  std::function<void(Widget& bottom, Widget& middle, Widget& top)> move;
  const char* order;
  Log told;
};

class OrderTest : public testing::TestWithParam<OrderRow> {};

TEST_P(OrderTest, ChangesTheOrderOfSiblings) {
  Watcher watcher;
  Panel panel;
  Label bottom, middle, top;
  panel.Add(bottom, "b");
  panel.Add(middle, "m");
  panel.Add(top, "t");
  for (Label* label : {&bottom, &middle, &top}) label->Observe(&watcher);
  GetParam().move(bottom, middle, top);
  std::string order;
  for (const Widget* child : panel.Children()) order += child->Name();
  EXPECT_EQ(order, GetParam().order);
  EXPECT_EQ(watcher.log, GetParam().told);
}

const OrderRow Orders[] = {
    {"AsAdded", [](Widget&, Widget&, Widget&) {}, "bmt", {}},
    {"BottomToFront", [](Widget& b, Widget&, Widget&) { b.BringToFront(); }, "mtb", {"b Order"}},
    {"MiddleToFront", [](Widget&, Widget& m, Widget&) { m.BringToFront(); }, "btm", {"m Order"}},
    {"TopToFront", [](Widget&, Widget&, Widget& t) { t.BringToFront(); }, "bmt", {}},
    {"TopToBack", [](Widget&, Widget&, Widget& t) { t.SendToBack(); }, "tbm", {"t Order"}},
    {"MiddleToBack", [](Widget&, Widget& m, Widget&) { m.SendToBack(); }, "mbt", {"m Order"}},
    {"BottomToBack", [](Widget& b, Widget&, Widget&) { b.SendToBack(); }, "bmt", {}},
};

INSTANTIATE_TEST_SUITE_P(Rows, OrderTest, testing::ValuesIn(Orders), RowName());

TEST(WidgetTreeTest, AWidgetWithoutParentHasNoOrder) {
  Label label;
  label.BringToFront();
  label.SendToBack();
  EXPECT_EQ(label.Parent(), nullptr);
}

TEST(WidgetTreeTest, ChildrenAndParentsMayGoInAnyOrder) {
  std::optional<Panel> panel(std::in_place);
  std::optional<Label> first(std::in_place);
  Label second;
  panel->Add(*first, "first");
  panel->Add(second, "second");
  EXPECT_EQ(second.Parent(), &*panel);
  EXPECT_TRUE(panel->Contains(&second));
  EXPECT_TRUE(panel->Contains(&*panel));
  EXPECT_FALSE(panel->Contains(nullptr));
  EXPECT_FALSE(second.Contains(&*panel));
  first.reset();
  ASSERT_EQ(panel->Children().size(), 1U);
  EXPECT_EQ(panel->Children()[0], &second);
  panel.reset();
  EXPECT_EQ(second.Parent(), nullptr);
}

struct ReachRow {
  const char* name;
  std::function<void(HeadlessProbe&)> before;
  bool shown;
  bool usable;
};

class ReachTest : public testing::TestWithParam<ReachRow> {};

TEST_P(ReachTest, FollowsAllParents) {
  HeadlessProbe probe;
  GetParam().before(probe);
  PushButton& button = probe.InnerChildren().InnerButton;
  EXPECT_EQ(button.Shown(), GetParam().shown);
  EXPECT_EQ(button.Usable(), GetParam().usable);
  button.MousePressed.Connect([&probe](const MouseState&) { probe.recorder.Note("down"); });
  button.MouseMoved.Connect([&probe](const MouseState&) { probe.recorder.Note("move"); });
  button.OnKeyDown([&probe](const KeyPress&) { probe.recorder.Note("key"); });
  button.MouseDown({LeftButton, 0, 1, 1});
  button.MouseMove({0, 0, 1, 1});
  EXPECT_EQ(button.KeyDown({'X', 0}), GetParam().usable);
  EXPECT_EQ(probe.recorder.Take(), GetParam().usable ? (Log{"down", "move", "key"}) : Log{});
  button.SetFocus();
  EXPECT_EQ(button.HasFocus(), GetParam().usable);
}

const ReachRow Reaches[] = {
    {"AsMade", [](HeadlessProbe&) {}, true, true},
    {"Hidden", [](HeadlessProbe& p) { p.InnerChildren().InnerButton.Visible(false); }, false, false},
    {"Disabled", [](HeadlessProbe& p) { p.InnerChildren().InnerButton.Enabled(false); }, true, false},
    {"InnerHidden", [](HeadlessProbe& p) { p.Children().Inner.Extender().Visible(false); }, false, false},
    {"InnerDisabled", [](HeadlessProbe& p) { p.Children().Inner.Extender().Enabled(false); }, true, false},
    {"OuterHidden", [](HeadlessProbe& p) { p.outer->Extender().Visible(false); }, false, false},
    {"OuterDisabled", [](HeadlessProbe& p) { p.outer->Extender().Enabled(false); }, true, false},
};

INSTANTIATE_TEST_SUITE_P(Rows, ReachTest, testing::ValuesIn(Reaches), RowName());

TEST(MouseTest, CarriesButtonsShiftStateAndPlace) {
  HeadlessProbe probe;
  MouseState seen;
  probe.Children().ButtonPanel.MousePressed.Connect([&seen](const MouseState& mouse) { seen = mouse; });
  probe.Children().ButtonPanel.MouseDown({RightButton, ShiftKey | CtrlKey, 12, 34});
  EXPECT_EQ(probe.recorder.Take(), Log{"MouseWasDown#10(2, 3)"});
  EXPECT_EQ(seen.x, 12);
  EXPECT_EQ(seen.y, 34);
}

/// The focus stands on the inner button; something is hidden or disabled.
struct FocusRow {
  const char* name;
  std::function<void(HeadlessProbe&)> act;
  std::function<Widget*(HeadlessProbe&)> focus;
};

class FocusRowTest : public testing::TestWithParam<FocusRow> {};

TEST_P(FocusRowTest, MovesThere) {
  HeadlessProbe probe;
  probe.InnerChildren().InnerButton.SetFocus();
  probe.NoteNotifications();
  GetParam().act(probe);
  EXPECT_EQ(probe.site->Focus(), GetParam().focus(probe));
  EXPECT_EQ(probe.recorder.Take(), Log{}) << "no control has been entered from outside";
}

Widget* OnInnerButton(HeadlessProbe& p) { return &p.InnerChildren().InnerButton; }
Widget* OnInner(HeadlessProbe& p) { return &p.Children().Inner.Extender(); }
Widget* OnOuter(HeadlessProbe& p) { return &p.outer->Extender(); }
Widget* OnNothing(HeadlessProbe&) { return nullptr; }

const FocusRow Focuses[] = {
    {"NothingDone", [](HeadlessProbe&) {}, OnInnerButton},
    {"HideIt", [](HeadlessProbe& p) { p.InnerChildren().InnerButton.Visible(false); }, OnInner},
    {"DisableIt", [](HeadlessProbe& p) { p.InnerChildren().InnerButton.Enabled(false); }, OnInner},
    {"HideItAndShowItAgain",
     [](HeadlessProbe& p) {
       p.InnerChildren().InnerButton.Visible(false);
       p.InnerChildren().InnerButton.Visible(true);
     },
     OnInner},
    {"DisableItAndEnableItAgain",
     [](HeadlessProbe& p) {
       p.InnerChildren().InnerButton.Enabled(false);
       p.InnerChildren().InnerButton.Enabled(true);
     },
     OnInner},
    {"HideInner", [](HeadlessProbe& p) { p.Children().Inner.Extender().Visible(false); }, OnOuter},
    {"DisableInner", [](HeadlessProbe& p) { p.Children().Inner.Extender().Enabled(false); }, OnOuter},
    {"HideOuter", [](HeadlessProbe& p) { p.outer->Extender().Visible(false); }, OnNothing},
    {"HideAnother", [](HeadlessProbe& p) { p.InnerChildren().InnerList.Visible(false); }, OnInnerButton},
    {"HideAnotherParent", [](HeadlessProbe& p) { p.Children().ButtonPanel.Visible(false); }, OnInnerButton},
    {"FocusOnWhatIsHidden",
     [](HeadlessProbe& p) {
       p.Children().FirstButton.Visible(false);
       p.Children().FirstButton.SetFocus();
     },
     OnInnerButton},
    {"FocusElsewhere", [](HeadlessProbe& p) { p.Children().FirstButton.SetFocus(); },
     [](HeadlessProbe& p) -> Widget* { return &p.Children().FirstButton; }},
    {"DestroyControl", [](HeadlessProbe& p) { p.DestroyControl(); }, OnNothing},
};

INSTANTIATE_TEST_SUITE_P(Rows, FocusRowTest, testing::ValuesIn(Focuses), RowName());

TEST(FocusTest, HidingAPanelTakesTheFocusFromInsideIt) {
  HeadlessProbe probe;
  probe.Children().PanelButton.SetFocus();
  probe.Children().ButtonPanel.Visible(false);
  EXPECT_EQ(probe.site->Focus(), &probe.outer->Extender());
}

TEST(FocusTest, ControlsHearThatItCameFromOutsideTheOutermostFirst) {
  HeadlessProbe probe;
  probe.NoteNotifications();
  probe.InnerChildren().InnerButton.SetFocus();
  EXPECT_EQ(probe.recorder.Take(), (Log{"outer: GotFocus", "inner: GotFocus"}));
  probe.InnerChildren().InnerList.SetFocus();
  EXPECT_EQ(probe.recorder.Take(), Log{});
  probe.Children().FirstButton.SetFocus();
  EXPECT_EQ(probe.recorder.Take(), Log{});
  probe.InnerChildren().InnerButton.SetFocus();
  EXPECT_EQ(probe.recorder.Take(), Log{"inner: GotFocus"});
  probe.site->SetFocus(nullptr);
  probe.Children().FirstButton.SetFocus();
  EXPECT_EQ(probe.recorder.Take(), Log{"outer: GotFocus"});
}

TEST(FocusTest, AControlThatSendsItElsewhereKeepsItFromTheOnesInside) {
  HeadlessProbe probe;
  probe.NoteNotifications();
  probe.outer->OnNote = [&probe](std::string note) {
    probe.recorder.Note(std::move(note));
    probe.Children().FirstButton.SetFocus();
  };
  probe.InnerChildren().InnerButton.SetFocus();
  EXPECT_EQ(probe.recorder.Take(), Log{"outer: GotFocus"});
  EXPECT_EQ(probe.site->Focus(), &probe.Children().FirstButton);
}

TEST(FocusTest, AControlMayBeDestroyedAsItGetsIt) {
  HeadlessProbe probe;
  probe.NoteNotifications();
  probe.outer->OnNote = [&probe](const std::string&) { probe.DestroyWindow(); };
  probe.InnerChildren().InnerButton.SetFocus();
  EXPECT_EQ(probe.recorder.Take(), Log{});
}

/// A key for one focused widget: which map runs. Never two.
struct KeyRow {
  const char* name;
  std::function<Widget&(HeadlessProbe&)> focused;
  std::int32_t code;
  std::int16_t shift;
  Log heard;
};

class KeyMapRowTest : public testing::TestWithParam<KeyRow> {};

TEST_P(KeyMapRowTest, OneMapRuns) {
  HeadlessProbe probe;
  probe.site->SetFocus(&GetParam().focused(probe));
  EXPECT_TRUE(probe.site->PressKey({GetParam().code, GetParam().shift}));
  EXPECT_EQ(probe.recorder.Take(), GetParam().heard);
}

Widget& First(HeadlessProbe& p) { return p.Children().FirstButton; }

const KeyRow KeyRows[] = {
    {"ItsOwn", First, 'H', 0, {"KeyPressed#9(first, H)"}},
    {"LowerCase", First, 'h', 0, {"KeyPressed#9(first, H)"}},
    {"Shift", First, 'h', ShiftKey, {"KeyPressed#9(first, H)"}},
    {"Ctrl", First, 'h', CtrlKey, {"KeyPressed#9(first, H)"}},
    {"FirstLetter", First, 'A', 0, {"KeyPressed#9(first, A)"}},
    {"LastLetter", First, 'z', 0, {"KeyPressed#9(first, Z)"}},
    {"Digit", First, '1', 0, {"KeyPressed#9(first, )"}},
    {"BeforeA", First, '@', 0, {"KeyPressed#9(first, )"}},
    {"AfterZ", First, '{', 0, {"KeyPressed#9(first, )"}},
    {"FunctionKey", First, FunctionKey1, 0, {"KeyPressed#9(first, )"}},
    {"NegativeCode", First, -1, 0, {"KeyPressed#9(first, )"}},
    {"BesideALetterInTheLowByte", First, 0x01000048, 0, {"KeyPressed#9(first, )"}},
    {"TheBoxsOwn", [](HeadlessProbe& p) -> Widget& { return p.outer->Extender(); }, 'H', 0, {"KeyPressed#9(box, H)"}},
    {"ThePanelsAroundIt",
     [](HeadlessProbe& p) -> Widget& { return p.Children().PanelButton; },
     'H',
     0,
     {"KeyPressed#9(panel, H)"}},
    {"TheBoxsThroughTheInnerControl",
     [](HeadlessProbe& p) -> Widget& { return p.InnerChildren().InnerButton; },
     'H',
     0,
     {"KeyPressed#9(box, H)"}},
};

INSTANTIATE_TEST_SUITE_P(Rows, KeyMapRowTest, testing::ValuesIn(KeyRows), RowName());

TEST(KeyMapTest, WithoutFocusNothingTakesAKey) {
  HeadlessProbe probe;
  EXPECT_FALSE(probe.site->PressKey({'H', 0}));
  EXPECT_EQ(probe.recorder.Take(), Log{});
}

TEST(KeyMapTest, AMapMayDestroyItsControlOrReplaceItself) {
  HeadlessProbe probe;
  Widget& box = probe.outer->Extender();
  const std::string kept = "a text too long for a small buffer, on the heap";
  box.OnKeyDown([&probe, &box, kept](const KeyPress&) {
    box.OnKeyDown(nullptr);
    probe.recorder.Note(kept);
  });
  box.SetFocus();
  EXPECT_TRUE(probe.site->PressKey({'H', 0}));
  EXPECT_EQ(probe.recorder.Take(), Log{kept});
  EXPECT_FALSE(probe.site->PressKey({'H', 0}));
  box.OnKeyDown([&probe, kept](const KeyPress&) {
    probe.DestroyWindow();
    probe.recorder.Note(kept);
  });
  EXPECT_TRUE(probe.site->PressKey({'H', 0}));
  EXPECT_EQ(probe.recorder.Take(), Log{kept});
}

}  // namespace
}  // namespace tactix::tests
