#include "bench/support/Run.h"

namespace {

constexpr tactix::bench::Figure Figures[] = {
    {.what = "one decision, without a toolkit", .benchmark = "DecisionCycle", .most = 2000},
    {.what = "  heap allocations of it", .benchmark = "DecisionCycle", .counter = "allocations", .most = 0},
    {.what = "raising an event with one listener", .benchmark = "RaiseWithOneListener"},
    {.what = "filling the list with 55 strategies, without a toolkit", .benchmark = "FillStrategyList"},
};

}  // namespace

int main(int argc, char** argv) { return tactix::bench::Run(argc, argv, Figures); }
