// The slots of the strategy controls' widget classes.

#include "tactix/strategy/BetStrategyList.h"
#include "tactix/strategy/CountStrategyList.h"
#include "tactix/strategy/StrategyList.h"
#include "tactix/strategy/StrategyListLITE.h"
#include "tactix/strategy/StrategyMarquix.h"
#include "tests/support-qt/ControlSlots.h"

namespace tactix::tests {

namespace {

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

}  // namespace

SlotTable StrategySlots() {
  std::vector<SlotRow> counts =
      Lists("InputCountStrategyDescriptions()", &CountStrategyList::InputCountStrategyDescriptions);
  counts.push_back({"CountValue(CountStrategyPossibilities,int)",
                    {16, 5},
                    CallOf<CountStrategyList>([](CountStrategyList& list) { list.CountValue(16, 5); }),
                    Shows::Nothing});
  return {
      {"BetStrategyList",
       Lists("InputBettingStrategyDescriptions()", &BetStrategyList::InputBettingStrategyDescriptions)},
      {"CountStrategyList", counts},
      {"StrategyList", Lists("InputPlayingStrategyDescriptions()", &StrategyList::InputPlayingStrategyDescriptions)},
      {"StrategyListLITE",
       Lists("InputPlayingStrategyDescriptions()", &StrategyListLITE::InputPlayingStrategyDescriptions)},
      {"StrategyMarquix", Marquees()},
  };
}

}  // namespace tactix::tests
