#include "tactix/platform/widgets/SpinButton.h"

#include <gtest/gtest.h>

#include <functional>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "tactix/platform/Control.h"
#include "tactix/platform/headless/HeadlessSite.h"
#include "tactix/platform/widgets/Panel.h"
#include "tests/support/EventRecorder.h"
#include "tests/support/RowName.h"

namespace tactix::tests {
namespace {

using Log = std::vector<std::string>;

/// A control with a spin button on a panel, and a key map around it.
class SpinProbe final : public Control {
 public:
  explicit SpinProbe(Site& site) : Control(site) {
    Extender().Add(panel, "panel");
    panel.Add(spin, "spin");
    Extender().OnKeyDown([this](const KeyPress&) { Mapped.Raise(); });
  }
  void GotFocus() override {
    if (const auto onFocus = OnFocus) onFocus();
  }

  Panel panel;
  SpinButton spin;
  Event<> Mapped{0, "Mapped"};
  std::function<void()> OnFocus;
};

struct SpinAtSite {
  EventRecorder recorder;
  std::optional<HeadlessSite> site{std::in_place};
  std::optional<SpinProbe> probe{*site};

  SpinAtSite() {
    recorder.Watch(probe->spin.SpunUp);
    recorder.Watch(probe->spin.SpunDown);
    recorder.Watch(probe->Mapped);
  }
  void DestroyWindow() {
    probe.reset();
    site.reset();
  }
};

struct SpinRow {
  const char* name;
  void (*before)(SpinProbe&);
  bool spins;
};

class SpinButtonTest : public testing::TestWithParam<SpinRow>, protected SpinAtSite {};

TEST_P(SpinButtonTest, SpinsAsAUserCan) {
  const Log none;
  GetParam().before(*probe);
  probe->spin.SpinUp();
  EXPECT_EQ(recorder.Take(), GetParam().spins ? Log{"SpinUp"} : none);
  EXPECT_EQ(probe->spin.HasFocus(), GetParam().spins);
  probe->spin.SpinDown();
  EXPECT_EQ(recorder.Take(), GetParam().spins ? Log{"SpinDown"} : none);
  site->PressKey({UpArrowKey, 0});
  site->PressKey({DownArrowKey, ShiftKey});
  EXPECT_EQ(recorder.Take(), GetParam().spins ? (Log{"SpinUp", "SpinDown"}) : none);
}

INSTANTIATE_TEST_SUITE_P(
    Rows, SpinButtonTest,
    testing::Values(SpinRow{"Usable", [](SpinProbe&) {}, true},
                    SpinRow{"Hidden", [](SpinProbe& p) { p.spin.Visible(false); }, false},
                    SpinRow{"Disabled", [](SpinProbe& p) { p.spin.Enabled(false); }, false},
                    SpinRow{"HiddenParent", [](SpinProbe& p) { p.panel.Visible(false); }, false},
                    SpinRow{"DisabledParent", [](SpinProbe& p) { p.panel.Enabled(false); }, false},
                    SpinRow{"HiddenControl", [](SpinProbe& p) { p.Extender().Visible(false); }, false},
                    SpinRow{"DisabledControl", [](SpinProbe& p) { p.Extender().Enabled(false); }, false}),
    RowName());

struct SpinKeyRow {
  const char* name;
  std::int32_t code;
  std::int16_t shift;
  const char* heard;
};

class SpinButtonKeyTest : public testing::TestWithParam<SpinKeyRow>, protected SpinAtSite {};

TEST_P(SpinButtonKeyTest, TakesTheArrowsAndNoOtherKey) {
  probe->spin.SetFocus();
  site->PressKey({GetParam().code, GetParam().shift});
  EXPECT_EQ(recorder.Take(), Log{GetParam().heard});
}

INSTANTIATE_TEST_SUITE_P(Rows, SpinButtonKeyTest,
                         testing::Values(SpinKeyRow{"Up", UpArrowKey, 0, "SpinUp"},
                                         SpinKeyRow{"Down", DownArrowKey, 0, "SpinDown"},
                                         SpinKeyRow{"ShiftUp", UpArrowKey, ShiftKey, "SpinUp"},
                                         SpinKeyRow{"CtrlUp", UpArrowKey, CtrlKey, "Mapped"},
                                         SpinKeyRow{"AltDown", DownArrowKey, AltKey, "Mapped"},
                                         SpinKeyRow{"Home", HomeKey, 0, "Mapped"},
                                         SpinKeyRow{"Blank", ' ', 0, "Mapped"}, SpinKeyRow{"Letter", 'U', 0, "Mapped"}),
                         RowName());

TEST(LooseSpinButtonTest, ReportsNothing) {
  SpinButton loose;
  EventRecorder recorder;
  recorder.Watch(loose.SpunUp);
  loose.SpinUp();
  EXPECT_EQ(recorder.Take(), Log{});
}

TEST(SpinButtonFocusTest, ASpinTakesTheFocusFirst) {
  SpinAtSite at;
  at.probe->OnFocus = [&at] { at.recorder.Note("focus"); };
  at.probe->spin.SpinUp();
  at.probe->spin.SpinUp();
  EXPECT_EQ(at.recorder.Take(), (Log{"focus", "SpinUp", "SpinUp"}));
}

TEST(SpinButtonFocusTest, ASpinEndsWhereTakingTheFocusHidesDisablesOrDestroysIt) {
  const std::function<void(SpinAtSite&)> ways[] = {
      [](SpinAtSite& at) { at.probe->spin.Visible(false); },
      [](SpinAtSite& at) { at.probe->panel.Enabled(false); },
      [](SpinAtSite& at) { at.probe.reset(); },
      [](SpinAtSite& at) { at.DestroyWindow(); },
  };
  for (const auto& way : ways) {
    SpinAtSite at;
    at.probe->OnFocus = [&at, &way] { way(at); };
    at.probe->spin.SpinDown();
    EXPECT_EQ(at.recorder.Take(), Log{});
  }
}

TEST(SpinButtonDestroyTest, AHandlerMayDestroyTheControlOrItsWindow) {
  for (const bool withWindow : {false, true}) {
    for (const bool byKey : {false, true}) {
      SpinAtSite at;
      at.probe->spin.SetFocus();
      at.probe->spin.SpunUp.Connect([&at, withWindow] { withWindow ? at.DestroyWindow() : at.probe.reset(); });
      byKey ? static_cast<void>(at.site->PressKey({UpArrowKey, 0})) : at.probe->spin.SpinUp();
      EXPECT_FALSE(at.probe);
      EXPECT_EQ(at.recorder.Take(), Log{"SpinUp"});
    }
  }
}

TEST(SpinButtonErrorTest, AnErrorOfAHandlerEndsAtTheSite) {
  SpinAtSite at;
  at.probe->spin.SpunUp.Connect([] { throw Error(4711); });
  at.probe->spin.SpinUp();
  ASSERT_EQ(at.site->Errors().size(), 1U);
  EXPECT_EQ(at.site->Errors()[0].Code(), 4711);
}

}  // namespace
}  // namespace tactix::tests
