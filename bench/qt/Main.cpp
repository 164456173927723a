#include <QApplication>

#include "bench/support/Run.h"
#include "tactix/decision/Flash.h"

namespace {

constexpr double FlashLimit = tactix::FlashDuration * 1e6 / 100;  // nanoseconds: 1 % of what it takes

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
    {.what = "  beside a QComboBox, same descriptions",
     .benchmark = "FillStrategyListOnQt",
     .counter = "described",
     .most = 1.25},
    {.what = "  beside a QComboBox, ready texts", .benchmark = "FillStrategyListOnQt", .counter = "bare", .most = 1.25},
    {.what = "  beside a QComboBox, ready texts at once", .benchmark = "FillStrategyListOnQt", .counter = "at once"},
    {.what = "  with ten times the strategies", .benchmark = "FillStrategyListOnQt", .counter = "tenfold", .most = 11},
    {.what = "filling the compact list with 55 strategies on Qt", .benchmark = "FillCompactListOnQt"},
    {.what = "  beside a QComboBox, same descriptions",
     .benchmark = "FillCompactListOnQt",
     .counter = "described",
     .most = 1.25},
    {.what = "  beside a QComboBox, ready texts", .benchmark = "FillCompactListOnQt", .counter = "bare", .most = 1.25},
    {.what = "  beside a QComboBox, ready texts at once", .benchmark = "FillCompactListOnQt", .counter = "at once"},
    {.what = "  with ten times the strategies", .benchmark = "FillCompactListOnQt", .counter = "tenfold", .most = 11},
    {.what = "filling the list with 55 betting strategies on Qt", .benchmark = "FillBettingListOnQt"},
    {.what = "  beside a QComboBox, same descriptions",
     .benchmark = "FillBettingListOnQt",
     .counter = "described",
     .most = 1.25},
    {.what = "  beside a QComboBox, ready texts", .benchmark = "FillBettingListOnQt", .counter = "bare", .most = 1.25},
    {.what = "  beside a QComboBox, ready texts at once", .benchmark = "FillBettingListOnQt", .counter = "at once"},
    {.what = "  with ten times the strategies", .benchmark = "FillBettingListOnQt", .counter = "tenfold", .most = 11},
    {.what = "filling the list with 28 count systems on Qt", .benchmark = "FillCountListOnQt"},
    {.what = "  beside a QComboBox, same descriptions",
     .benchmark = "FillCountListOnQt",
     .counter = "described",
     .most = 1.25},
    {.what = "  beside a QComboBox, ready texts", .benchmark = "FillCountListOnQt", .counter = "bare", .most = 1.25},
    {.what = "  beside a QComboBox, ready texts at once", .benchmark = "FillCountListOnQt", .counter = "at once"},
    {.what = "processor time of a 1.6 s flash", .benchmark = "Flash", .most = FlashLimit},
};

}  // namespace

int main(int argc, char** argv) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  const QApplication application(argc, argv);
  return tactix::bench::Run(argc, argv, Figures);
}
