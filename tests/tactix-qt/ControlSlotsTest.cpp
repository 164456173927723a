// The slots and invokables of the controls' widget classes, apart from the properties': each must do what the control's
// method of the same name does, as seen on a twin.

#include <gtest/gtest.h>

#include <QPointer>
#include <QTimer>
#include <cctype>
#include <functional>
#include <memory>
#include <optional>
#include <set>
#include <string>
#include <vector>

#include "tactix-qt/AdviceButton.h"
#include "tactix-qt/Decision.h"
#include "tactix/counting/CardCountDisplayBox.h"
#include "tactix/counting/DualCardCountDisplay.h"
#include "tactix/counting/SpinCounter.h"
#include "tactix/counting/StrategyDataPanel.h"
#include "tactix/decision/AdviceButton.h"
#include "tactix/decision/Decision.h"
#include "tactix/decision/DecisionBAR.h"
#include "tactix/decision/DecisionBAR2.h"
#include "tactix/scoring/DecisionRegiLOG.h"
#include "tactix/scoring/DecisionRegister.h"
#include "tactix/strategy/BetStrategyList.h"
#include "tactix/strategy/CountStrategyList.h"
#include "tactix/strategy/StrategyList.h"
#include "tactix/strategy/StrategyListLITE.h"
#include "tactix/strategy/StrategyMarquix.h"
#include "tests/support-qt/ControlClasses.h"
#include "tests/support-qt/ControlSketch.h"
#include "tests/support-qt/Gestures.h"
#include "tests/support-qt/Hooks.h"
#include "tests/support-qt/SignalLog.h"
#include "tests/support-qt/UnhandledErrors.h"
#include "tests/support/FullDataBlock.h"
#include "tests/support/PropertyObject.h"

