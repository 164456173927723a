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
    {.what = "  a bare QComboBox with ready texts", .benchmark = "FillComboBox"},
    {.what = "processor time of a 1.6 s flash", .benchmark = "Flash", .most = FlashLimit},
};

}  // namespace

int main(int argc, char** argv) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  const QApplication application(argc, argv);
  return tactix::bench::Run(argc, argv, Figures);
}
