#include "trainer/engine/Strategy.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <optional>
#include <span>
#include <stdexcept>

#include "trainer/engine/BasicCharts.h"
#include "trainer/engine/Dealer.h"

namespace trainer::engine {

namespace {

constexpr std::array EveryDecision = {Decision::Hit, Decision::Stand, Decision::Split, Decision::Double,
                                      Decision::Surrender};

/// The plays that a square asks for, the first choice first. Indexed by ChartCell; the cells that depend on the rules
/// have no row, they are settled before.
struct Wishes {
  ChartCell cell;
  std::array<Decision, 2> plays;
  std::size_t count;
};

constexpr std::array CellWishes = {
    Wishes{ChartCell::H, {Decision::Hit}, 1},
    Wishes{ChartCell::S, {Decision::Stand}, 1},
    Wishes{ChartCell::Dh, {Decision::Double, Decision::Hit}, 2},
    Wishes{ChartCell::Ds, {Decision::Double, Decision::Stand}, 2},
    Wishes{ChartCell::Rh, {Decision::Surrender, Decision::Hit}, 2},
    Wishes{ChartCell::Rs, {Decision::Surrender, Decision::Stand}, 2},
    Wishes{ChartCell::Rp, {Decision::Surrender, Decision::Split}, 2},
    Wishes{ChartCell::P, {Decision::Split}, 1},
    Wishes{ChartCell::T, {}, 0},
};

constexpr bool StandsInOrder() {
  for (std::size_t index = 0; index < CellWishes.size(); ++index) {
    if (static_cast<std::size_t>(CellWishes[index].cell) != index) return false;
  }
  return true;
}
static_assert(StandsInOrder());

ChartCell Settled(ChartCell cell, const Rules& rules) {
  if (cell == ChartCell::Pd) return rules.doubleAfterSplit ? ChartCell::P : ChartCell::T;
  if (cell == ChartCell::Rd) return rules.doubleAfterSplit ? ChartCell::P : ChartCell::Rp;
  return cell;
}

std::optional<Decision> FirstLegal(ChartCell cell, const LegalPlays& legal, const Rules& rules) {
  const Wishes& wishes = CellWishes[static_cast<std::size_t>(Settled(cell, rules))];
  for (const Decision play : std::span(wishes.plays).first(wishes.count)) {
    if (legal.Allows(play)) return play;
  }
  return std::nullopt;
}

std::size_t PairRow(const Hand& hand) { return static_cast<std::size_t>(PointsOf(hand.Cards()[0].rank) - 1); }
std::size_t SoftRow(const Hand& hand) { return static_cast<std::size_t>(std::clamp(hand.Total(), 12, 20) - 12); }
std::size_t HardRow(const Hand& hand) { return static_cast<std::size_t>(std::clamp(hand.Total(), 7, 18) - 7); }

}  // namespace

Decision Strategy::Advise(const Hand& hand, Rank upCard, const LegalPlays& legal, const Rules& rules) const {
  if (legal.IsEmpty()) throw std::invalid_argument("there is no legal play to advise");
  const Decision wish = Wish(hand, upCard, legal, rules);
  if (legal.Allows(wish)) return wish;
  for (const Decision play : EveryDecision) {
    if (legal.Allows(play)) return play;
  }
  return Decision::Stand;
}

Decision BasicStrategy::Wish(const Hand& hand, Rank upCard, const LegalPlays& legal, const Rules& rules) const {
  const BasicChart& chart = ChartFor(rules);
  const std::size_t column = ColumnOf(upCard);
  if (hand.IsPair()) {
    const auto play = FirstLegal(chart.pair[PairRow(hand)].cells[column], legal, rules);
    if (play) return *play;
  }
  const ChartRow& row = hand.IsSoft() ? chart.soft[SoftRow(hand)] : chart.hard[HardRow(hand)];
  return FirstLegal(row.cells[column], legal, rules).value_or(Decision::Hit);
}

Decision MimicTheDealer::Wish(const Hand& hand, Rank, const LegalPlays&, const Rules& rules) const {
  return DealerDraws(hand, rules) ? Decision::Hit : Decision::Stand;
}

Decision NeverBust::Wish(const Hand& hand, Rank, const LegalPlays&, const Rules&) const {
  const int standsFrom = hand.IsSoft() ? 18 : 12;
  return hand.Total() >= standsFrom ? Decision::Stand : Decision::Hit;
}

}  // namespace trainer::engine