namespace tactix::tests {
namespace {

using Texts = std::vector<std::string>;
using Action = std::function<void(Control&)>;
using Question = std::function<std::string(Control&)>;

/// Whether a call changes what can be seen of a control.
enum class Shows { Yes, Nothing };

/// A slot, what it is called with, and the control's own call.
struct SlotRow {
  std::string signature;
  QVariantList arguments;
  /// Returns what the method returns, as a text.
  Question call;
  Shows shows = Shows::Yes;
  /// Before the call.
  Action prepare = nullptr;
  /// After it: brings to light what it has done, and says what cannot be seen otherwise.
  Question reveal = nullptr;
};

struct SlotsOfAClass {
  std::string name;
  std::vector<SlotRow> rows;
};

template <class C>
Question CallOf(std::function<void(C&)> call) {
  return [call](Control& control) {
    call(static_cast<C&>(control));
    return std::string();
  };
}

template <class C>
Action ActionOf(std::function<void(C&)> action) {
  return [action](Control& control) { action(static_cast<C&>(control)); };
}

template <class C>
Question QuestionOf(std::function<std::string(C&)> question) {
  return [question](Control& control) { return question(static_cast<C&>(control)); };
}

template <class T>
QVariant Held(T value) {
  return QVariant::fromValue(std::move(value));
}

ObjectRef TheEdition() {
  static const ObjectRef edition = std::make_shared<PropertyObject>("thisKelvoEdition", 4);
  return edition;
}
ObjectRef TheCollection() {
  static const ObjectRef collection = std::make_shared<PropertyObject>("Count", 7);
  return collection;
}
ObjectRef TheDataBlock() {
  static const ObjectRef block = FullDataBlock();
  return block;
}
DecisionBlock ABlock() {
  DecisionBlock block;
  block.PlayerName("Ann");
  block.HardTotal(14);
  block.ManualPlayerRestrictions(true);
  block.HitIsValid(true);
  block.SplitIsValid(true);
  block.StrategyAdvice(2);
  return block;
}
QVariant ABlockInAVariant() { return Held(Variant(std::make_shared<DecisionBlock>(ABlock()))); }
Variant Hundred() { return std::int32_t{100}; }

// Waits as they are asked for with a time that no wait takes.
constexpr float NoTime = -1;

template <class C>
std::vector<SlotRow> Waits() {
  return {
      {"BlinkTime(float)", {NoTime}, CallOf<C>([](C& c) { c.BlinkTime(NoTime); }), Shows::Nothing},
      {"FlashObject(tactix::ObjectRef)",
       {Held(ObjectRef())},
       CallOf<C>([](C& c) { c.FlashObject(nullptr); }),
       Shows::Nothing},
  };
}

template <class C>
std::vector<SlotRow> Lists(const char* fill, void (C::*fillTheList)()) {
  const auto addRow = ActionOf<C>([](C& list) { list.AddItem("row"); });
  return {
      {"AddItem(QString)", {"added"}, CallOf<C>([](C& list) { list.AddItem("added"); }), Shows::Yes, addRow},
      {"AddItem(QString,int)", {"added", 0}, CallOf<C>([](C& list) { list.AddItem("added", 0); }), Shows::Yes, addRow},
      {"LoadStrategiesFromIniFile()", {}, CallOf<C>([](C& list) { list.LoadStrategiesFromIniFile(); })},
      {fill, {}, CallOf<C>([fillTheList](C& list) { (list.*fillTheList)(); }), Shows::Yes, addRow},
      {"UseThisStrategyList(tactix::ObjectRef)", {Held(TheCollection())}, CallOf<C>([](C& list) {
         list.UseThisStrategyList(TheCollection());
       })},
  };
}

template <class C>
std::vector<SlotRow> Registers() {
  const auto counted = ActionOf<C>([](C& scores) { scores.DisplayTheDrillResults(5, 4); });
  return {
      {"AfterAdvice(AfterAdvicePossibilities)", {3}, CallOf<C>([](C& scores) { scores.AfterAdvice(3); })},
      {"DisplayTheDrillResults(int,int)", {9, 8}, CallOf<C>([](C& scores) { scores.DisplayTheDrillResults(9, 8); })},
      {"ResetDecisionData()", {}, CallOf<C>([](C& scores) { scores.ResetDecisionData(); }), Shows::Yes, counted},
      {"SetupStatisticsBox(bool)", {true}, CallOf<C>([](C& scores) { scores.SetupStatisticsBox(true); })},
  };
}

std::string BlockText(const DecisionBlock& block) {
  return block.PlayerName() + " " + std::to_string(block.HardTotal()) + (block.PromptPlayButtons() ? " prompts" : "");
}

/// A slot that takes a block, as a block and as a variant.
template <class C>
void AddBlockSlot(std::vector<SlotRow>& rows, const std::string& name, void (C::*plain)(const DecisionBlock&),
                  void (C::*late)(const Variant&)) {
  const auto block = QuestionOf<C>([](C& control) { return BlockText(control.DecodedDCB()); });
  rows.push_back({name + "(tactix::DecisionBlock)",
                  {Held(ABlock())},
                  CallOf<C>([plain](C& control) { (control.*plain)(ABlock()); }),
                  Shows::Yes,
                  nullptr,
                  block});
  rows.push_back(
      {name + "(tactix::Variant)",
       {ABlockInAVariant()},
       CallOf<C>([late](C& control) { (control.*late)(Variant(std::make_shared<DecisionBlock>(ABlock()))); }),
       Shows::Yes,
       nullptr,
       block});
}
template <class C>
void AddBlockSlot(std::vector<SlotRow>& rows, const std::string& name,
                  void (C::*plain)(const DecisionBlock&, const ObjectRef&),
                  void (C::*late)(const Variant&, const ObjectRef&)) {
  const auto block = QuestionOf<C>([](C& control) { return BlockText(control.DecodedDCB()); });
  rows.push_back({name + "(tactix::DecisionBlock,tactix::ObjectRef)",
                  {Held(ABlock()), Held(TheEdition())},
                  CallOf<C>([plain](C& control) { (control.*plain)(ABlock(), TheEdition()); }),
                  Shows::Yes,
                  nullptr,
                  block});
  rows.push_back({name + "(tactix::Variant,tactix::ObjectRef)",
                  {ABlockInAVariant(), Held(TheEdition())},
                  CallOf<C>([late](C& control) {
                    (control.*late)(Variant(std::make_shared<DecisionBlock>(ABlock())), TheEdition());
                  }),
                  Shows::Yes,
                  nullptr,
                  block});
}

template <class C>
SlotRow PlugRow(const std::string& slot,
                void (DecisionToolBarControl::*plug)(const Coded<ButtonStatusPossibilities>&)) {
  return {slot + "(ButtonStatusPossibilities)", {0}, CallOf<C>([plug](C& bar) { (bar.*plug)(0); })};
}

template <class C>
std::vector<SlotRow> Bars() {
  const auto predicted = [](bool resets) {
    return ActionOf<C>([resets](C& bar) {
      bar.ResetPredictionButtons(resets);
      for (const char* key : {"HitcardLow", "HolecardHigh", "TensRatioHigh", "DealerStrengthWeak"}) {
        bar.Children.DecisionToolBar.Button(key).Click();
      }
    });
  };
  const auto predictions = QuestionOf<C>([](C& bar) { return TextOf(Held(bar.GiveMeYourResponseData())); });
  std::vector<SlotRow> rows = Waits<C>();
  rows.push_back(PlugRow<C>("PlugHitcardButtons", &C::PlugHitcardButtons));
  rows.push_back(PlugRow<C>("PlugHoleCardButtons", &C::PlugHoleCardButtons));
  rows.push_back(PlugRow<C>("PlugTensRatioButtons", &C::PlugTensRatioButtons));
  rows.push_back(PlugRow<C>("PlugDealerStrengthButtons", &C::PlugDealerStrengthButtons));
  rows.push_back(PlugRow<C>("PlugStatusButton", &C::PlugStatusButton));
  rows.push_back({"TheKelvoEditionIs(tactix::ObjectRef)", {Held(TheEdition())}, CallOf<C>([](C& bar) {
                    bar.TheKelvoEditionIs(TheEdition());
                  })});
  AddBlockSlot<C>(rows, "SetupTheDecisionBAR", &C::SetupTheDecisionBAR, &C::SetupTheDecisionBAR);
  AddBlockSlot<C>(rows, "SetupDecisionBAR", &C::SetupDecisionBAR, &C::SetupDecisionBAR);
  AddBlockSlot<C>(rows, "SetupPlayButtons", &C::SetupPlayButtons, &C::SetupPlayButtons);
  AddBlockSlot<C>(rows, "HereIsTheDCB", &C::HereIsTheDCB, &C::HereIsTheDCB);
  AddBlockSlot<C>(rows, "DecodeThisDCB", &C::DecodeThisDCB, &C::DecodeThisDCB);
  rows.push_back({"GetReadyForADecision()",
                  {},
                  CallOf<C>([](C& bar) { bar.GetReadyForADecision(); }),
                  Shows::Yes,
                  predicted(true),
                  predictions});
  rows.push_back({"ResetYourResponseData()",
                  {},
                  CallOf<C>([](C& bar) { bar.ResetYourResponseData(); }),
                  Shows::Yes,
                  predicted(false),
                  predictions});
  rows.push_back({"GiveMeYourResponseData()", {}, predictions, Shows::Nothing, predicted(false)});
  return rows;
}

std::vector<SlotRow> BarsOfTwo() {
  const auto press = ActionOf<DecisionBAR2>([](DecisionBAR2& bar) {
    for (const char* key : {"HitcardLow", "HolecardLow"}) bar.Children.DecisionToolBar.Button(key).Value(true);
  });
  std::vector<SlotRow> rows = Bars<DecisionBAR2>();
  rows.push_back({"ResetTheHitcardPredictionButtons()",
                  {},
                  CallOf<DecisionBAR2>([](DecisionBAR2& bar) { bar.ResetTheHitcardPredictionButtons(); }),
                  Shows::Yes,
                  press});
  rows.push_back({"ResetTheHoleCardPredictionButtons()",
                  {},
                  CallOf<DecisionBAR2>([](DecisionBAR2& bar) { bar.ResetTheHoleCardPredictionButtons(); }),
                  Shows::Yes,
                  press});
  return rows;
}

SlotRow ConversionRow(const std::string& name, std::int16_t (Decision::*convert)(const Variant&) const) {
  return {name + "(tactix::Variant)",
          {Held(Hundred())},
          QuestionOf<Decision>([convert](Decision& box) { return std::to_string((box.*convert)(Hundred())); }),
          Shows::Nothing};
}

std::vector<SlotRow> Boxes() {
  using C = Decision;
  std::vector<SlotRow> rows = Waits<C>();
  AddBlockSlot<C>(rows, "SetupTheDecisionBox", &C::SetupTheDecisionBox, &C::SetupTheDecisionBox);
  AddBlockSlot<C>(rows, "SetupDecisionBox", &C::SetupDecisionBox, &C::SetupDecisionBox);
  AddBlockSlot<C>(rows, "SetupPlayButtons", &C::SetupPlayButtons, &C::SetupPlayButtons);
  AddBlockSlot<C>(rows, "HereIsTheDCB", &C::HereIsTheDCB, &C::HereIsTheDCB);
  AddBlockSlot<C>(rows, "DecodeThisDCB", &C::DecodeThisDCB, &C::DecodeThisDCB);
  rows.push_back(ConversionRow("ConvertFromPixelsToTwipsX", &C::ConvertFromPixelsToTwipsX));
  rows.push_back(ConversionRow("ConvertFromPixelsToTwipsY", &C::ConvertFromPixelsToTwipsY));
  rows.push_back(ConversionRow("ConvertFromTwipsToPixelsX", &C::ConvertFromTwipsToPixelsX));
  rows.push_back(ConversionRow("ConvertFromTwipsToPixelsY", &C::ConvertFromTwipsToPixelsY));
  const auto atTable = ActionOf<C>([](C& box) { box.DecisionBoxType(1); });
  const auto described = ActionOf<C>([](C& box) {
    box.SetupTheDecisionBox(ABlock());
    box.SetDescriptionBoxState(1, 0, 300, "Hit");
  });
  // What it has advised, the box says only when it is asked.
  rows.push_back({"GiveAdvice(int)", {3}, CallOf<C>([](C& box) { box.GiveAdvice(3); }), Shows::Nothing});
  rows.push_back({"ToolTipMessage(QString)", {"Basic"}, CallOf<C>([](C& box) { box.ToolTipMessage("Basic"); })});
  rows.push_back({"TheKelvoEditionIs(tactix::Variant)", {Held(Variant(TheEdition()))}, CallOf<C>([](C& box) {
                    box.TheKelvoEditionIs(TheEdition());
                  })});
  rows.push_back({"CenterYourSelf()", {}, CallOf<C>([](C& box) { box.CenterYourSelf(); })});
  rows.push_back({"Show(std::int16_t&)",
                  {Held(std::int16_t{1})},
                  CallOf<C>([](C& box) {
                    std::int16_t flag = 1;
                    box.Show(flag);
                  }),
                  Shows::Nothing});
  rows.push_back({"DecisionMade()", {}, CallOf<C>([](C& box) { box.DecisionMade(); }), Shows::Yes, described});
  rows.push_back({"DiddleThePromptShit()", {}, CallOf<C>([](C& box) { box.DiddleThePromptShit(); })});
  rows.push_back({"PredictTheHitCard(int)", {1}, CallOf<C>([](C& box) { box.PredictTheHitCard(1); })});
  rows.push_back({"DisplayHitcardSetting(int)",
                  {2},
                  CallOf<C>([](C& box) { box.DisplayHitcardSetting(2); }),
                  Shows::Yes,
                  atTable});
  rows.push_back({"SetDescriptionBoxState(int,int,int,QString)", {1, 0, 300, "Hit"}, CallOf<C>([](C& box) {
                    box.SetDescriptionBoxState(1, 0, 300, "Hit");
                  })});
  rows.push_back({"ClearButtonDescriptionBox()",
                  {},
                  CallOf<C>([](C& box) { box.ClearButtonDescriptionBox(); }),
                  Shows::Yes,
                  described});
  // A button that does not blink; one that does is below.
  rows.push_back({"HandleAdviceConsiderations()",
                  {},
                  CallOf<C>([](C& box) { box.HandleAdviceConsiderations(); }),
                  Shows::Nothing});
  return rows;
}

std::vector<SlotRow> AdviceButtons() {
  using C = AdviceButton;
  std::vector<SlotRow> rows = Waits<C>();
  rows.push_back({"BlinkIfNecessary()", {}, CallOf<C>([](C& button) { button.BlinkIfNecessary(); }), Shows::Nothing});
  rows.push_back({"AdviceStrategyList(tactix::ObjectRef)", {Held(TheCollection())}, QuestionOf<C>([](C& button) {
                    return TextOf(Held(button.AdviceStrategyList(TheCollection())));
                  })});
  return rows;
}

std::vector<SlotRow> Panels() {
  using C = StrategyDataPanel;
  const auto users = QuestionOf<C>([](C&) { return std::to_string(TheDataBlock().use_count()); });
  const auto edition = QuestionOf<C>([](C& panel) { return std::to_string(panel.EditionCode()); });
  return {
      {"HereIsYourStrategyData(tactix::ObjectRef)",
       {Held(TheDataBlock())},
       CallOf<C>([](C& panel) { panel.HereIsYourStrategyData(TheDataBlock()); }),
       Shows::Yes,
       nullptr,
       users},
      {"HereIsSomeStrategyDataBlockData(tactix::ObjectRef)",
       {Held(TheDataBlock())},
       CallOf<C>([](C& panel) { panel.HereIsSomeStrategyDataBlockData(TheDataBlock()); }),
       Shows::Yes,
       nullptr,
       users},
      // Fails for null, where the others do not, or with another error.
      {"StrategyDataBlockData(tactix::ObjectRef)",
       {Held(TheEdition())},
       CallOf<C>([](C& panel) { panel.StrategyDataBlockData(TheEdition()); }),
       Shows::Nothing,
       nullptr,
       users},
      {"ShadowBoxStatus(int)",
       {65535},
       CallOf<C>([](C& panel) { panel.ShadowBoxStatus(65535); }),
       Shows::Yes,
       nullptr,
       QuestionOf<C>([](C& panel) {
         panel.Children.CountDisplay.Children.TrueCountDisplay.CountBoxType(2);
         return std::string();
       })},
      {"Refresh()", {}, CallOf<C>([](C& panel) { panel.Refresh(); }), Shows::Nothing},
      {"TheKelvoEditionIs(tactix::ObjectRef)",
       {Held(TheEdition())},
       CallOf<C>([](C& panel) { panel.TheKelvoEditionIs(TheEdition()); }),
       Shows::Yes,
       nullptr,
       edition},
      {"GetClumpStuff(int)", {8}, QuestionOf<C>([](C& panel) { return panel.GetClumpStuff(8); }), Shows::Nothing},
  };
}

std::vector<SlotRow> Marquees() {
  using C = StrategyMarquix;
  const auto addRows = ActionOf<C>([](C& marquee) {
    for (const char* row : {"seat", "none", "first"}) marquee.AddItem(row);
    marquee.ListIndex(1);
  });
  return {
      {"AddItem(QString)", {"added"}, CallOf<C>([](C& marquee) { marquee.AddItem("added"); })},
      {"InputPlayingStrategyDescriptions()",
       {},
       CallOf<C>([](C& marquee) { marquee.InputPlayingStrategyDescriptions(); }),
       Shows::Yes,
       addRows},
      {"LoadStrategiesFromIniFile()", {}, CallOf<C>([](C& marquee) { marquee.LoadStrategiesFromIniFile(); })},
      {"SelectThisStrategy(bool)", {true}, CallOf<C>([](C& marquee) { marquee.SelectThisStrategy(true); })},
      {"SetFocus()", {}, CallOf<C>([](C& marquee) { marquee.SetFocus(); })},
      {"UseThisStrategyList(tactix::ObjectRef)", {Held(TheCollection())}, CallOf<C>([](C& marquee) {
         marquee.UseThisStrategyList(TheCollection());
       })},
      {"aStrategyExists()",
       {},
       QuestionOf<C>([](C& marquee) { return std::string(marquee.aStrategyExists() ? "true" : "false"); }),
       Shows::Nothing,
       addRows},
  };
}

std::vector<SlotsOfAClass> AllSlots() {
  std::vector<SlotRow> counts =
      Lists("InputCountStrategyDescriptions()", &CountStrategyList::InputCountStrategyDescriptions);
  counts.push_back({"CountValue(CountStrategyPossibilities,int)",
                    {16, 5},
                    CallOf<CountStrategyList>([](CountStrategyList& list) { list.CountValue(16, 5); }),
                    Shows::Nothing});
  const auto shadow = QuestionOf<CardCountDisplayBox>([](CardCountDisplayBox& box) {
    box.CountBoxType(1);
    return std::string();
  });
  const auto shadows = QuestionOf<DualCardCountDisplay>([](DualCardCountDisplay& display) {
    display.Children.TrueCountDisplay.CountBoxType(2);
    return std::string();
  });
  return {
      {"AdviceButton", AdviceButtons()},
      {"BetStrategyList",
       Lists("InputBettingStrategyDescriptions()", &BetStrategyList::InputBettingStrategyDescriptions)},
      {"CardCountDisplayBox",
       {{"CountValue(int)", {-12}, CallOf<CardCountDisplayBox>([](CardCountDisplayBox& box) { box.CountValue(-12); })},
        {"ShadowBoxStatus(int)",
         {65535},
         CallOf<CardCountDisplayBox>([](CardCountDisplayBox& box) { box.ShadowBoxStatus(65535); }),
         Shows::Yes,
         nullptr,
         shadow}}},
      {"ClumpCardList", {}},
      {"CountStrategyList", counts},
      {"CountValueSelector", {}},
      {"Decision", Boxes()},
      {"DecisionBAR", Bars<DecisionBAR>()},
      {"DecisionBAR2", BarsOfTwo()},
      {"DecisionRegiLOG", Registers<DecisionRegiLOG>()},
      {"DecisionRegister", Registers<DecisionRegister>()},
      {"DualCardCountDisplay",
       {{"TrueCountValue(int)", {3}, CallOf<DualCardCountDisplay>([](DualCardCountDisplay& display) {
           display.TrueCountValue(3);
         })},
        {"RunningCountValue(int)", {-4}, CallOf<DualCardCountDisplay>([](DualCardCountDisplay& display) {
           display.RunningCountValue(-4);
         })},
        {"ShadowBoxStatus(int)",
         {65535},
         CallOf<DualCardCountDisplay>([](DualCardCountDisplay& display) { display.ShadowBoxStatus(65535); }),
         Shows::Yes,
         nullptr,
         shadows}}},
      {"HitStandLegend", {}},
      {"SpinCounter",
       {{"ResetSizeToDefault()",
         {},
         CallOf<SpinCounter>([](SpinCounter& counter) { counter.ResetSizeToDefault(); }),
         Shows::Yes,
         ActionOf<SpinCounter>([](SpinCounter& counter) { counter.Extender().Height(900); })}}},
      {"StrategyDataPanel", Panels()},
      {"StrategyList", Lists("InputPlayingStrategyDescriptions()", &StrategyList::InputPlayingStrategyDescriptions)},
      {"StrategyListLITE",
       Lists("InputPlayingStrategyDescriptions()", &StrategyListLITE::InputPlayingStrategyDescriptions)},
      {"StrategyMarquix", Marquees()},
      {"UnitSelectionList", {}},
  };
}

/// What a call leaves behind.
struct Outcome {
  std::string returned;
  std::vector<int> errors;
  Texts signals;
  Sketch sketch;
  std::string revealed;
};

class QtControlSlotTest : public testing::TestWithParam<std::string> {
 protected:
  QtControlSlotTest() { hooks_.Install(); }

