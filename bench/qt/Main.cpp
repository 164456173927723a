#include <QApplication>

#include "bench/support/Run.h"

namespace {

constexpr double FlashLimit = 16e6;  // 1 % of the 1.6 s that it takes

constexpr tactix::bench::Figure Figures[] = {
    {.what = "one decision on Qt", .benchmark = "Decision"},
    {.what = "  beside a hand-written panel", .benchmark = "Decision", .counter = "beside", .most = 1.2},
    {.what = "one decision on Qt, painted", .benchmark = "DecisionPainted"},
    {.what = "  beside a hand-written panel", .benchmark = "DecisionPainted", .counter = "beside", .most = 1.2},
    {.what = "setting up a toolbar on Qt", .benchmark = "SetUpToolBar"},
    {.what = "  beside a hand-written QToolBar", .benchmark = "SetUpToolBar", .counter = "beside", .most = 1.2},
    {.what = "setting up a toolbar on Qt, painted", .benchmark = "SetUpToolBarPainted"},
    {.what = "  beside a hand-written QToolBar", .benchmark = "SetUpToolBarPainted", .counter = "beside", .most = 1.2},
    {.what = "raising an event with one listener", .benchmark = "RaiseEvent"},
    {.what = "  beside a Qt direct connection", .benchmark = "RaiseEvent", .beside = "EmitSignal", .most = 0.5},
    {.what = "filling the list with 55 strategies on Qt", .benchmark = "FillStrategyListOnQt"},
    {.what = "  beside a QComboBox filled from the same descriptions",
     .benchmark = "FillStrategyListOnQt",
     .beside = "FillComboBoxWithStrategies",
     .most = 1.25},
    {.what = "  beside a QComboBox with ready texts",
     .benchmark = "FillStrategyListOnQt",
     .beside = "FillComboBoxWithStrategyTexts",
     .most = 1.25},
    {.what = "  ten times the strategies",
     .benchmark = "FillStrategyListTenfoldOnQt",
     .beside = "FillStrategyListOnQt",
     .most = 11},
    {.what = "filling the compact list with 55 strategies on Qt", .benchmark = "FillCompactListOnQt"},
    {.what = "  beside a QComboBox filled from the same descriptions",
     .benchmark = "FillCompactListOnQt",
     .beside = "FillComboBoxWithStrategies",
     .most = 1.25},
    {.what = "  beside a QComboBox with ready texts",
     .benchmark = "FillCompactListOnQt",
     .beside = "FillComboBoxWithStrategyTexts",
     .most = 1.25},
    {.what = "  ten times the strategies",
     .benchmark = "FillCompactListTenfoldOnQt",
     .beside = "FillCompactListOnQt",
     .most = 11},
    {.what = "filling the list with 55 betting strategies on Qt", .benchmark = "FillBettingListOnQt"},
    {.what = "  beside a QComboBox filled from the same descriptions",
     .benchmark = "FillBettingListOnQt",
     .beside = "FillComboBoxWithBets",
     .most = 1.25},
    {.what = "  beside a QComboBox with ready texts",
     .benchmark = "FillBettingListOnQt",
     .beside = "FillComboBoxWithBetTexts",
     .most = 1.25},
    {.what = "  ten times the strategies",
     .benchmark = "FillBettingListTenfoldOnQt",
     .beside = "FillBettingListOnQt",
     .most = 11},
    {.what = "filling the list with 28 count systems on Qt", .benchmark = "FillCountListOnQt"},
    {.what = "  beside a QComboBox filled from the same descriptions",
     .benchmark = "FillCountListOnQt",
     .beside = "FillComboBoxWithCounts",
     .most = 1.25},
    {.what = "  beside a QComboBox with ready texts",
     .benchmark = "FillCountListOnQt",
     .beside = "FillComboBoxWithCountTexts",
     .most = 1.25},
    {.what = "processor time of a 1.6 s flash", .benchmark = "Flash", .most = FlashLimit},
};

}  // namespace

int main(int argc, char** argv) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  const QApplication application(argc, argv);
  return tactix::bench::Run(argc, argv, Figures);
}
