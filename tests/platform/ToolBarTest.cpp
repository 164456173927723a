#include "tactix/platform/widgets/ToolBar.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "tactix/platform/Control.h"
#include "tactix/platform/headless/HeadlessSite.h"
#include "tests/platform/ErrorCode.h"
#include "tests/support/EventRecorder.h"
#include "tests/support/PropertyObject.h"

namespace tactix::tests {
namespace {

using Texts = std::vector<std::string>;

constexpr ToolButtonDesign TwoGroups[] = {
    {"Push", "Push me", "a tip", 1, ToolButtonStyle::Push},
    {"A", "", "", 0, ToolButtonStyle::Group},
    {"B", "", "", 0, ToolButtonStyle::Group},
    {"C", "", "", 0, ToolButtonStyle::Group},
    {"Gap", "", "", 0, ToolButtonStyle::Separator},
    {"D", "", "", 0, ToolButtonStyle::Group},
    {"E", "", "", 0, ToolButtonStyle::Group},
    {"a", "", "", 0, ToolButtonStyle::Push},
    {"F", "", "", 0, ToolButtonStyle::Group},
};

class StripControl final : public Control {
 public:
  explicit StripControl(Site& site) : Control(site) {
    Extender().Add(Strip, "Strip");
    Strip.AddButtons(TwoGroups);
  }
  ToolBar Strip;
};

/// Lists what a front end is told.
class StripObserver final : public WidgetObserver {
 public:
  explicit StripObserver(Texts& told) : told_(told) {}
  void Changed(Widget&, Aspect aspect) override { told_.push_back(aspect == Aspect::Align ? "docking" : "other"); }
  void ButtonChanged(ToolBar&, ToolButton& button) override {
    told_.push_back(button.Key() + (button.Value() ? " down" : " up") + (button.Visible() ? "" : " hidden") +
                    (button.Enabled() ? "" : " disabled"));
  }
  void Gone(Widget&) override { told_.emplace_back("gone"); }

 private:
  Texts& told_;
};

class ToolBarTest : public testing::Test {
 protected:
  ToolBarTest() {
    Strip().Observe(&observer_);
    Strip().ButtonClicked.Connect(
        [this](const ToolButton& button) { clicks_.push_back(button.Key() + (button.Value() ? " down" : " up")); });
  }

  ToolBar& Strip() { return control_->Strip; }
  ToolButton& Button(std::string_view key) { return Strip().Button(key); }
  std::string Pressed() {
    std::string keys;
    for (const auto& button : Strip().Buttons()) {
      if (button->Value()) keys += button->Key();
    }
    return keys;
  }
  void Click(std::string_view key) { Button(key).Click(); }