  using Call = std::function<std::string(qt::ControlWidget&)>;
  Outcome OutcomeOf(const SlotRow& row, const Call& call) {
    const auto widget = ControlClassOf(GetParam()).Make();
    Control& control = *widget->Hosted();
    if (row.prepare) row.prepare(control);
    Outcome outcome;
    SignalLog heard(*widget);
    UnhandledErrors unhandled(*widget);
    try {
      outcome.returned = call(*widget);
    } catch (const Error& error) {
      outcome.errors.push_back(error.Code());
    }
    Settle();  // what the control itself is told comes out later
    for (const int code : unhandled.Take()) outcome.errors.push_back(code);
    if (row.reveal) outcome.revealed = row.reveal(control);
    for (const std::string& signal : heard.Take()) {
      const bool isEdition = signal.find("KelvoEditionChanged") == 0;  // each control makes one of its own
      if (signal.find("unhandledError") != 0) outcome.signals.push_back(isEdition ? "an edition" : signal);
    }
    outcome.sketch = SketchOf(control);
    return outcome;
  }

  EmptyHooks hooks_;
};

TEST_P(QtControlSlotTest, EachDoesWhatTheControlsMethodDoes) {
  for (const SlotsOfAClass& each : AllSlots()) {
    if (each.name != GetParam()) continue;
    for (const SlotRow& row : each.rows) {
      SCOPED_TRACE(row.signature);
      const Outcome ours = OutcomeOf(row, [&](qt::ControlWidget& widget) {
        QVariantList arguments = row.arguments;
        return TextOf(Invoke(widget, row.signature, arguments));
      });
      const Outcome theirs = OutcomeOf(row, [&](qt::ControlWidget& widget) { return row.call(*widget.Hosted()); });
      const Outcome without = OutcomeOf(row, [](qt::ControlWidget&) { return std::string(); });
      EXPECT_TRUE(ours.returned == theirs.returned || !theirs.errors.empty()) << ours.returned;
      EXPECT_EQ(ours.errors, theirs.errors);
      EXPECT_EQ(ours.signals, theirs.signals);
      EXPECT_EQ(Differences(theirs.sketch, ours.sketch), Texts());
      EXPECT_EQ(ours.revealed, theirs.revealed);
      const bool shows =
          ours.sketch != without.sketch || ours.signals != without.signals || ours.revealed != without.revealed;
      EXPECT_EQ(shows, row.shows == Shows::Yes);
    }
  }
}

TEST_P(QtControlSlotTest, AllAreInTheTable) {
  const auto widget = ControlClassOf(GetParam()).Make();
  const QMetaObject& meta = *widget->metaObject();
  std::set<std::string> ofProperties;
  for (const QMetaProperty& property : PropertiesOf(meta)) {
    const std::string name = property.name();
    const std::string capital(1, static_cast<char>(std::toupper(name[0])));
    const std::string rest = capital + name.substr(1);
    ofProperties.insert({name, "setControl" + name, "set" + rest, "reset" + rest});
  }
  std::set<std::string> found;
  for (const QMetaMethod::MethodType type : {QMetaMethod::Slot, QMetaMethod::Method}) {
    for (const QMetaMethod& method : MethodsOf(meta, type)) {
      if (!ofProperties.contains(method.name().toStdString())) found.insert(method.methodSignature().toStdString());
    }
  }
  std::set<std::string> listed;
  for (const SlotsOfAClass& each : AllSlots()) {
    if (each.name != GetParam()) continue;
    for (const SlotRow& row : each.rows) listed.insert(row.signature);
  }
  EXPECT_EQ(found, listed);
}

/// What a slot that flashes a button leads to: the wait ends at its first step, with the widget.
template <class W>
bool HidesTheButton(void (*flash)(W&), Widget& (*button)(W&)) {
  QPointer<W> widget = new W;
  bool hidden = false;
  QTimer::singleShot(0, widget, [&] {
    hidden = !button(*widget).Visible();
    delete widget;
  });
  flash(*widget);
  EXPECT_FALSE(widget) << "nothing flashed";
  delete widget;
  return hidden;
}

Widget& ButtonOf(qt::AdviceButton& widget) { return widget.control().Children.cmdAdviceButton; }
Widget& ButtonOf(qt::Decision& widget) { return widget.control().Children.AdviceButton.Children.cmdAdviceButton; }

TEST(QtControlSlotsTest, FlashesAreSeen) {
  EXPECT_TRUE(HidesTheButton<qt::AdviceButton>(
      [](qt::AdviceButton& widget) {
        widget.control().Children.mnuButtonBlink[2].Chosen.Raise();
        widget.BlinkIfNecessary();
      },
      ButtonOf));
  EXPECT_TRUE(HidesTheButton<qt::Decision>(
      [](qt::Decision& widget) {
        widget.control().Children.AdviceButton.Children.mnuButtonBlink[2].Chosen.Raise();
        widget.HandleAdviceConsiderations();
      },
      ButtonOf));
}

TEST(QtControlSlotsTest, ShowLetsTheEditionWriteToTheFlag) {
  const auto edition = std::make_shared<PropertyObject>("thisKelvoEdition", 4);
  edition->OnCall = [](std::string_view, std::span<Variant> arguments) { arguments[0] = std::int16_t{7}; };
  qt::Decision box;
  box.SetupDecisionBox(DecisionBlock(), edition);
  QVariantList arguments = {Held(std::int16_t{1})};
  Invoke(box, "Show(std::int16_t&)", arguments);
  EXPECT_EQ(arguments[0].toInt(), 7);
}

std::vector<std::string> ClassNames() {
  std::vector<std::string> names;
  for (const ControlClass& each : ControlClasses()) names.push_back(each.name);
  return names;
}

INSTANTIATE_TEST_SUITE_P(Classes, QtControlSlotTest, testing::ValuesIn(ClassNames()),
                         [](const auto& row) { return row.param; });

}  // namespace
}  // namespace tactix::tests
