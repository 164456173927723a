// The slots of the scores', counts' and values' widget classes.

#include "tactix/counting/CardCountDisplayBox.h"
#include "tactix/counting/DefaultStrategyData.h"
#include "tactix/counting/DualCardCountDisplay.h"
#include "tactix/counting/SpinCounter.h"
#include "tactix/counting/StrategyDataPanel.h"
#include "tactix/scoring/DecisionRegiLOG.h"
#include "tactix/scoring/DecisionRegister.h"
#include "tests/support-qt/ControlSlots.h"
#include "tests/support/FullDataBlock.h"

namespace tactix::tests {

namespace {

ObjectRef TheDataBlock() {
  static const ObjectRef block = FullDataBlock();
  return block;
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
      // The only one that needs a block of the panel's own; here the hook that makes it fails. Last, since that stays.
      {"StrategyDataBlockData(tactix::ObjectRef)",
       {Held(TheDataBlock())},
       CallOf<C>([](C& panel) { panel.StrategyDataBlockData(TheDataBlock()); }),
       Shows::Nothing,
       [](Control&) { DefaultStrategyData::CreateWith([]() -> ObjectRef { throw Error(1234); }); }},
  };
}

}  // namespace

SlotTable ScoreAndCountSlots() {
  const auto shadow = QuestionOf<CardCountDisplayBox>([](CardCountDisplayBox& box) {
    box.CountBoxType(1);
    return std::string();
  });
  const auto shadows = QuestionOf<DualCardCountDisplay>([](DualCardCountDisplay& display) {
    display.Children.TrueCountDisplay.CountBoxType(2);
    return std::string();
  });
  return {
      {"CardCountDisplayBox",
       {{"CountValue(int)", {-12}, CallOf<CardCountDisplayBox>([](CardCountDisplayBox& box) { box.CountValue(-12); })},
        {"ShadowBoxStatus(int)",
         {65535},
         CallOf<CardCountDisplayBox>([](CardCountDisplayBox& box) { box.ShadowBoxStatus(65535); }),
         Shows::Yes,
         nullptr,
         shadow}}},
      {"ClumpCardList", {}},
      {"CountValueSelector", {}},
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
      {"SpinCounter",
       {{"ResetSizeToDefault()",
         {},
         CallOf<SpinCounter>([](SpinCounter& counter) { counter.ResetSizeToDefault(); }),
         Shows::Yes,
         ActionOf<SpinCounter>([](SpinCounter& counter) { counter.Extender().Height(900); })}}},
      {"StrategyDataPanel", Panels()},
      {"UnitSelectionList", {}},
  };
}

SlotTable ControlSlots() {
  SlotTable all = ScoreAndCountSlots();
  all.merge(StrategySlots());
  all.merge(DecisionSlots());
  return all;
}

}  // namespace tactix::tests
