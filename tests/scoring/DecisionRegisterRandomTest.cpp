// Random operations on both registers, each against a model.

#include <gtest/gtest.h>

#include <cstdint>
#include <memory>
#include <string>
#include <type_traits>

#include "tactix/platform/headless/HeadlessSite.h"
#include "tactix/scoring/DecisionRegiLOG.h"
#include "tests/support/PictureModel.h"
#include "tests/support/RandomSequence.h"

namespace tactix::tests {
namespace {

/// What a register holds and shows, and a log besides.
struct RegisterModel {
  std::int32_t decisions = 0;
  std::int32_t correct = 0;
  std::int32_t breaks = 0;
  std::int32_t type = 1;
  std::string decisionText;
  std::string correctText;
  std::string verdict = "______";
  std::string feedback = "What Ya' Shoulda Done!...";
  bool breaksShown = false;
  float height = 1420;
  float width = 3600;

  void ShowCounts() {
    const float part = decisions == 0 ? 0.0F : static_cast<float>(static_cast<double>(correct) / decisions);
    decisionText = PictureModel::Grouped(decisions);
    correctText = PictureModel::Grouped(correct) + " - (" + PictureModel{1, 0, true}.Of(part) + ")";
  }
  void Judge(std::int32_t number) {
    constexpr const char* Plays[] = {"Hit", "Stand", "Split", "Double", "Surr."};
    constexpr const char* Words[] = {"Hit", "Stood", "Split", "Doubled", "Surrendered"};
    const bool isPlay = number >= 1 && number <= 5;
    verdict = isPlay ? Plays[number - 1] : "______";
    feedback = isPlay ? std::string("You Shoulda ") + Words[number - 1] : number == 100 ? "--- Correct! ---" : "???";
  }
  void Display() {
    if (type == 1) height = 1420;
    if (type == 2) {
      height = 1800;
      verdict = "______";
    }
    ShowCounts();
  }
};

std::int16_t AnyCount(SequenceRandom& random) {
  const std::int32_t range = random.OneIn(2) ? 50 : 32767;
  return static_cast<std::int16_t>(random.Between(random.OneIn(4) ? -range - 1 : 0, range));
}

template <class C>
struct RegisterUnderTest {
  static constexpr bool IsLog = std::is_same_v<C, DecisionRegiLOG>;

  DecisionRegister& Register() {
    if constexpr (IsLog) {
      return control.Children.DecisionRegister;
    } else {
      return control;
    }
  }

