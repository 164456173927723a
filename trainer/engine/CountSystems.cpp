#include "trainer/engine/CountSystems.h"

#include <algorithm>

namespace trainer::engine {

namespace {

/// In whole points: ace, 2 ... 9, ten.
constexpr std::array<std::int8_t, 10> Points(const std::array<int, 10>& points) {
  std::array<std::int8_t, 10> halves{};
  for (std::size_t i = 0; i < points.size(); ++i) halves[i] = static_cast<std::int8_t>(points[i] * HalvesPerPoint);
  return halves;
}

constexpr CountedSevens All = CountedSevens::All;
constexpr CountedSevens Red = CountedSevens::Red;
constexpr TrueCountPer None = TrueCountPer::None;
constexpr TrueCountPer HalfDeck = TrueCountPer::HalfDeck;
constexpr TrueCountPer Deck = TrueCountPer::Deck;

// clang-format off
constexpr CountSystem Systems[] = {
    //                                            A   2   3   4   5   6   7   8   9  10
    {11, "USTON Simple +/-",             Points({-1,  0,  1,  1,  1,  1,  1,  0,  0, -1}), All, 0, None,
     "Uston, Million Dollar Blackjack, 1981"},
    {12, "USTON Advanced +/-",           Points({-1,  0,  1,  1,  1,  1,  1,  0,  0, -1}), All, 0, HalfDeck,
     "Uston, Million Dollar Blackjack, 1981"},
    {13, "USTON Advanced Point Count",   Points({ 0,  1,  2,  2,  3,  2,  2,  1, -1, -3}), All, 0, HalfDeck,
     "Uston, Million Dollar Blackjack, 1981"},
    {14, "USTON \"SS\"",                 Points({-2,  2,  2,  2,  3,  2,  1,  0, -1, -2}), All, -4, None,
     "Uston, Uston SS report, 1986"},
    {15, "Kelvo' A - 5 Count",           Points({-1,  0,  0,  0,  1,  0,  0,  0,  0,  0}), All, 0, None,
     "The house's own"},
    // The next three are in halves.
    {16, "Kelvo' APC",                         {{-4,  3,  3,  4,  5,  4,  2,  0, -1, -4}}, All, 0, Deck,
     "The house's own"},
    {17, "Kelvo' APC2 (Experimental)",         {{ 0,  3,  3,  4,  5,  4,  2,  0, -1, -5}}, All, 0, Deck,
     "The house's own"},
    {18, "Kelvo' SS (in Research)",            {{-4,  3,  3,  4,  5,  4,  3,  0, -1, -4}}, All, -2, None,
     "The house's own"},
    {19, "Kelvo' Clump Count",           Points({-1,  1,  1,  1,  1,  1,  0,  0,  0, -1}), All, 0, None,
     "The house's own"},
    {20, "Kelvo' Clump Track",           Points({-1,  1,  1,  1,  1,  1,  0,  0,  0, -1}), All, 0, HalfDeck,
     "The house's own"},
    {21, "HI-Opt I",                     Points({ 0,  0,  1,  1,  1,  1,  0,  0,  0, -1}), All, 0, Deck,
     "Humble and Cooper, The World's Greatest Blackjack Book, 1980"},
    {22, "HI-Opt II",                    Points({ 0,  1,  1,  2,  2,  1,  1,  0,  0, -2}), All, 0, Deck,
     "Humble, International Gaming report, 1970s"},
    {23, "Revere +/-",                   Points({ 0,  1,  1,  1,  1,  1,  0,  0, -1, -1}), All, 0, None,
     "Revere, Playing Blackjack as a Business, 1971"},
    {24, "Revere PC",                    Points({-2,  1,  2,  2,  2,  2,  1,  0,  0, -2}), All, 0, HalfDeck,
     "Revere, Playing Blackjack as a Business, 1971"},
    {25, "Revere APC",                   Points({-4,  2,  3,  3,  4,  3,  2,  0, -1, -3}), All, 0, Deck,
     "Revere, Advanced Point Count report, 1970s"},
    {29, "Ultimate Count",               Points({-9,  5,  6,  8, 11,  6,  4,  0, -3, -7}), All, 0, Deck,
     "Thorp, Beat the Dealer, 1962"},
    {30, "Canfield Expert",              Points({ 0,  0,  1,  1,  1,  1,  1,  0, -1, -1}), All, 0, Deck,
     "Canfield, Blackjack Your Way to Riches, 1977"},
    {31, "Canfield Master",              Points({ 0,  1,  1,  2,  2,  2,  1,  0, -1, -2}), All, 0, Deck,
     "Canfield, Blackjack Your Way to Riches, 1977"},
    {32, "Snyder's Red-Seven",           Points({-1,  1,  1,  1,  1,  1,  1,  0,  0, -1}), Red, -2, None,
     "Snyder, Blackbelt in Blackjack, 1983"},
    {33, "Snyder's Zen Count",           Points({-1,  1,  1,  2,  2,  2,  1,  0,  0, -2}), All, 0, Deck,
     "Snyder, Blackbelt in Blackjack, 1983"},
    {35, "Omega II",                     Points({ 0,  1,  1,  2,  2,  2,  1,  0, -1, -2}), All, 0, Deck,
     "Carlson, Blackjack for Blood, 1992"},
    {36, "Alan Wilson's Point Count",    Points({-4,  1,  1,  1,  1,  1,  1,  1,  1, -1}), All, 0, None,
     "Wilson, The Casino Gambler's Guide, 1965"},
};
// clang-format on

}  // namespace

std::span<const CountSystem> CountSystems() { return Systems; }

const CountSystem* FindCountSystem(int number) {
  const auto* const found = std::find_if(std::begin(Systems), std::end(Systems),
                                         [&](const CountSystem& each) { return each.number == number; });
  return found == std::end(Systems) ? nullptr : found;
}

}  // namespace trainer::engine