  HeadlessSite site_;
  Texts told_;
  StripObserver observer_{told_};
  std::unique_ptr<StripControl> control_ = std::make_unique<StripControl>(site_);
  Texts clicks_;
};

TEST_F(ToolBarTest, FindsAButtonByItsKeyWithCase) {
  EXPECT_EQ(Button("a").Style(), ToolButtonStyle::Push);
  EXPECT_EQ(Button("A").Style(), ToolButtonStyle::Group);
  EXPECT_EQ(&Button("Push"), Strip().Buttons()[0].get());
  for (const char* key : {"", "push", "Z"}) {
    EXPECT_EQ(ErrorCodeOf([&] { return Button(key).Value(); }), Error::SubscriptOutOfRange) << key;
  }
}

TEST_F(ToolBarTest, KeepsOnePressedInEachGroup) {
  const struct {
    const char* click;
    const char* pressed;
  } rows[] = {{"A", "A"},  {"B", "B"},   {"B", "B"},     {"D", "BD"},     {"E", "BE"},
              {"C", "CE"}, {"F", "CEF"}, {"Gap", "CEF"}, {"Push", "CEF"}, {"a", "CEF"}};
  for (const auto& row : rows) {
    Click(row.click);
    EXPECT_EQ(Pressed(), row.pressed) << "after " << row.click;
  }
  EXPECT_EQ(clicks_, (Texts{"A down", "B down", "B down", "D down", "E down", "C down", "F down", "Push up", "a up"}))
      << "a click on the pressed one is a click, one on a gap none";
}

TEST_F(ToolBarTest, CodePressesAndUnpresses) {
  Button("A").Value(true);
  Button("C").Value(true);
  EXPECT_EQ(Pressed(), "C");
  Button("D").Value(true);
  Button("C").Value(false);
  EXPECT_EQ(Pressed(), "D");
  Button("Push").Value(true);
  Button("a").Value(true);
  Button("F").Value(true);
  EXPECT_EQ(Pressed(), "PushDaF") << "what is no group button ends a group and stays as it is";
  EXPECT_EQ(clicks_, Texts{});
}

TEST_F(ToolBarTest, HiddenAndDisabledButtonsBelongToTheirGroupAndDoNotClick) {
  Button("B").Visible(false);
  Button("C").Enabled(false);
  Click("B");
  Click("C");
  EXPECT_EQ(Pressed(), "");
  EXPECT_EQ(clicks_, Texts{});
  Button("C").Value(true);
  Click("A");
  EXPECT_EQ(Pressed(), "A");
}

TEST_F(ToolBarTest, NoButtonClicksWhereTheStripCannotBeUsed) {
  const struct {
    const char* name;
    void (*act)(StripControl&);
  } rows[] = {
      {"hidden strip", [](StripControl& control) { control.Strip.Visible(false); }},
      {"disabled strip", [](StripControl& control) { control.Strip.Enabled(false); }},
      {"hidden control", [](StripControl& control) { control.Extender().Visible(false); }},
      {"disabled control", [](StripControl& control) { control.Extender().Enabled(false); }},
  };
  for (const auto& row : rows) {
    StripControl control(site_);
    int clicks = 0;
    control.Strip.ButtonClicked.Connect([&clicks](ToolButton&) { ++clicks; });
    row.act(control);
    control.Strip.Button("A").Click();
    EXPECT_EQ(clicks, 0) << row.name;
    EXPECT_FALSE(control.Strip.Button("A").Value()) << row.name;
  }
}

TEST_F(ToolBarTest, TellsWhatHasChangedAndNothingElse) {
  Click("A");
  Click("B");
  Click("B");
  Button("D").Visible(true);
  Button("D").Visible(false);
  Button("D").Enabled(false);
  Button("D").Value(false);
  Strip().Align(3);
  Strip().Align(3);
  EXPECT_EQ(told_, (Texts{"A down", "A up", "B down", "D up hidden", "D up hidden disabled", "docking"}));
  EXPECT_TRUE(Strip().IsVertical());
  Strip().Align(-5);
  EXPECT_EQ(Strip().Align(), -5);
  EXPECT_FALSE(Strip().IsVertical());
  control_.reset();
  EXPECT_EQ(told_.back(), "gone");
}

TEST_F(ToolBarTest, AClickMayDestroyTheStripOrFail) {
  Strip().ButtonClicked.Connect([](ToolButton& button) {
    if (button.Key() == "Push") throw Error(4711);
  });
  Click("Push");
  ASSERT_EQ(site_.Errors().size(), 1U);
  EXPECT_EQ(site_.Errors()[0].Code(), 4711);
  Strip().ButtonClicked.Connect([this](ToolButton&) { control_.reset(); });
  Click("A");
  EXPECT_EQ(control_, nullptr);
}

TEST_F(ToolBarTest, AButtonsHandleOutlivesIt) {
  const ObjectRef handle = Button("Push").Handle();
  EXPECT_EQ(handle->Get("key"), "Push");
  EXPECT_EQ(handle->Get("Caption"), "Push me");
  EXPECT_EQ(handle->Get("ToolTipText"), "a tip");
  EXPECT_EQ(handle->Get("Visible"), true);
  EXPECT_EQ(handle->Get("ENABLED"), true);
  EXPECT_EQ(handle->Get("Value"), 0);
  handle->Put("value", -1);
  handle->Put("Enabled", false);
  handle->Put("Visible", 0);
  EXPECT_EQ(handle->Get("Value"), -1);
  EXPECT_EQ(handle->Get("Value").Type(), VariantType::Long);
  EXPECT_FALSE(Button("Push").Enabled());
  EXPECT_FALSE(Button("Push").Visible());
  EXPECT_EQ(ErrorCodeOf([&] { handle->Put("Caption", "x"); }), 438);
  EXPECT_EQ(ErrorCodeOf([&] { return handle->Get("Index"); }), 438);
  EXPECT_EQ(ErrorCodeOf([&] { handle->Put("Enabled", "maybe"); }), 13);
  control_.reset();
  EXPECT_EQ(ErrorCodeOf([&] { return handle->Get("Key"); }), 91);
  EXPECT_EQ(ErrorCodeOf([&] { handle->Put("Value", true); }), 91);
}

TEST_F(ToolBarTest, AButtonsHandleTakesTheValueOfAnObjectWhichMayEndTheButton) {
  const ObjectRef handle = Button("Push").Handle();
  const auto value = std::make_shared<PropertyObject>("", 0);
  handle->Put("Visible", value);
  EXPECT_FALSE(Button("Push").Visible());
  EXPECT_EQ(ErrorCodeOf([&] { handle->Put("Visible", nullptr); }), 91);
  value->OnUse = [this](const std::string&) { control_.reset(); };
  EXPECT_EQ(ErrorCodeOf([&] { handle->Put("Enabled", value); }), 91);
  EXPECT_EQ(control_, nullptr);
}

TEST_F(ToolBarTest, PicturesHaveNumbersFromOne) {
  constexpr std::string_view Names[] = {"hit", "stand"};
  const ImageList pictures(Names);
  EXPECT_EQ(pictures.Count(), 2);
  EXPECT_EQ(pictures.Name(1), "hit");
  EXPECT_EQ(pictures.Name(2), "stand");
  for (const std::int16_t picture : std::initializer_list<std::int16_t>{0, 3, -1}) {
    EXPECT_EQ(ErrorCodeOf([&] { return pictures.Name(picture); }), 9) << picture;
  }
  EXPECT_EQ(ImageList().Count(), 0);
  EXPECT_EQ(Strip().Pictures(), nullptr);
}

}  // namespace
}  // namespace tactix::tests
