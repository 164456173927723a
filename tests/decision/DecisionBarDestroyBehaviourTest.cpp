// A host that destroys a decision toolbar, or its whole window, while the toolbar is at work.

#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <tuple>
#include <vector>

#include "tests/decision/DecisionBarAtWindow.h"

namespace tactix::tests {
namespace {

using Texts = std::vector<std::string>;

template <class Bar>
class DecisionBarDestroyBehaviourTest : public DecisionBarAtWindow<Bar> {
 protected:
  /// Does something at a new toolbar, once with the toolbar going and once with its window; what was raised.
  void ExpectItMayGo(const Texts& events, const std::function<void(bool withWindow)>& act) {
    for (const bool withWindow : {false, true}) {
      this->bar_.reset();
      this->robot_ = Robot::Make();
      this->bar_ = std::make_unique<Bar>(this->robot_->NewSite());
      this->bar_->InitProperties();
      this->bar_->Extender().Height(4500);
      this->recorder_.Forget();
      this->recorder_.Watch(this->bar_->Events.All());
      this->robot_->Show(*this->bar_);
      act(withWindow);
      EXPECT_EQ(this->bar_, nullptr) << withWindow;
      this->robot_->Wait(50);
      EXPECT_EQ(this->recorder_.Take(), events) << withWindow;
      EXPECT_TRUE(this->robot_->Errors().empty()) << withWindow;
    }
  }
  void ExpectItMayGoInAnEvent(const std::string& event, const std::function<void()>& act) {
    ExpectItMayGo({event}, [&](bool withWindow) {
      const auto destroy = [this, withWindow](auto&&...) { this->Destroy(withWindow); };
      std::apply([&](auto&... each) { (each.Connect(destroy), ...); }, this->bar_->Events.All());
      act();
    });
  }
};
TYPED_TEST_SUITE(DecisionBarDestroyBehaviourTest, BothDecisionBars);

TYPED_TEST(DecisionBarDestroyBehaviourTest, InTheHandlerOfAPlay) {
  const struct {
    const char* key;
    const char* event;
  } rows[] = {
      {"Hit", "HitButtonWasPressed#1"},
      {"Stand", "StandButtonWasPressed#2"},
      {"Split", "SplitButtonWasPressed#3"},
      {"Double", "DoubleButtonWasPressed#4"},
      {"Surrender", "SurrenderButtonWasPressed#7"},
      {"ClumpStatistics", "StatsButtonWasPressed#5"},
  };
  for (const auto& row : rows) {
    this->ExpectItMayGoInAnEvent(row.event, [&] { this->Click(row.key); });
    this->ExpectItMayGoInAnEvent(row.event, [&] { this->robot_->PressByKey(this->Button(row.key)); });
  }
}

TYPED_TEST(DecisionBarDestroyBehaviourTest, InTheHandlerOfThePrompt) {
  this->ExpectItMayGoInAnEvent("HereIsThePlayersPromptMessage#8( - You have  0  - Make your Selection)",
                               [this] { this->bar_->SetupTheDecisionBAR(DecisionBlock()); });
}

TYPED_TEST(DecisionBarDestroyBehaviourTest, InTheMiddleOfTheFlash) {
  for (const bool whileOff : {true, false}) {
    this->ExpectItMayGo({}, [this, whileOff](bool withWindow) {
      this->Advise(3);
      this->WhenOff("Split", [this, whileOff, withWindow] {
        const auto destroy = [this, withWindow] { this->Destroy(withWindow); };
        whileOff ? destroy() : this->WhenOn("Split", destroy);
      });
      this->Click("Advice");
    });
  }
}

TYPED_TEST(DecisionBarDestroyBehaviourTest, InTheMiddleOfAFlashInsideAFlash) {
  this->ExpectItMayGo({}, [this](bool withWindow) {
    this->Advise(3);
    this->WhenOff("Split", [this, withWindow] {
      this->WhenOn("Split", [this, withWindow] { this->Destroy(withWindow); });
      this->Click("Advice");
    });
    this->Click("Advice");
  });
}

TYPED_TEST(DecisionBarDestroyBehaviourTest, InTheMiddleOfAWaitOfTheHosts) {
  this->ExpectItMayGo({}, [this](bool withWindow) {
    this->robot_->After(100, [this, withWindow] { this->Destroy(withWindow); });
    this->bar_->BlinkTime(10);
  });
}

TYPED_TEST(DecisionBarDestroyBehaviourTest, InAPlayDuringTheFlash) {
  this->ExpectItMayGo({"StandButtonWasPressed#2"}, [this](bool withWindow) {
    this->Advise(3);
    this->bar_->Events.StandButtonWasPressed.Connect([this, withWindow] { this->Destroy(withWindow); });
    this->WhenOff("Split", [this] { this->Click("Stand"); });
    this->Click("Advice");
  });
}

TYPED_TEST(DecisionBarDestroyBehaviourTest, InANotice) {
  void (*const acts[])(TypeParam&) = {
      [](TypeParam& bar) { bar.Alignment(DecisionBARAlignment::DBAlignTop); },
      [](TypeParam& bar) { bar.HitcardButtonsVisibility(ButtonsHidden); },
      [](TypeParam& bar) { static_cast<void>(bar.StatusButtonButtonVisibility()); },
      [](TypeParam& bar) {
        MemoryPropertyBag bag;
        bar.ReadProperties(bag);
      },
      [](TypeParam& bar) {
        MemoryPropertyBag bag;
        bar.WriteProperties(bag);
      },
  };
  for (const auto act : acts) {
    this->ExpectItMayGo({}, [this, act](bool withWindow) {
      this->robot_->OnPropertyChanged([this, withWindow] { this->Destroy(withWindow); });
      act(*this->bar_);
    });
  }
}

class DecisionBAR2DestroyBehaviourTest : public DecisionBarDestroyBehaviourTest<DecisionBAR2> {};

TEST_F(DecisionBAR2DestroyBehaviourTest, WithItsMenuOpen) {
  ExpectItMayGo({}, [this](bool withWindow) {
    robot_->OnNextMenu([this, withWindow](Menu&) { Destroy(withWindow); });
    robot_->MouseDown(Strip(), RightButton, 0);
  });
}

TEST_F(DecisionBAR2DestroyBehaviourTest, WithItsMenuOpenDuringTheFlash) {
  ExpectItMayGo({}, [this](bool withWindow) {
    Advise(2);
    robot_->OnNextMenu([this, withWindow](Menu&) { Destroy(withWindow); });
    WhenOff("Stand", [this] { robot_->MouseDown(bar_->Extender(), RightButton, 0); });
    Click("Advice");
  });
}

TEST_F(DecisionBAR2DestroyBehaviourTest, WhenAnEntryIsChosen) {
  ExpectItMayGo({}, [this](bool withWindow) {
    bar_->Children.menuStatsButtonVisible.Chosen.Connect([this, withWindow] { Destroy(withWindow); });
    robot_->OnNextMenu([this](Menu& menu) { robot_->Choose(menu, bar_->Children.menuStatsButtonVisible); });
    robot_->MouseDown(Strip(), RightButton, 0);
  });
}

}  // namespace
}  // namespace tactix::tests
