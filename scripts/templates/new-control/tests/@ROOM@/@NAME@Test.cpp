#include "tactix/@ROOM@/@NAME@.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <string>
#include <vector>

#include "tactix/platform/PropertyBag.h"
#include "tactix/platform/headless/HeadlessSite.h"
#include "tests/support/EventRecorder.h"

namespace tactix::tests {
namespace {

using Texts = std::vector<std::string>;

class @NAME@Test : public testing::Test {
 protected:
  @NAME@Test() {
    control_.InitProperties();
    recorder_.Watch(control_.Events.All());
  }
  std::string Shown() const { return control_.Children.ValueButton.Caption(); }

  HeadlessSite site_;
  @NAME@ control_{site_};
  EventRecorder recorder_;
};

TEST_F(@NAME@Test, ANewOneShowsZero) {
  EXPECT_EQ(control_.Value(), 0);
  EXPECT_EQ(Shown(), "0");
  EXPECT_EQ(recorder_.Take(), Texts{});
}

TEST_F(@NAME@Test, AChangeIsShownAnnouncedAndReported) {
  control_.Value(-7);
  EXPECT_EQ(Shown(), "-7");
  EXPECT_EQ(site_.Changes(), Texts{"Value"});
  EXPECT_EQ(recorder_.Take(), Texts{"ValueChanged#1(-7)"});
}

TEST_F(@NAME@Test, AClickAddsOneAndGoesOnAtZero) {
  struct Row {
    std::int16_t before;
    std::int16_t after;
  };
  for (const Row& row : {Row{-1, 0}, Row{41, 42}, Row{32767, 0}}) {
    control_.Value(row.before);
    recorder_.Forget();
    control_.Children.ValueButton.Click();
    EXPECT_EQ(control_.Value(), row.after);
    EXPECT_EQ(recorder_.Take(), Texts{"ValueChanged#1(" + std::to_string(row.after) + ")"});
  }
}

TEST_F(@NAME@Test, ASavedNumberIsShownAndNotReported) {
  MemoryPropertyBag bag;
  bag.Write("Value", 12);
  control_.ReadProperties(bag);
  EXPECT_EQ(Shown(), "12");
  EXPECT_EQ(site_.Changes(), Texts{});
  EXPECT_EQ(recorder_.Take(), Texts{});
}

TEST_F(@NAME@Test, TheButtonFillsTheControl) {
  control_.Extender().Place(0, 0, 3000, 600);
  EXPECT_EQ(control_.Children.ValueButton.Width(), 3000);
  EXPECT_EQ(control_.Children.ValueButton.Height(), 600);
}

}  // namespace
}  // namespace tactix::tests
