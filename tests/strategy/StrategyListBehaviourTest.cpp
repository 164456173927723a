#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "tactix/platform/Error.h"
#include "tactix/strategy/StrategyList.h"
#include "tests/support/EventRecorder.h"
#include "tests/support/FakeCatalogue.h"
#include "tests/support/Robot.h"
#include "tests/support/RowName.h"

namespace tactix::tests {
namespace {

using Texts = std::vector<std::string>;
using PickBy = Robot::PickBy;

/// A filled list at a user's window: the seat, strategies 0 to 57, of which 3 and 4 are not present.
class StrategyListBehaviourTest : public testing::Test {
 protected:
  StrategyListBehaviourTest() {
    catalogue_->Describe(57);
    for (const int absent : {3, 4}) catalogue_->Playing[absent] = "";
    list_->InitProperties();
    list_->LoadStrategiesFromIniFile();
    recorder_.Watch(list_->Events.All());
    robot_->Show(*list_);
  }
  ~StrategyListBehaviourTest() override { list_.reset(); }

  ListBox& Box() const { return list_->Children.StrategyListBox; }

  InstalledCatalogue catalogue_;
  std::unique_ptr<Robot> robot_ = Robot::Make();
  std::unique_ptr<StrategyList> list_ = std::make_unique<StrategyList>(robot_->NewSite());
  EventRecorder recorder_;
};

TEST_F(StrategyListBehaviourTest, ShowsItsText) {
  EXPECT_TRUE(robot_->SeesShown(Box()));
  EXPECT_EQ(robot_->SeesText(Box()), "Select a Strategy");
  list_->Text("none of the rows");
  EXPECT_EQ(robot_->SeesText(Box()), "none of the rows");
}

struct PickRow {
  const char* name;
  std::int32_t row;
  PickBy by;
};

class StrategyListPickTest : public StrategyListBehaviourTest, public testing::WithParamInterface<PickRow> {};

TEST_P(StrategyListPickTest, APickRaisesOneEvent) {
  const auto& [name, row, by] = GetParam();
  list_->ListIndex(1);  // row 2
  recorder_.Forget();
  robot_->PickRow(Box(), row, by);
  EXPECT_EQ(recorder_.Take(), Texts{"StrategySelectionChanged#1(" + std::to_string(row - 1) + ")"});
  EXPECT_EQ(list_->ListIndex(), row - 1);
  EXPECT_EQ(robot_->SeesText(Box()), row == 0 ? "Empty Seat" : "Strategy " + std::to_string(row - 1));
  EXPECT_EQ(robot_->Beeps(), 0);
}

INSTANTIATE_TEST_SUITE_P(Rows, StrategyListPickTest,
                         testing::Values(PickRow{"EmptySeat", 0, PickBy::Mouse}, PickRow{"Mouse", 7, PickBy::Mouse},
                                         PickRow{"TheSameRow", 2, PickBy::Mouse},
                                         PickRow{"Return", 7, PickBy::ReturnKey},
                                         PickRow{"ArrowDown", 3, PickBy::ArrowKey},
                                         PickRow{"ArrowUp", 1, PickBy::ArrowKey},
                                         PickRow{"LastReported", 55, PickBy::Mouse}),
                         RowName());

TEST_F(StrategyListBehaviourTest, RowsPastTheReportedAreShownOnly) {
  robot_->PickRow(Box(), 56);
  EXPECT_EQ(recorder_.Take(), Texts{});
  EXPECT_EQ(robot_->SeesText(Box()), "Strategy 55");
  EXPECT_EQ(robot_->Beeps(), 0);
}

TEST_F(StrategyListBehaviourTest, ARefusedPickBeepsOnceAndGoesBack) {
  for (const PickBy by : {PickBy::Mouse, PickBy::ReturnKey, PickBy::ArrowKey}) {
    list_->ListIndex(2);  // row 3, the one before the absent ones
    recorder_.Forget();
    const int beeps = robot_->Beeps();
    robot_->PickRow(Box(), 4, by);
    EXPECT_EQ(recorder_.Take(), Texts{});
    EXPECT_EQ(robot_->Beeps(), beeps + 1);
    EXPECT_EQ(list_->ListIndex(), 2);
    EXPECT_EQ(robot_->SeesText(Box()), "Strategy 2");
  }
}

TEST_F(StrategyListBehaviourTest, TheFirstRefusalGoesBackToTheFirstRow) {
  robot_->PickRow(Box(), 5);
  EXPECT_EQ(robot_->SeesText(Box()), "Empty Seat");
  EXPECT_EQ(recorder_.Take(), Texts{});
  EXPECT_EQ(robot_->Beeps(), 1);
}

TEST_F(StrategyListBehaviourTest, ALastGoodRowThatIsGoneEndsAsAnErrorOfTheUsers) {
  list_->ListIndex(40);
  catalogue_->Range.HighestPlayingStrategy = 6;
  list_->LoadStrategiesFromIniFile();
  recorder_.Forget();
  robot_->PickRow(Box(), 5);
  ASSERT_EQ(robot_->Errors().size(), 1U);
  EXPECT_EQ(robot_->Errors()[0].Code(), 380);
  EXPECT_EQ(robot_->Beeps(), 1);
  EXPECT_EQ(recorder_.Take(), Texts{});
}

TEST_F(StrategyListBehaviourTest, TakesNoPickWhileItCannotBeReached) {
  list_->Enabled(false);
  EXPECT_FALSE(robot_->SeesEnabled(Box()));
  robot_->PickRow(Box(), 2);
  list_->Enabled(true);
  list_->Visible(false);
  EXPECT_FALSE(robot_->SeesShown(Box()));
  robot_->PickRow(Box(), 2);
  EXPECT_EQ(recorder_.Take(), Texts{});
  EXPECT_EQ(list_->ListIndex(), -2);
}

TEST_F(StrategyListBehaviourTest, AnErrorOfAHandlerEndsAtTheSite) {
  list_->Events.StrategySelectionChanged.Connect([](std::int32_t&) { throw Error(4711); });
  robot_->PickRow(Box(), 2);
  ASSERT_EQ(robot_->Errors().size(), 1U);
  EXPECT_EQ(robot_->Errors()[0].Code(), 4711);
}

struct DestroyRow {
  const char* name;
  PickBy by;
  bool withWindow;
};

class StrategyListDestroyTest : public StrategyListBehaviourTest, public testing::WithParamInterface<DestroyRow> {};

TEST_P(StrategyListDestroyTest, AHandlerMayDestroyTheList) {
  const auto& [name, by, withWindow] = GetParam();
  list_->ListIndex(1);
  recorder_.Forget();
  list_->Events.StrategySelectionChanged.Connect([this, window = withWindow](std::int32_t&) {
    if (window) {
      robot_->DestroyWindow([this] { list_.reset(); });
    } else {
      list_.reset();
    }
  });
  robot_->PickRow(Box(), 3, by);
  EXPECT_EQ(list_, nullptr);
  robot_->Wait(50);
  EXPECT_EQ(recorder_.Take(), Texts{"StrategySelectionChanged#1(2)"});
  EXPECT_TRUE(robot_->Errors().empty());
}

INSTANTIATE_TEST_SUITE_P(Rows, StrategyListDestroyTest,
                         testing::Values(DestroyRow{"ListByMouse", PickBy::Mouse, false},
                                         DestroyRow{"ListByReturn", PickBy::ReturnKey, false},
                                         DestroyRow{"ListByArrow", PickBy::ArrowKey, false},
                                         DestroyRow{"WindowByMouse", PickBy::Mouse, true},
                                         DestroyRow{"WindowByReturn", PickBy::ReturnKey, true},
                                         DestroyRow{"WindowByArrow", PickBy::ArrowKey, true}),
                         RowName());

}  // namespace
}  // namespace tactix::tests
