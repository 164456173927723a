// The two selectors of a card's value and the list of units at a user's window.

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "tactix/platform/Error.h"
#include "tests/counting/ValueLists.h"
#include "tests/support/EventRecorder.h"
#include "tests/support/Robot.h"

namespace tactix::tests {
namespace {

using Texts = std::vector<std::string>;
using PickBy = Robot::PickBy;
constexpr PickBy AllWays[] = {PickBy::Mouse, PickBy::ReturnKey, PickBy::ArrowKey};

template <class C>
class ValueListBehaviourTest : public testing::Test {
 protected:
  ValueListBehaviourTest() { Make(); }
  ~ValueListBehaviourTest() override { control_.reset(); }

  void Make() {
    robot_ = Robot::Make();
    control_ = std::make_unique<C>(robot_->NewSite());
    control_->InitProperties();
    recorder_.Watch(control_->Events.All());
    robot_->Show(*control_);
  }
  ListBox& List() const { return ListOf<C>::TheList(*control_); }
  std::string Seen() const { return robot_->SeesText(List()); }
  void Select(std::int32_t row) {
    List().ListIndex(row);
    recorder_.Forget();
  }
  /// How a pick of a row is heard.
  static Texts Picked(std::int32_t row) {
    return {ListOf<C>::EventName + ("(" + std::to_string(IsUnitList<C> ? row : row - 10) + ")")};
  }

  std::unique_ptr<Robot> robot_;
  std::unique_ptr<C> control_;
  EventRecorder recorder_;
};

using Controls = testing::Types<CountValueSelector, ClumpCardList, UnitSelectionList>;
TYPED_TEST_SUITE(ValueListBehaviourTest, Controls, ListName);

TYPED_TEST(ValueListBehaviourTest, APickRaisesOneEvent) {
  for (const PickBy by : AllWays) {
    this->Select(4);
    this->robot_->PickRow(this->List(), 5, by);
    EXPECT_EQ(this->recorder_.Take(), this->Picked(5));
    EXPECT_EQ(this->List().ListIndex(), 5);
    EXPECT_EQ(this->Seen(), this->List().List(5));
    EXPECT_EQ(this->robot_->Focus(), &this->List());
  }
}

TYPED_TEST(ValueListBehaviourTest, FirstAndLastRowsArePicked) {
  const std::int32_t last = this->List().ListCount() - 1;
  for (const PickBy by : {PickBy::Mouse, PickBy::ReturnKey}) {
    for (const std::int32_t row : {0, last}) {
      this->robot_->PickRow(this->List(), row, by);
      EXPECT_EQ(this->recorder_.Take(), this->Picked(row));
    }
  }
  this->robot_->PressKey(DownArrowKey);
  EXPECT_EQ(this->recorder_.Take(), Texts{}) << "no row below the last";
  this->robot_->PressKey(HomeKey);
  EXPECT_EQ(this->recorder_.Take(), this->Picked(0));
  this->robot_->PressKey(EndKey);
  EXPECT_EQ(this->recorder_.Take(), this->Picked(last));
}

TYPED_TEST(ValueListBehaviourTest, APickOfTheSameRowIsReportedAgain) {
  for (int time = 0; time < 2; ++time) {
    this->robot_->PickRow(this->List(), 3);
    EXPECT_EQ(this->recorder_.Take(), this->Picked(3));
  }
}

TYPED_TEST(ValueListBehaviourTest, TakesNoPickWhileItCannotBeReached) {
  this->control_->Extender().Enabled(false);
  for (const PickBy by : AllWays) this->robot_->PickRow(this->List(), 0, by);
  this->control_->Extender().Enabled(true);
  this->List().Visible(false);
  for (const PickBy by : AllWays) this->robot_->PickRow(this->List(), 0, by);
  EXPECT_EQ(this->recorder_.Take(), Texts{});
  EXPECT_EQ(this->List().ListIndex(), -1);
}

TYPED_TEST(ValueListBehaviourTest, AnErrorOfAHandlerEndsAtTheSite) {
  ListOf<TypeParam>::TheEvent(*this->control_).Connect([](auto&) { throw Error(4711); });
  this->robot_->PickRow(this->List(), 2);
  ASSERT_EQ(this->robot_->Errors().size(), 1U);
  EXPECT_EQ(this->robot_->Errors()[0].Code(), 4711);
}

TYPED_TEST(ValueListBehaviourTest, AHandlerMayDestroyIt) {
  for (const PickBy by : AllWays) {
    for (const bool withWindow : {false, true}) {
      this->control_.reset();
      this->Make();
      this->Select(4);
      ListOf<TypeParam>::TheEvent(*this->control_).Connect([this, withWindow](auto&) {
        if (withWindow) {
          this->robot_->DestroyWindow([this] { this->control_.reset(); });
        } else {
          this->control_.reset();
        }
      });
      this->robot_->PickRow(this->List(), 5, by);
      EXPECT_EQ(this->control_, nullptr);
      this->robot_->Wait(50);
      EXPECT_EQ(this->recorder_.Take(), this->Picked(5));
      EXPECT_TRUE(this->robot_->Errors().empty());
    }
  }
}

template <class C>
class CardValueBehaviourTest : public ValueListBehaviourTest<C> {};

using Selectors = testing::Types<CountValueSelector, ClumpCardList>;
TYPED_TEST_SUITE(CardValueBehaviourTest, Selectors, ListName);

TYPED_TEST(CardValueBehaviourTest, ShowsItsCardInItsBox) {
  const Label& card = this->control_->Children.lblCardValue;
  EXPECT_EQ(this->robot_->SeesText(card), "A");
  EXPECT_EQ(this->robot_->SeesText(Selector<TypeParam>::TheFrame(*this->control_)), Selector<TypeParam>::FrameCaption);
  EXPECT_EQ(this->Seen(), "");
  EXPECT_TRUE(this->robot_->SeesShown(card));
  EXPECT_TRUE(this->robot_->SeesShown(this->List()));
  this->control_->CardValue(10);
  EXPECT_EQ(this->robot_->SeesText(card), "T");
}

TYPED_TEST(CardValueBehaviourTest, ANoticeFollowsEveryPick) {
  this->robot_->PickRow(this->List(), 0);
  this->robot_->PickRow(this->List(), 20, PickBy::ReturnKey);
  EXPECT_EQ(this->robot_->Changes(), (Texts{Selector<TypeParam>::ValueName, Selector<TypeParam>::ValueName}));
  EXPECT_EQ(this->Seen(), "+10");
}

TYPED_TEST(CardValueBehaviourTest, ANoticeMayDestroyIt) {
  for (const bool withWindow : {false, true}) {
    this->control_.reset();
    this->Make();
    this->robot_->OnPropertyChanged([this, withWindow] {
      if (withWindow) {
        this->robot_->DestroyWindow([this] { this->control_.reset(); });
      } else {
        this->control_.reset();
      }
    });
    this->robot_->PickRow(this->List(), 5);
    EXPECT_EQ(this->control_, nullptr);
    this->robot_->Wait(50);
    EXPECT_EQ(this->recorder_.Take(), this->Picked(5));
  }
}

class UnitListBehaviourTest : public ValueListBehaviourTest<UnitSelectionList> {};

TEST_F(UnitListBehaviourTest, ShowsItsTextUntilAPick) {
  EXPECT_EQ(Seen(), "UNITS");
  robot_->PickRow(List(), 0);
  EXPECT_EQ(Seen(), " 1-Unit");
  EXPECT_TRUE(robot_->Changes().empty());
}

}  // namespace
}  // namespace tactix::tests
