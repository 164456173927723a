#include "tactix/scoring/DecisionRegister.h"

#include <gtest/gtest.h>

#include <limits>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "tactix/platform/NumberText.h"
#include "tactix/platform/headless/HeadlessSite.h"
#include "tests/platform/ErrorCode.h"

namespace tactix::tests {
namespace {

class DecisionRegisterTest : public testing::Test {
 protected:
  DecisionRegisterTest() { register_.InitProperties(); }

  DecisionRegister::ChildWidgets& Children() { return register_.Children; }
  std::string Decisions() { return Children().theNumberOfDecisions.Caption(); }
  std::string Correct() { return Children().theNumberOfCorrectDecisions.Caption(); }
  std::string Verdict() { return Children().labelAfterAdvice[1].Caption(); }

  HeadlessSite site_;
  DecisionRegister register_{site_};
};

struct DesignRow {
  const char* name;
  Label DecisionRegister::ChildWidgets::*label;
  const char* text;
  const char* toolTip;
};
using Widgets = DecisionRegister::ChildWidgets;

TEST_F(DecisionRegisterTest, HasItsDesignedTexts) {
  const DesignRow rows[] = {
      {"lblCorrectDecisions", &Widgets::lblCorrectDecisions, "Correct:", "% of Correct Decisions Made"},
      {"theNumberOfCorrectDecisions", &Widgets::theNumberOfCorrectDecisions, "", ""},
      {"lblDecisions", &Widgets::lblDecisions, "Decisions:", "# of play Decisions Made"},
      {"theNumberOfDecisions", &Widgets::theNumberOfDecisions, "", ""},
      {"lblBreakDecisions", &Widgets::lblBreakDecisions, "Breaks:", ""},
      {"lblBreakPercent", &Widgets::lblBreakPercent, "22.8%", ""},
  };
  for (const DesignRow& row : rows) {
    const Label& label = Children().*row.label;
    EXPECT_EQ(label.Name(), row.name);
    EXPECT_EQ(label.Caption(), row.text) << row.name;
    EXPECT_EQ(label.ToolTipText(), row.toolTip) << row.name;
    EXPECT_EQ(label.Parent(), &Children().panelDecisionRegister) << row.name;
  }
  const auto& [caption, verdict] = Children().labelAfterAdvice;
  EXPECT_EQ(caption.Caption(), "Correct Desicion:");
  EXPECT_EQ(verdict.Caption(), "______");
  for (const Label* label : {&caption, &verdict}) {
    EXPECT_EQ(label->ToolTipText(), "What the correction decision is");
    EXPECT_EQ(label->Parent(), &Children().panelDecisionRegister);
  }
  for (const Label* label : {&std::as_const(Children().lblCorrectDecisions), &std::as_const(Children().lblDecisions),
                             &std::as_const(Children().lblBreakDecisions), &caption}) {
    EXPECT_EQ(label->Font().Name, "Comic Sans MS") << label->Name();
  }
}

TEST_F(DecisionRegisterTest, ValuesAreReadAloudWithTheirCaptions) {
  EXPECT_EQ(Children().theNumberOfDecisions.Heading(), "Decisions:");
  EXPECT_EQ(Children().theNumberOfCorrectDecisions.Heading(), "Correct:");
  EXPECT_EQ(Children().lblBreakPercent.Heading(), "Breaks:");
  EXPECT_EQ(Children().labelAfterAdvice[1].Heading(), "Correct Desicion:");
}

struct CountRow {
  const char* name;
  std::int16_t decisions;
  std::int16_t correct;
  const char* decisionText;
  const char* correctText;
};

TEST_F(DecisionRegisterTest, ShowsTheCountsAndThePercentage) {
  const CountRow rows[] = {
      {"nothing yet", 0, 0, "", " - (.0%)"},
      {"two of three", 3, 2, "3", "2 - (66.7%)"},
      {"three of four", 4, 3, "4", "3 - (75.0%)"},
      {"one of three", 3, 1, "3", "1 - (33.3%)"},
      {"all", 12, 12, "12", "12 - (100.0%)"},
      {"none", 5, 0, "5", " - (.0%)"},
      {"thousands", 1234, 1000, "1,234", "1,000 - (81.0%)"},
      {"most", 32767, 32767, "32,767", "32,767 - (100.0%)"},
      {"one of most", 32767, 1, "32,767", "1 - (.0%)"},
      {"below one percent", 1000, 4, "1,000", "4 - (.4%)"},
      {"rounds up to one percent", 1000, 10, "1,000", "10 - (1.0%)"},
      {"half of the last place", 2000, 1, "2,000", "1 - (.1%)"},
      {"a tie that binary fractions lie below", 2000, 571, "2,000", "571 - (28.6%)"},
      {"more correct than made", 4, 5, "4", "5 - (125.0%)"},
      {"correct without a decision", 0, 3, "", "3 - (.0%)"},
      {"negative decisions", -4, 3, "-4", "3 - (-75.0%)"},
      {"negative correct", 4, -3, "4", "-3 - (-75.0%)"},
      {"both negative", -4, -3, "-4", "-3 - (75.0%)"},
      {"least", -32768, -32768, "-32,768", "-32,768 - (100.0%)"},
      {"a percentage is a single", 3, 32767, "3", "32,767 - (1092233.0%)"},
  };
  for (const CountRow& row : rows) {
    SCOPED_TRACE(row.name);
    register_.DisplayTheDrillResults(row.decisions, row.correct);
    EXPECT_EQ(Decisions(), row.decisionText);
    EXPECT_EQ(Correct(), row.correctText);
    EXPECT_EQ(register_.NumberOfDecisions(), row.decisions);
    EXPECT_EQ(register_.NumberOfCorrectDecisions(), row.correct);
  }
}

TEST_F(DecisionRegisterTest, TheLocaleSeparatesTheDigits) {
  SetNumberLocale({".", ","});
  register_.DisplayTheDrillResults(1234, 1111);
  SetNumberLocale({});
  EXPECT_EQ(Decisions(), "1.234");
  EXPECT_EQ(Correct(), "1.111 - (90,0%)");
}

TEST_F(DecisionRegisterTest, CountsThatAreSetShowWithTheNextResults) {
  register_.DisplayTheDrillResults(4, 3);
  register_.NumberOfDecisions(8);
  register_.NumberOfCorrectDecisions(7);
  register_.NumberOfBreakDecisions(6);
  EXPECT_EQ(Decisions(), "4");
  EXPECT_EQ(Correct(), "3 - (75.0%)");
  register_.Displayed();
  EXPECT_EQ(Decisions(), "8");
  EXPECT_EQ(Correct(), "7 - (87.5%)");
  EXPECT_EQ(register_.NumberOfBreakDecisions(), 6);
}

TEST_F(DecisionRegisterTest, ResettingKeepsTheBreaks) {
  register_.DisplayTheDrillResults(4, 3);
  register_.NumberOfBreakDecisions(9);
  register_.ResetDecisionData();
  EXPECT_EQ(register_.NumberOfDecisions(), 0);
  EXPECT_EQ(register_.NumberOfCorrectDecisions(), 0);
  EXPECT_EQ(register_.NumberOfBreakDecisions(), 9);
  EXPECT_EQ(Decisions(), "");
  EXPECT_EQ(Correct(), " - (.0%)");
}

TEST_F(DecisionRegisterTest, ShowsTheVerdict) {
  struct Row {
    std::int32_t verdict;
    const char* text;
  };
  constexpr std::int32_t Lowest = std::numeric_limits<std::int32_t>::min();
  constexpr std::int32_t Highest = std::numeric_limits<std::int32_t>::max();
  const Row rows[] = {{1, "Hit"},     {2, "Stand"},       {3, "Split"},   {4, "Double"},
                      {5, "Surr."},   {0, "______"},      {5, "Surr."},   {100, "______"},
                      {4, "Double"},  {6, "______"},      {-1, "______"}, {1, "Hit"},
                      {99, "______"}, {Lowest, "______"}, {2, "Stand"},   {Highest, "______"}};
  for (const Row& row : rows) {
    register_.AfterAdvice(row.verdict);
    EXPECT_EQ(Verdict(), row.text) << row.verdict;
  }
}

TEST_F(DecisionRegisterTest, AVerdictShowsItsLabel) {
  Children().labelAfterAdvice[1].Visible(false);
  register_.AfterAdvice(AfterAdvicePossibilities::afterYourPlayWasCorrect);
  EXPECT_TRUE(Children().labelAfterAdvice[1].Visible());
}

struct PlaceRow {
  Label DecisionRegister::ChildWidgets::*label;
  float withBreaks;
  float without;
};

TEST_F(DecisionRegisterTest, MakesRoomForTheBreaks) {
  const PlaceRow rows[] = {
      {&Widgets::lblDecisions, 110, 195},
      {&Widgets::theNumberOfDecisions, 165, 250},
      {&Widgets::lblCorrectDecisions, 500, 700},
      {&Widgets::theNumberOfCorrectDecisions, 560, 760},
  };
  const auto expect = [&](bool breaks) {
    for (const PlaceRow& row : rows) {
      const Label& label = Children().*row.label;
      EXPECT_EQ(label.Top(), breaks ? row.withBreaks : row.without) << label.Name();
    }
    EXPECT_EQ(Children().lblBreakDecisions.Visible(), breaks);
    EXPECT_EQ(Children().lblBreakPercent.Visible(), breaks);
    EXPECT_EQ(Children().lblBreakPercent.Caption(), "22.8%");
  };
  expect(false);
  for (const bool breaks : {true, true, false, false, true}) {
    register_.SetupStatisticsBox(breaks);
    expect(breaks);
  }
  register_.NumberOfBreakDecisions(5);
  register_.DisplayTheDrillResults(10, 4);
  register_.Displayed();
  expect(true);
}

TEST_F(DecisionRegisterTest, FitsItsTypeWhenItIsDisplayed) {
  struct Row {
    std::int32_t type;
    float height;
    const char* verdict;
  };
  const Row rows[] = {
      {1, 1420, "Split"}, {2, 1800, "______"}, {0, 999, "Split"}, {3, 999, "Split"}, {-1, 999, "Split"}};
  for (const Row& row : rows) {
    SCOPED_TRACE(row.type);
    register_.Extender().Height(999);
    register_.AfterAdvice(3);
    register_.TypeOfDecisionRegister(row.type);
    EXPECT_EQ(register_.TypeOfDecisionRegister(), row.type);
    EXPECT_EQ(register_.Extender().Height(), 999);
    register_.Displayed();
    EXPECT_EQ(register_.Extender().Height(), row.height);
    EXPECT_EQ(Verdict(), row.verdict);
    EXPECT_EQ(Correct(), " - (.0%)");
  }
}

TEST_F(DecisionRegisterTest, TheAfterAdviceFormShowsItsVerdictLine) {
  Children().labelAfterAdvice[1].Visible(false);
  register_.TypeOfDecisionRegister(DecisionRegisterType::AfterAdviceDecisionRegister);
  register_.Displayed();
  EXPECT_TRUE(Children().labelAfterAdvice[1].Visible());
  for (const Label& label : Children().labelAfterAdvice) {
    EXPECT_GE(label.Top(), 1420) << "a standard register would show a piece of it";
    EXPECT_LE(label.Top() + label.Height(), 1800);
  }
}

TEST_F(DecisionRegisterTest, IsStandardWhenItIsNewAndWheneverItIsRead) {
  EXPECT_EQ(register_.TypeOfDecisionRegister(), DecisionRegisterType::StandardDecisionRegister);
  register_.TypeOfDecisionRegister(2);
  register_.DisplayTheDrillResults(4, 3);
  register_.NumberOfBreakDecisions(2);
  MemoryPropertyBag bag;
  bag.Write("TypeOfDecisionRegister", 2);
  bag.Write("NumberOfDecisions", 77);
  register_.ReadProperties(bag);
  EXPECT_EQ(register_.TypeOfDecisionRegister(), DecisionRegisterType::StandardDecisionRegister);
  EXPECT_EQ(register_.NumberOfDecisions(), 4);
  EXPECT_EQ(register_.NumberOfBreakDecisions(), 2);
  EXPECT_EQ(site_.Changes(), std::vector<std::string>{});
}

TEST_F(DecisionRegisterTest, NeverWritesToABag) {
  class NoBag final : public PropertyBag {
   public:
    int uses = 0;
    Variant Read(std::string_view, const Variant& value) override { return ++uses, value; }
    void Write(std::string_view, const Variant&) override { ++uses; }
    void Write(std::string_view, const Variant&, const Variant&) override { ++uses; }
  } bag;
  register_.ReadProperties(bag);
  register_.WriteProperties(bag);
  EXPECT_EQ(bag.uses, 0);
}

TEST_F(DecisionRegisterTest, ThePanelFillsItAndTheValuesReachItsEdge) {
  for (const float width : {5000.0F, 3000.0F, 0.0F}) {
    register_.Extender().Place(30, 40, width, 1600);
    const Panel& panel = Children().panelDecisionRegister;
    EXPECT_EQ(panel.Left(), 0);
    EXPECT_EQ(panel.Top(), 0);
    EXPECT_EQ(panel.Width(), width);
    EXPECT_EQ(panel.Height(), 1600);
    for (const Label* label : {&Children().theNumberOfDecisions, &Children().theNumberOfCorrectDecisions,
                               &Children().lblBreakPercent, &Children().labelAfterAdvice[1]}) {
      EXPECT_GE(label->Width(), 0) << label->Name();
      if (width == 0) continue;
      EXPECT_EQ(label->Left() + label->Width(), width - 120) << label->Name() << " at " << width;
    }
  }
}

TEST_F(DecisionRegisterTest, ItsTextsDoNotOverlap) {
  const auto apart = [](const Label& a, const Label& b) {
    return a.Left() + a.Width() <= b.Left() || b.Left() + b.Width() <= a.Left() || a.Top() + a.Height() <= b.Top() ||
           b.Top() + b.Height() <= a.Top();
  };
  for (const bool breaks : {false, true}) {
    register_.SetupStatisticsBox(breaks);
    std::vector<const Label*> labels;
    for (const Widget* child : Children().panelDecisionRegister.Children()) {
      if (child->Visible()) labels.push_back(static_cast<const Label*>(child));
    }
    for (const Label* a : labels) {
      for (const Label* b : labels) EXPECT_TRUE(a == b || apart(*a, *b)) << a->Name() << " and " << b->Name();
    }
  }
}

TEST_F(DecisionRegisterTest, TakesItsHeightInTheUnitsOfItsContainer) {
  class Container final : public Control {
   public:
    explicit Container(Site& site, ScaleUnit unit) : Control(site) { Extender().Scale(unit); }
  };
  const struct {
    ScaleUnit unit;
    DecisionRegisterType type;
    float height;
    float panelHeight;  // twips
  } rows[] = {
      {ScaleUnit::Twips, DecisionRegisterType::StandardDecisionRegister, 1420, 1420},
      {ScaleUnit::Twips, DecisionRegisterType::AfterAdviceDecisionRegister, 1800, 1800},
      {ScaleUnit::Pixels, DecisionRegisterType::StandardDecisionRegister, 95, 1425},
      {ScaleUnit::Pixels, DecisionRegisterType::AfterAdviceDecisionRegister, 120, 1800},
  };
  for (const auto& row : rows) {
    Container container(site_, row.unit);
    DecisionRegister inside(site_);
    container.Extender().Add(inside.Extender(), "inside");
    inside.Extender().Place(0, 0, 240, 7);
    inside.TypeOfDecisionRegister(row.type);
    inside.Displayed();
    EXPECT_EQ(inside.Extender().Height(), row.height);
    EXPECT_EQ(inside.Extender().Width(), 240);
    EXPECT_EQ(inside.Children.panelDecisionRegister.Height(), row.panelHeight);
  }
}

TEST_F(DecisionRegisterTest, MayBeDestroyedWhenItsHeightChanges) {
  // A container may react to the new size.
  class DestroyingObserver final : public WidgetObserver {
   public:
    std::unique_ptr<DecisionRegister> target;
    void Changed(Widget&, Aspect aspect) override {
      if (aspect == Aspect::Geometry) target.reset();
    }
    void Gone(Widget&) override {}
  } observer;
  for (const std::int32_t type : {1, 2}) {
    observer.target = std::make_unique<DecisionRegister>(site_);
    observer.target->Extender().Height(1);
    observer.target->TypeOfDecisionRegister(type);
    observer.target->Extender().Observe(&observer);
    observer.target->Displayed();
    EXPECT_EQ(observer.target, nullptr);
  }
}

TEST_F(DecisionRegisterTest, FailsOnCountsThatAreNone) {
  const ObjectRef handle = register_.Handle();
  EXPECT_EQ(ErrorCodeOf([&] { return handle->Put("NumberOfDecisions", 32768), 0; }), Error::Overflow);
  EXPECT_EQ(ErrorCodeOf([&] { return handle->Put("NumberOfDecisions", "many"), 0; }), Error::TypeMismatch);
  EXPECT_EQ(register_.NumberOfDecisions(), 0);
  EXPECT_EQ(ErrorCodeOf([&] { return handle->Get("AfterAdvice"); }), Error::NoSuchMember);
}

}  // namespace
}  // namespace tactix::tests
