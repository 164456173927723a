// The slots of the decision controls' widget classes.

#include "tactix/decision/AdviceButton.h"
#include "tactix/decision/Decision.h"
#include "tactix/decision/DecisionBAR.h"
#include "tactix/decision/DecisionBAR2.h"
#include "tests/support-qt/ControlClasses.h"
#include "tests/support-qt/ControlSlots.h"

namespace tactix::tests {

namespace {

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

}  // namespace

SlotTable DecisionSlots() {
  return {
      {"AdviceButton", AdviceButtons()}, {"Decision", Boxes()},  {"DecisionBAR", Bars<DecisionBAR>()},
      {"DecisionBAR2", BarsOfTwo()},     {"HitStandLegend", {}},
  };
}

}  // namespace tactix::tests
