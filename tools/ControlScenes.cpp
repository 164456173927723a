#include "tools/ControlScenes.h"

#include <QApplication>

#include "tactix-qt/AdviceButton.h"
#include "tactix-qt/BetStrategyList.h"
#include "tactix-qt/CardCountDisplayBox.h"
#include "tactix-qt/ClumpCardList.h"
#include "tactix-qt/CountStrategyList.h"
#include "tactix-qt/CountValueSelector.h"
#include "tactix-qt/Decision.h"
#include "tactix-qt/DecisionBAR.h"
#include "tactix-qt/DecisionBAR2.h"
#include "tactix-qt/DecisionRegiLOG.h"
#include "tactix-qt/DecisionRegister.h"
#include "tactix-qt/DualCardCountDisplay.h"
#include "tactix-qt/HitStandLegend.h"
#include "tactix-qt/SpinCounter.h"
#include "tactix-qt/StrategyDataPanel.h"
#include "tactix-qt/StrategyList.h"
#include "tactix-qt/StrategyListLITE.h"
#include "tactix-qt/StrategyMarquix.h"
#include "tactix-qt/UnitSelectionList.h"
#include "tactix/companion/StrategyDataBlock.h"

namespace tactix::tools {

namespace {

using WidgetRef = std::unique_ptr<QWidget>;

constexpr std::int16_t BasicStrategy = 0;
constexpr QSize ColumnSize(100, 660);
constexpr int NarrowWidth = 480;
// Twips. The top and bottom mounts put the spin button 360 pixels away from the number.
constexpr float SpinCounterHeight = 360;
constexpr float MountedHeight = 400 * 15;

template <class W>
WidgetRef MakeNew() {
  return std::make_unique<W>();
}

std::unique_ptr<qt::StrategyList> FilledStrategyList() {
  auto list = std::make_unique<qt::StrategyList>();
  list->LoadStrategiesFromIniFile();
  return list;
}

WidgetRef MakeStrategyList() { return FilledStrategyList(); }

WidgetRef MakeStrategyListWithChoice() {
  auto list = FilledStrategyList();
  list->SelectThisStrategy(BasicStrategy);
  return list;
}

template <class List>
WidgetRef MakeFilled(int row) {
  auto list = std::make_unique<List>();
  list->LoadStrategiesFromIniFile();
  list->ListIndex(row - 1);
  return list;
}

WidgetRef MakeStrategyListLITE() { return MakeFilled<qt::StrategyListLITE>(1); }

WidgetRef MakeBetStrategyList() { return MakeFilled<qt::BetStrategyList>(1); }

WidgetRef MakeCountStrategyList() { return MakeFilled<qt::CountStrategyList>(10); }

WidgetRef MakeStrategyMarquix() {
  auto marquee = std::make_unique<qt::StrategyMarquix>();
  marquee->Caption(QStringLiteral("Your playing strategy"));
  marquee->LoadStrategiesFromIniFile();
  marquee->ListIndex(BasicStrategy);
  marquee->ControlType(qt::StrategyMarquix::IsAPlayingMarquix);
  marquee->SelectThisStrategy(true);
  return marquee;
}

WidgetRef MakeAdviceButtonWithList() {
  auto button = std::make_unique<qt::AdviceButton>();
  button->show();
  button->control().Children.mnuSelectStrategy.Chosen.Raise();
  return button;
}

DecisionBlock PairOfEights() {
  DecisionBlock block;
  block.PlayerName("Ann");
  block.HardTotal(16);
  block.MidCardsAre("Seven to nine");
  block.SplitIsValid(true);
  block.HardDoubleIsValid(true);
  block.StrategyAdvice(static_cast<std::int16_t>(AdvicePossibilities::SplitAdvised));
  return block;
}

std::unique_ptr<qt::Decision> MakeBox(qt::Decision::TypeOfDecisionBox type, const DecisionBlock& block) {
  auto box = std::make_unique<qt::Decision>();
  box->DecisionBoxType(type);
  box->SetupTheDecisionBox(block);
  return box;
}

WidgetRef MakeDecisionForDrills() { return MakeBox(qt::Decision::forUseWithDrills, PairOfEights()); }

WidgetRef MakeDecisionForTable() { return MakeBox(qt::Decision::forUseWithBlackjackTable, PairOfEights()); }

WidgetRef MakeDecisionWithLargeAdvice() {
  auto box = MakeBox(qt::Decision::forUseWithBlackjackTable, PairOfEights());
  box->AllowAdvice(qt::Decision::LargeButton);
  return box;
}

WidgetRef MakeDecisionWithDescription() {
  auto box = MakeBox(qt::Decision::forUseWithBlackjackTable, PairOfEights());
  box->show();
  box->DiddleThePromptShit();
  box->control().Children.StandButton.MouseMove({});
  return box;
}

WidgetRef MakeDecisionWithPrediction() {
  auto box = MakeBox(qt::Decision::forUseWithBlackjackTable, PairOfEights());
  box->show();
  box->DiddleThePromptShit();
  box->control().Children.HitButton.MouseMove({0, CtrlKey | ShiftKey, 0, 0});
  return box;
}

WidgetRef MakeDecisionRestricted() {
  DecisionBlock block = PairOfEights();
  block.HardTotal(6);
  block.SoftTotal(6);
  block.ManualPlayerRestrictions(true);
  block.SplitIsValid(false);
  return MakeBox(qt::Decision::forUseWithBlackjackTable, block);
}

WidgetRef MakeDecisionWithList() {
  auto box = MakeBox(qt::Decision::forUseWithBlackjackTable, PairOfEights());
  box->AllowAdvice(qt::Decision::LargeButton);
  box->show();
  box->control().Children.AdviceButton.Children.mnuSelectStrategy.Chosen.Raise();
  return box;
}

/// A toolbar in the middle of a hand: some predictions made, one play not allowed.
template <class Bar>
std::unique_ptr<Bar> MakeBar() {
  auto bar = std::make_unique<Bar>();
  DecisionBlock block = PairOfEights();
  block.ManualPlayerRestrictions(true);
  block.SplitIsValid(false);
  bar->SetupPlayButtons(block);
  ToolBar& strip = bar->control().Children.DecisionToolBar;
  for (const char* key : {"HitcardLow", "HolecardHigh", "DealerStrengthWeak"}) strip.Button(key).Click();
  return bar;
}

template <class Bar>
WidgetRef MakeToolBar() {
  return MakeBar<Bar>();
}

WidgetRef MakeToolBarColumn() {
  auto bar = MakeBar<qt::DecisionBAR2>();
  bar->Alignment(qt::DecisionBAR2::DBAlignLeft);
  bar->resize(ColumnSize);
  return bar;
}

WidgetRef MakeToolBarNarrow() {
  auto bar = MakeBar<qt::DecisionBAR2>();
  bar->resize(NarrowWidth, bar->height());
  return bar;
}

WidgetRef MakeSpinCounter(qt::SpinCounter::SpinCounterPossibilities handedness, float height, int number) {
  auto counter = std::make_unique<qt::SpinCounter>();
  counter->AllowNegNumbers(true);
  counter->control().Extender().Height(height);
  counter->ControlHandedness(handedness);
  counter->CounterValue(number);
  return counter;
}

WidgetRef MakeSpinCounterLeft() { return MakeSpinCounter(qt::SpinCounter::LeftHandSpinCounter, SpinCounterHeight, 7); }

WidgetRef MakeSpinCounterRight() {
  return MakeSpinCounter(qt::SpinCounter::RighHandSpinCounter, SpinCounterHeight, -12);
}

WidgetRef MakeSpinCounterTop() { return MakeSpinCounter(qt::SpinCounter::TopMountSpinCounter, MountedHeight, 123); }

WidgetRef MakeSpinCounterBottom() {
  return MakeSpinCounter(qt::SpinCounter::BottomMountSpinCounter, MountedHeight, 123);
}

WidgetRef MakeCountValueSelector() {
  auto selector = std::make_unique<qt::CountValueSelector>();
  selector->CardValue(qt::CountValueSelector::theCardValueIsATen);
  selector->control().Children.cmbPointValue.PickRow(9);
  return selector;
}

WidgetRef MakeClumpCardList() {
  auto list = std::make_unique<qt::ClumpCardList>();
  list->CardValue(qt::ClumpCardList::theClumpCardValueIsAFive);
  list->control().Children.cmbClumpValue.PickRow(20);
  return list;
}

WidgetRef MakeUnitSelectionListWithChoice() {
  auto list = std::make_unique<qt::UnitSelectionList>();
  list->control().Children.comboBettingUnits.PickRow(9);
  return list;
}

WidgetRef MakeDecisionRegister() {
  auto scores = std::make_unique<qt::DecisionRegister>();
  scores->DisplayTheDrillResults(1234, 1111);
  return scores;
}

WidgetRef MakeDecisionRegisterWithBreaks() {
  auto scores = std::make_unique<qt::DecisionRegister>();
  scores->DisplayTheDrillResults(40, 31);
  scores->SetupStatisticsBox(true);
  return scores;
}

WidgetRef MakeDecisionRegisterAfterAdvice() {
  auto scores = std::make_unique<qt::DecisionRegister>();
  scores->TypeOfDecisionRegister(qt::DecisionRegister::AfterAdviceDecisionRegister);
  scores->show();
  QApplication::processEvents();
  scores->DisplayTheDrillResults(3, 2);
  scores->AfterAdvice(qt::DecisionRegister::afterYouShouldaDoubled);
  return scores;
}

WidgetRef MakeDecisionRegiLOG(qt::DecisionRegister::DecisionRegisterType type,
                              qt::DecisionRegister::AfterAdvicePossibilities verdict) {
  auto log = std::make_unique<qt::DecisionRegiLOG>();
  log->TypeOfDecisionRegister(type);
  log->show();
  QApplication::processEvents();
  log->DisplayTheDrillResults(4, 3);
  log->AfterAdvice(verdict);
  return log;
}

WidgetRef MakeDecisionRegiLOGStandard() {
  return MakeDecisionRegiLOG(qt::DecisionRegister::StandardDecisionRegister,
                             qt::DecisionRegister::afterYourPlayWasCorrect);
}

WidgetRef MakeDecisionRegiLOGAfterAdvice() {
  return MakeDecisionRegiLOG(qt::DecisionRegister::AfterAdviceDecisionRegister,
                             qt::DecisionRegister::afterYouShouldaSurrendered);
}

WidgetRef MakeCardCountDisplayBox(int status) {
  auto box = std::make_unique<qt::CardCountDisplayBox>();
  box->ShadowBoxStatus(status);
  box->CountBoxType(qt::CardCountDisplayBox::CountBoxIsRunningCount);
  box->CountValue(-12);
  return box;
}

WidgetRef MakeCardCountDisplayBoxPlain() {
  return MakeCardCountDisplayBox(qt::CardCountDisplayBox::ShadowBoxingDisabled);
}

WidgetRef MakeCardCountDisplayBoxYellow() {
  return MakeCardCountDisplayBox(qt::CardCountDisplayBox::ShadowBoxYellowColor);
}

WidgetRef MakeCardCountDisplayBoxGrey() {
  return MakeCardCountDisplayBox(qt::CardCountDisplayBox::ShadowBoxBlackColor);
}

WidgetRef MakeDualCardCountDisplay() {
  auto display = std::make_unique<qt::DualCardCountDisplay>();
  display->TrueCountValue(3);
  display->RunningCountValue(11);
  return display;
}

WidgetRef MakeStrategyDataPanel() {
  const auto block = std::make_shared<companion::StrategyDataBlock>();
  block->RunningCount = -12;
  block->TrueCount = -3;
  block->AcesDealt = 14;
  block->FivesDealt = 9;
  block->TensDealt = 61;
  block->BiasRating = 118;
  block->ClumpType = 8;
  block->CoreCardsDealt = 52;
  block->TargetRating = -40;
  block->DealerBreakPercent = 28.26F;
  block->AdjustedCount = -5;
  block->DealerStiffHands = 24;
  block->DealerStrongHands = 31;
  block->DealerEndingTotal = 18.52F;
  auto panel = std::make_unique<qt::StrategyDataPanel>();
  panel->HereIsYourStrategyData(block);
  return panel;
}

constexpr Scene AllScenes[] = {
    {"strategy-list", MakeStrategyList},
    {"strategy-list-choice", MakeStrategyListWithChoice},
    {"strategy-list-lite", MakeStrategyListLITE},
    {"bet-strategy-list", MakeBetStrategyList},
    {"count-strategy-list-new", MakeNew<qt::CountStrategyList>},
    {"count-strategy-list", MakeCountStrategyList},
    {"strategy-marquix-new", MakeNew<qt::StrategyMarquix>},
    {"strategy-marquix", MakeStrategyMarquix},
    {"advice-button", MakeNew<qt::AdviceButton>},
    {"advice-button-list", MakeAdviceButtonWithList},
    {"decision-new", MakeNew<qt::Decision>},
    {"decision-drill", MakeDecisionForDrills},
    {"decision-table", MakeDecisionForTable},
    {"decision-large-advice", MakeDecisionWithLargeAdvice},
    {"decision-description", MakeDecisionWithDescription},
    {"decision-prediction", MakeDecisionWithPrediction},
    {"decision-restricted", MakeDecisionRestricted},
    {"decision-list", MakeDecisionWithList},
    {"decision-bar", MakeToolBar<qt::DecisionBAR>},
    {"decision-bar2", MakeToolBar<qt::DecisionBAR2>},
    {"decision-bar2-vertical", MakeToolBarColumn},
    {"decision-bar2-narrow", MakeToolBarNarrow},
    {"hit-stand-legend", MakeNew<qt::HitStandLegend>},
    {"decision-register", MakeDecisionRegister},
    {"decision-register-breaks", MakeDecisionRegisterWithBreaks},
    {"decision-register-after-advice", MakeDecisionRegisterAfterAdvice},
    {"decision-regilog", MakeDecisionRegiLOGStandard},
    {"decision-regilog-after-advice", MakeDecisionRegiLOGAfterAdvice},
    {"card-count-display-box", MakeCardCountDisplayBoxPlain},
    {"card-count-display-box-yellow", MakeCardCountDisplayBoxYellow},
    {"card-count-display-box-grey", MakeCardCountDisplayBoxGrey},
    {"dual-card-count-display", MakeDualCardCountDisplay},
    {"strategy-data-panel-new", MakeNew<qt::StrategyDataPanel>},
    {"strategy-data-panel", MakeStrategyDataPanel},
    {"spin-counter-new", MakeNew<qt::SpinCounter>},
    {"spin-counter-left", MakeSpinCounterLeft},
    {"spin-counter-right", MakeSpinCounterRight},
    {"spin-counter-top", MakeSpinCounterTop},
    {"spin-counter-bottom", MakeSpinCounterBottom},
    {"count-value-selector", MakeCountValueSelector},
    {"clump-card-list", MakeClumpCardList},
    {"unit-selection-list", MakeNew<qt::UnitSelectionList>},
    {"unit-selection-list-choice", MakeUnitSelectionListWithChoice},
    // New controls: before this line.
};

}  // namespace

std::span<const Scene> ControlScenes() { return AllScenes; }

}  // namespace tactix::tools
