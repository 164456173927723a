// The lists at a user's window, on both front ends.

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "tactix/strategy/BetStrategyList.h"
#include "tests/support/EventRecorder.h"
#include "tests/support/FakeCatalogue.h"
#include "tests/support/ListKinds.h"
#include "tests/support/Robot.h"
#include "tests/support/RowName.h"

namespace tactix::tests {
namespace {

using Texts = std::vector<std::string>;
using PickBy = Robot::PickBy;

/// A list with rows "row 0" to "row 57", of which 4 and 5 are not present.
class ListKindsBehaviourTest : public testing::TestWithParam<ListKind> {
 protected:
  ListKindsBehaviourTest() {
    list_->InitProperties();
    Box().Clear();
    for (int row = 0; row < 58; ++row) {
      list_->AddItem(row == 4 || row == 5 ? "Not Present" : "row " + std::to_string(row));
    }
    GetParam().watch(recorder_, *list_);
    robot_->Show(*list_);
  }
  ~ListKindsBehaviourTest() override { list_.reset(); }

  ListBox& Box() { return GetParam().box(*list_); }
  std::string Reported(std::int32_t row) { return GetParam().reported(row, "row " + std::to_string(row)); }

  InstalledCatalogue catalogue_;
  std::unique_ptr<Robot> robot_ = Robot::Make();
  std::unique_ptr<StrategyListControl> list_ = GetParam().make(robot_->NewSite());
  EventRecorder recorder_;
};

TEST_P(ListKindsBehaviourTest, ShowsItsTextAndToolTip) {
  EXPECT_TRUE(robot_->SeesShown(Box()));
  EXPECT_EQ(robot_->SeesText(Box()), GetParam().text);
  EXPECT_EQ(list_->ToolTipText(), GetParam().toolTip);
}

TEST_P(ListKindsBehaviourTest, APickRaisesOneEvent) {
  struct Pick {
    std::int32_t row;
    PickBy by;
  };
  for (const auto& [row, by] : {Pick{0, PickBy::Mouse}, Pick{7, PickBy::Mouse}, Pick{7, PickBy::Mouse},
                                Pick{8, PickBy::ArrowKey}, Pick{7, PickBy::ArrowKey}, Pick{3, PickBy::ReturnKey}}) {
    robot_->PickRow(Box(), row, by);
    EXPECT_EQ(recorder_.Take(), Texts{Reported(row)});
    EXPECT_EQ(list_->ListIndex(), row - 1);
    EXPECT_EQ(robot_->SeesText(Box()), "row " + std::to_string(row));
  }
  EXPECT_EQ(robot_->Beeps(), 0);
}

TEST_P(ListKindsBehaviourTest, RowsPastItsCapAreShownOnly) {
  const std::int32_t highest = GetParam().highestReportedRow;
  robot_->PickRow(Box(), highest);
  EXPECT_EQ(recorder_.Take(), Texts{Reported(highest)});
  robot_->PickRow(Box(), highest + 1);
  EXPECT_EQ(recorder_.Take(), Texts{});
  EXPECT_EQ(robot_->SeesText(Box()), "row " + std::to_string(highest + 1));
}

TEST_P(ListKindsBehaviourTest, ARefusedPickBeepsOnceAndGoesBack) {
  int beeps = 0;
  for (const PickBy by : {PickBy::Mouse, PickBy::ReturnKey, PickBy::ArrowKey}) {
    list_->ListIndex(2);  // row 3, the one before the absent ones
    recorder_.Forget();
    robot_->PickRow(Box(), 4, by);
    EXPECT_EQ(recorder_.Take(), Texts{});
    EXPECT_EQ(robot_->Beeps(), ++beeps);
    EXPECT_EQ(robot_->SeesText(Box()), "row 3");
  }
}

TEST_P(ListKindsBehaviourTest, AHandlerMayDestroyTheListOrItsWindow) {
  for (const bool withWindow : {false, true}) {
    for (const PickBy by : {PickBy::Mouse, PickBy::ReturnKey, PickBy::ArrowKey}) {
      list_.reset();
      robot_.reset();
      robot_ = Robot::Make();
      list_ = GetParam().make(robot_->NewSite());
      Box().Clear();
      for (int row = 0; row < 5; ++row) list_->AddItem("row " + std::to_string(row));
      list_->ListIndex(1);
      Box().Clicked.Connect([this, withWindow] {
        if (withWindow) {
          robot_->DestroyWindow([this] { list_.reset(); });
        } else {
          list_.reset();
        }
      });
      robot_->Show(*list_);
      robot_->PickRow(Box(), 3, by);
      EXPECT_EQ(list_, nullptr);
      robot_->Wait(20);
      EXPECT_TRUE(robot_->Errors().empty());
    }
  }
}

INSTANTIATE_TEST_SUITE_P(Kinds, ListKindsBehaviourTest, testing::ValuesIn(ListKinds()), RowName());

TEST(BetStrategyListBehaviourTest, SelectsQuietlyAndReportsThePlayersNextPick) {
  const InstalledCatalogue catalogue;
  catalogue->DescribeBetting(8);
  const auto robot = Robot::Make();
  BetStrategyList list(robot->NewSite());
  list.LoadStrategiesFromIniFile();
  EventRecorder recorder;
  recorder.Watch(list.Events.All());
  robot->Show(list);
  ListBox& box = list.Children.BetStrategyListBox;
  list.SelectThisStrategy(3);
  EXPECT_EQ(robot->SeesText(box), "Bet 3");
  EXPECT_EQ(recorder.Take(), Texts{});
  robot->PickRow(box, 3);
  EXPECT_EQ(recorder.Take(), Texts{"StrategySelectionChanged#1(2)"});
  // Refused by the box: quiet until the player has picked once.
  EXPECT_ANY_THROW(list.SelectThisStrategy(10));
  robot->PickRow(box, 5, Robot::PickBy::ReturnKey);
  EXPECT_EQ(recorder.Take(), Texts{});
  EXPECT_EQ(robot->SeesText(box), "Bet 4");
  robot->PickRow(box, 6, Robot::PickBy::ArrowKey);
  EXPECT_EQ(recorder.Take(), Texts{"StrategySelectionChanged#1(5)"});
}

}  // namespace
}  // namespace tactix::tests