  HeadlessSite site;
  C control{site};
  RegisterModel model;
};

template <class C>
std::string Difference(RegisterUnderTest<C>& test) {
  const RegisterModel& model = test.model;
  DecisionRegister& inner = test.Register();
  const DecisionRegister::ChildWidgets& widgets = inner.Children;
  if (test.control.NumberOfDecisions() != model.decisions) return "the decisions";
  if (test.control.NumberOfCorrectDecisions() != model.correct) return "the correct decisions";
  if (test.control.NumberOfBreakDecisions() != model.breaks) return "the breaks";
  if (test.control.TypeOfDecisionRegister() != model.type) return "the type";
  if (widgets.theNumberOfDecisions.Caption() != model.decisionText) {
    return widgets.theNumberOfDecisions.Caption() + " instead of " + model.decisionText;
  }
  if (widgets.theNumberOfCorrectDecisions.Caption() != model.correctText) {
    return widgets.theNumberOfCorrectDecisions.Caption() + " instead of " + model.correctText;
  }
  if (widgets.labelAfterAdvice[1].Caption() != model.verdict) return "the verdict";
  if (widgets.lblBreakPercent.Visible() != model.breaksShown) return "the break figure";
  if (widgets.lblBreakPercent.Caption() != "22.8%") return "the break figure was written";
  if (widgets.lblDecisions.Top() != (model.breaksShown ? 110.0F : 195.0F)) return "the places";
  if (inner.Extender().Height() != model.height) return "the height";
  if (inner.Extender().Width() != model.width) return "the width";
  if (widgets.panelDecisionRegister.Height() != model.height) return "the panel's height";
  if (!test.site.Changes().empty()) return "gave notice";
  if constexpr (RegisterUnderTest<C>::IsLog) {
    const Label& feedback = test.control.Children.labelTheShouldRecommendation;
    if (feedback.Caption() != model.feedback) return "the feedback";
  }
  return {};
}

template <class C>
testing::AssertionResult RunRegister() {
  using Test = RegisterUnderTest<C>;
  RandomSequence<Test> sequence([] {
    auto test = std::make_unique<Test>();
    test->control.InitProperties();
    return test;
  });
  sequence.Add("results", 10, [](Test& test, SequenceRandom& random) {
    test.model.decisions = AnyCount(random);
    test.model.correct = AnyCount(random);
    test.control.DisplayTheDrillResults(static_cast<std::int16_t>(test.model.decisions),
                                        static_cast<std::int16_t>(test.model.correct));
    test.model.ShowCounts();
  });
  sequence.Add("reset", 2, [](Test& test, SequenceRandom&) {
    test.control.ResetDecisionData();
    test.model.decisions = test.model.correct = 0;
    test.model.ShowCounts();
  });
  sequence.Add("decisions", 3, [](Test& test, SequenceRandom& random) {
    test.model.decisions = AnyCount(random);
    test.control.NumberOfDecisions(static_cast<std::int16_t>(test.model.decisions));
  });
  sequence.Add("correct decisions", 3, [](Test& test, SequenceRandom& random) {
    test.model.correct = AnyCount(random);
    test.control.NumberOfCorrectDecisions(static_cast<std::int16_t>(test.model.correct));
  });
  sequence.Add("breaks", 3, [](Test& test, SequenceRandom& random) {
    test.model.breaks = AnyCount(random);
    test.control.NumberOfBreakDecisions(static_cast<std::int16_t>(test.model.breaks));
  });
  sequence.Add("type", 3, [](Test& test, SequenceRandom& random) {
    test.model.type = random.Between(-1, 4);
    test.control.TypeOfDecisionRegister(test.model.type);
  });
  sequence.Add("verdict", 6, [](Test& test, SequenceRandom& random) {
    const std::int32_t verdict = random.OneIn(4) ? 100 : random.Between(-2, 8);
    test.control.AfterAdvice(verdict);
    test.model.Judge(verdict);
  });
  sequence.Add("statistics box", 3, [](Test& test, SequenceRandom& random) {
    test.model.breaksShown = random.OneIn(2);
    test.control.SetupStatisticsBox(test.model.breaksShown);
  });
  sequence.Add("display", 3, [](Test& test, SequenceRandom&) {
    test.control.Displayed();
    test.model.Display();
  });
  sequence.Add("read", 1, [](Test& test, SequenceRandom& random) {
    MemoryPropertyBag bag;
    if (random.OneIn(2)) bag.Write("TypeOfDecisionRegister", 2);
    test.control.ReadProperties(bag);
    test.model.type = 1;
  });
  sequence.Add("resize", 1, [](Test& test, SequenceRandom& random) {
    test.model.width = static_cast<float>(random.Between(0, 6000));
    test.control.Extender().Width(test.model.width);
  });
  sequence.Add("set a height", 1, [](Test& test, SequenceRandom& random) {
    const auto height = static_cast<float>(random.Between(0, 3000));
    test.control.Extender().Height(height);
    if (!Test::IsLog) test.model.height = height;
  });
  sequence.Always([](Test& test) { return Difference(test); });
  return sequence.Run(20240617, 100'000);
}

TEST(DecisionRegisterRandomTest, ARegisterShowsWhatTheModelSays) { EXPECT_TRUE(RunRegister<DecisionRegister>()); }

TEST(DecisionRegisterRandomTest, ARegisterWithALogShowsWhatTheModelSays) {
  EXPECT_TRUE(RunRegister<DecisionRegiLOG>());
}

}  // namespace
}  // namespace tactix::tests
