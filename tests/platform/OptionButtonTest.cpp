#include "tactix/platform/widgets/OptionButton.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <tuple>
#include <vector>

#include "tactix/platform/Control.h"
#include "tactix/platform/Error.h"
#include "tactix/platform/headless/HeadlessSite.h"
#include "tests/platform/ErrorCode.h"
#include "tests/support/EventRecorder.h"

namespace tactix::tests {
namespace {

using Texts = std::vector<std::string>;

/// A control with two option buttons.
class OptionHost final : public Control {
 public:
  explicit OptionHost(Site& site) : Control(site) {
    Extender().Add(First, "First");
    Extender().Add(Second, "Second");
    First.Caption("&First");
  }

  OptionButton First;
  OptionButton Second;
};

class OptionButtonTest : public testing::Test {
 protected:
  OptionButtonTest() {
    recorder_.Watch(First().Clicked, "First");
    recorder_.Watch(host_->Second.Clicked, "Second");
  }
  OptionButton& First() const { return host_->First; }

  HeadlessSite site_;
  std::unique_ptr<OptionHost> host_ = std::make_unique<OptionHost>(site_);
  EventRecorder recorder_;
};

TEST_F(OptionButtonTest, AClickMarksItAndReports) {
  EXPECT_FALSE(First().Value());
  for (int time = 0; time < 2; ++time) {
    First().Click();
    EXPECT_TRUE(First().Value());
    EXPECT_EQ(recorder_.Take(), Texts{"First.Click"});
  }
  EXPECT_EQ(site_.Focus(), &First());
}

TEST_F(OptionButtonTest, KnowsNoGroup) {
  First().Click();
  host_->Second.Click();
  EXPECT_TRUE(First().Value());
  EXPECT_TRUE(host_->Second.Value());
}

TEST_F(OptionButtonTest, CodeMarksItSilently) {
  First().Value(true);
  EXPECT_TRUE(First().Value());
  First().Value(false);
  EXPECT_FALSE(First().Value());
  EXPECT_EQ(recorder_.Take(), Texts{});
}

TEST_F(OptionButtonTest, DoesNotReactWhileItCannotBeReached) {
  First().Visible(false);
  First().Click();
  First().Visible(true);
  First().Enabled(false);
  First().Click();
  EXPECT_FALSE(First().Value());
  EXPECT_EQ(recorder_.Take(), Texts{});
}

TEST_F(OptionButtonTest, TakesSpaceAndItsAccessKey) {
  host_->Second.SetFocus();
  EXPECT_TRUE(site_.PressKey({'F', AltKey}));
  EXPECT_TRUE(First().Value());
  First().Value(false);
  EXPECT_TRUE(site_.PressKey({' ', 0}));
  EXPECT_TRUE(First().Value());
  EXPECT_FALSE(site_.PressKey({' ', CtrlKey}));
  EXPECT_FALSE(site_.PressKey({'F', 0}));
  EXPECT_EQ(recorder_.Take(), (Texts{"First.Click", "First.Click"}));
}

TEST_F(OptionButtonTest, TellsItsObserverOnlyOfChanges) {
  class Counter final : public WidgetObserver {
   public:
    int count = 0;
    void Changed(Widget&, Aspect aspect) override { count += aspect == Aspect::Value ? 1 : 0; }
    void Gone(Widget&) override {}
  } counter;
  First().Observe(&counter);
  First().Value(true);
  First().Value(true);
  First().Value(false);
  EXPECT_EQ(counter.count, 2);
  First().Observe(nullptr);
}

TEST_F(OptionButtonTest, HasItsPropertiesLateBound) {
  const ObjectRef handle = First().Handle();
  EXPECT_EQ(handle->Get("Value"), Variant(false));
  handle->Put("value", -1);
  EXPECT_TRUE(First().Value());
  EXPECT_EQ(handle->Get("Caption"), Variant("&First"));
  handle->Put("Caption", "other");
  EXPECT_EQ(First().Caption(), "other");
  EXPECT_EQ(ErrorCodeOf([&] { handle->Put("Value", "maybe"); }), 13);
  EXPECT_EQ(ErrorCodeOf([&] { handle->Get("DEFAULT"); }), 438);
}

TEST_F(OptionButtonTest, AHandlerMayDestroyIt) {
  First().Clicked.Connect([this] { host_.reset(); });
  First().Click();
  EXPECT_EQ(host_, nullptr);
}

}  // namespace
}  // namespace tactix::tests
