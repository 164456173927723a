#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <utility>
#include <vector>

#include "tests/support/ProbeGestures.h"
#include "tests/support/ProbeWindow.h"
#include "tests/support/RowName.h"

namespace tactix::tests {
namespace {

using Log = std::vector<std::string>;

/// A gesture, and where a handler stands that it runs into.
struct GestureRow {
  const char* name;
  std::function<void(ProbeWindow&, const std::function<void()>& handler)> connect;
  std::function<void(ProbeWindow&)> act;
};

void ConnectToPick(ProbeWindow& w, const std::function<void()>& handler) {
  w.outer->Events.RowPicked.Connect([handler](std::int32_t&) { handler(); });
}

const GestureRow Gestures[] = {
    {"Click",
     [](ProbeWindow& w, const std::function<void()>& handler) { w.outer->Events.FirstClicked.Connect(handler); },
     [](ProbeWindow& w) { w.robot->Click(w.Children().FirstButton); }},
    {"ClickInANestedControl",
     [](ProbeWindow& w, const std::function<void()>& handler) {
       w.Children().Inner.Events.InnerClicked.Connect(handler);
     },
     [](ProbeWindow& w) { w.robot->Click(w.InnerChildren().InnerButton); }},
    {"AccessKey",
     [](ProbeWindow& w, const std::function<void()>& handler) { w.outer->Events.SecondClicked.Connect(handler); },
     Key(&Child::FirstButton, 'S', AltKey)},
    {"DefaultButton",
     [](ProbeWindow& w, const std::function<void()>& handler) {
       w.Children().SecondButton.DEFAULT(true);
       w.outer->Events.SecondClicked.Connect(handler);
     },
     Key(&Child::FirstButton, ReturnKey)},
    {"LetterKey",
     [](ProbeWindow& w, const std::function<void()>& handler) {
       w.outer->Events.KeyPressed.Connect([handler](std::string_view, const std::string&) { handler(); });
     },
     Key(&Child::FirstButton, 'H')},
    {"Space",
     [](ProbeWindow& w, const std::function<void()>& handler) { w.outer->Events.FirstClicked.Connect(handler); },
     Key(&Child::FirstButton, ' ')},
    {"PickByMouse", ConnectToPick, [](ProbeWindow& w) { Pick(w, 1, Robot::PickBy::Mouse); }},
    {"PickByReturn", ConnectToPick, [](ProbeWindow& w) { Pick(w, 1, Robot::PickBy::ReturnKey); }},
    {"PickByArrowKey", ConnectToPick, [](ProbeWindow& w) { Pick(w, 0, Robot::PickBy::ArrowKey); }},
    {"MenuChoice",
     [](ProbeWindow& w, const std::function<void()>& handler) {
       w.outer->Events.MenuChosen.Connect([handler](std::int16_t) { handler(); });
     },
     Choose(&Child::PlainEntry)},
    {"AfterAMenu",
     [](ProbeWindow& w, const std::function<void()>& handler) { w.outer->Events.MenuClosed.Connect(handler); },
     Choose(&Child::PlainEntry)},
    {"MouseDown",
     [](ProbeWindow& w, const std::function<void()>& handler) {
       w.outer->Events.MouseWasDown.Connect([handler](std::int16_t, std::int16_t) { handler(); });
     },
     [](ProbeWindow& w) { w.robot->MouseDown(w.Children().ButtonPanel, LeftButton, 0); }},
    {"MouseMove",
     [](ProbeWindow& w, const std::function<void()>& handler) {
       w.outer->Events.MouseWasMoved.Connect([handler](std::int16_t, std::int16_t) { handler(); });
     },
     [](ProbeWindow& w) { w.robot->MouseMove(w.Children().ButtonPanel, 0); }},
    {"MouseMoveWithAMenuOpen",
     [](ProbeWindow& w, const std::function<void()>& handler) {
       w.outer->Events.MouseWasMoved.Connect([handler](std::int16_t, std::int16_t) { handler(); });
     },
     [](ProbeWindow& w) {
       w.robot->OnNextMenu([&w](Menu&) { w.robot->MouseMove(w.Children().ButtonPanel, 0); });
       w.robot->Click(w.Children().MenuButton);
     }},
    {"TimerTick",
     [](ProbeWindow& w, const std::function<void()>& handler) { w.Children().WaitTimer.Tick.Connect(handler); },
     [](ProbeWindow& w) { w.robot->Click(w.Children().WaitButton); }},
    {"AfterAWait",
     [](ProbeWindow& w, const std::function<void()>& handler) { w.outer->Events.WaitEnded.Connect(handler); },
     [](ProbeWindow& w) { w.robot->Click(w.Children().WaitButton); }},
};

/// What happens outside a user's action.
const GestureRow OtherMoments[] = {
    {"InTheMiddleOfAWait", [](ProbeWindow& w, const std::function<void()>& handler) { w.robot->After(100, handler); },
     [](ProbeWindow& w) { w.robot->Click(w.Children().WaitButton); }},
    {"InTheMiddleOfNestedWaits",
     [](ProbeWindow& w, const std::function<void()>& handler) { w.robot->After(200, handler); },
     [](ProbeWindow& w) {
       w.robot->After(100, [&w] { w.outer->WaitFor(400); });
       w.robot->Click(w.Children().WaitButton);
     }},
    {"WithAMenuOpen",
     [](ProbeWindow& w, const std::function<void()>& handler) { w.robot->OnNextMenu([handler](Menu&) { handler(); }); },
     [](ProbeWindow& w) { w.robot->Click(w.Children().MenuButton); }},
};

class DestructionBehaviourTest : public testing::TestWithParam<GestureRow> {};

TEST_P(DestructionBehaviourTest, OfTheControlEndsItQuietly) {
  ProbeWindow window;
  int calls = 0;
  GetParam().connect(window, [&] {
    ++calls;
    window.recorder.Forget();
    window.DestroyControl();
  });
  GetParam().act(window);
  window.robot->Wait(50);
  EXPECT_EQ(calls, 1);
  EXPECT_EQ(window.recorder.Take(), Log{}) << "a dead control has reported something";
  EXPECT_EQ(window.robot->Focus(), nullptr);
  EXPECT_TRUE(window.robot->Errors().empty());
}

TEST_P(DestructionBehaviourTest, OfTheWindowEndsItQuietly) {
  ProbeWindow window;
  int calls = 0;
  GetParam().connect(window, [&] {
    ++calls;
    window.recorder.Forget();
    window.DestroyWindow();
  });
  GetParam().act(window);
  window.robot->Wait(50);
  EXPECT_EQ(calls, 1);
  EXPECT_EQ(window.recorder.Take(), Log{}) << "a dead control has reported something";
  EXPECT_TRUE(window.robot->Errors().empty());
}

INSTANTIATE_TEST_SUITE_P(In, DestructionBehaviourTest, testing::ValuesIn(Gestures), RowName());
INSTANTIATE_TEST_SUITE_P(At, DestructionBehaviourTest, testing::ValuesIn(OtherMoments), RowName());

TEST(DestructionInANoticeBehaviourTest, OfTheControlOrTheWindowEndsItQuietly) {
  void (ProbeWindow::*const ways[])() = {&ProbeWindow::DestroyControl, &ProbeWindow::DestroyWindow};
  for (const auto way : ways) {
    ProbeWindow window;
    bool noticed = false;
    window.robot->OnPropertyChanged([&] {
      noticed = true;
      (window.*way)();
    });
    window.outer->Tag("x");
    EXPECT_TRUE(noticed);
    window.robot->Wait(50);
    EXPECT_EQ(window.robot->Changes(), Log{"Tag"});
    EXPECT_EQ(window.recorder.Take(), Log{});
  }
}

class ErrorBehaviourTest : public testing::TestWithParam<GestureRow> {};

TEST_P(ErrorBehaviourTest, EndsAtTheSiteAndTheWindowGoesOn) {
  ProbeWindow window;
  bool threw = false;
  GetParam().connect(window, [&threw] {
    if (!std::exchange(threw, true)) throw Error(Error::DivisionByZero);
  });
  GetParam().act(window);
  ASSERT_TRUE(threw);
  ASSERT_EQ(window.robot->Errors().size(), 1U);
  EXPECT_EQ(window.robot->Errors()[0].Code(), 11);
  window.recorder.Forget();
  window.robot->Click(window.Children().PanelButton);
  EXPECT_EQ(window.recorder.Take(), Log{"PanelClicked#3"});
  EXPECT_EQ(window.robot->Errors().size(), 1U);
}

INSTANTIATE_TEST_SUITE_P(In, ErrorBehaviourTest, testing::ValuesIn(Gestures), RowName());

}  // namespace
}  // namespace tactix::tests
