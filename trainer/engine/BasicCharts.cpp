#include "trainer/engine/BasicCharts.h"

namespace trainer::engine {

namespace {

using enum ChartCell;

// clang-format off

constexpr BasicChart OneDeckS17 = {
    .hard = {{
        {"7 or less",  {H , H , H , H , H , H , H , H , H , H}},
        {"8",          {H , H , H , Dh, Dh, H , H , H , H , H}},
        {"9",          {Dh, Dh, Dh, Dh, Dh, H , H , H , H , H}},
        {"10",         {Dh, Dh, Dh, Dh, Dh, Dh, Dh, Dh, H , H}},
        {"11",         {Dh, Dh, Dh, Dh, Dh, Dh, Dh, Dh, Dh, Dh}},
        {"12",         {H , H , S , S , S , H , H , H , H , H}},
        {"13",         {S , S , S , S , S , H , H , H , H , H}},
        {"14",         {S , S , S , S , S , H , H , H , H , H}},
        {"15",         {S , S , S , S , S , H , H , H , H , H}},
        {"16",         {S , S , S , S , S , H , H , H , Rh, Rh}},
        {"17",         {S , S , S , S , S , S , S , S , S , S}},
        {"18 or more", {S , S , S , S , S , S , S , S , S , S}},
    }},
    .soft = {{
        {"12",         {H , H , H , Dh, Dh, H , H , H , H , H}},
        {"13",         {H , H , Dh, Dh, Dh, H , H , H , H , H}},
        {"14",         {H , H , Dh, Dh, Dh, H , H , H , H , H}},
        {"15",         {H , H , Dh, Dh, Dh, H , H , H , H , H}},
        {"16",         {H , H , Dh, Dh, Dh, H , H , H , H , H}},
        {"17",         {Dh, Dh, Dh, Dh, Dh, H , H , H , H , H}},
        {"18",         {S , Ds, Ds, Ds, Ds, S , S , H , H , S}},
        {"19",         {S , S , S , S , Ds, S , S , S , S , S}},
        {"20 or more", {S , S , S , S , S , S , S , S , S , S}},
    }},
    .pair = {{
        {"A,A",   {P , P , P , P , P , P , P , P , P , P}},
        {"2,2",   {Pd, P , P , P , P , P , T , T , T , T}},
        {"3,3",   {Pd, Pd, P , P , P , P , Pd, T , T , T}},
        {"4,4",   {T , T , Pd, Pd, Pd, T , T , T , T , T}},
        {"5,5",   {T , T , T , T , T , T , T , T , T , T}},
        {"6,6",   {P , P , P , P , P , Pd, T , T , T , T}},
        {"7,7",   {P , P , P , P , P , P , Pd, T , Rs, T}},
        {"8,8",   {P , P , P , P , P , P , P , P , P , P}},
        {"9,9",   {P , P , P , P , P , T , P , P , T , T}},
        {"10,10", {T , T , T , T , T , T , T , T , T , T}},
    }},
};

constexpr BasicChart OneDeckH17 = {
    .hard = {{
        {"7 or less",  {H , H , H , H , H , H , H , H , H , H}},
        {"8",          {H , H , H , Dh, Dh, H , H , H , H , H}},
        {"9",          {Dh, Dh, Dh, Dh, Dh, H , H , H , H , H}},
        {"10",         {Dh, Dh, Dh, Dh, Dh, Dh, Dh, Dh, H , H}},
        {"11",         {Dh, Dh, Dh, Dh, Dh, Dh, Dh, Dh, Dh, Dh}},
        {"12",         {H , H , S , S , S , H , H , H , H , H}},
        {"13",         {S , S , S , S , S , H , H , H , H , H}},
        {"14",         {S , S , S , S , S , H , H , H , H , H}},
        {"15",         {S , S , S , S , S , H , H , H , H , Rh}},
        {"16",         {S , S , S , S , S , H , H , H , Rh, Rh}},
        {"17",         {S , S , S , S , S , S , S , S , S , Rs}},
        {"18 or more", {S , S , S , S , S , S , S , S , S , S}},
    }},
    .soft = {{
        {"12",         {H , H , H , Dh, Dh, H , H , H , H , H}},
        {"13",         {H , H , Dh, Dh, Dh, H , H , H , H , H}},
        {"14",         {H , H , Dh, Dh, Dh, H , H , H , H , H}},
        {"15",         {H , H , Dh, Dh, Dh, H , H , H , H , H}},
        {"16",         {H , H , Dh, Dh, Dh, H , H , H , H , H}},
        {"17",         {Dh, Dh, Dh, Dh, Dh, H , H , H , H , H}},
        {"18",         {S , Ds, Ds, Ds, Ds, S , S , H , H , H}},
        {"19",         {S , S , S , S , Ds, S , S , S , S , S}},
        {"20 or more", {S , S , S , S , S , S , S , S , S , S}},
    }},
    .pair = {{
        {"A,A",   {P , P , P , P , P , P , P , P , P , P}},
        {"2,2",   {Pd, P , P , P , P , P , T , T , T , T}},
        {"3,3",   {Pd, Pd, P , P , P , P , Pd, T , T , T}},
        {"4,4",   {T , T , Pd, Pd, Pd, T , T , T , T , T}},
        {"5,5",   {T , T , T , T , T , T , T , T , T , T}},
        {"6,6",   {P , P , P , P , P , Pd, T , T , T , T}},
        {"7,7",   {P , P , P , P , P , P , Pd, T , Rs, Rh}},
        {"8,8",   {P , P , P , P , P , P , P , P , P , P}},
        {"9,9",   {P , P , P , P , P , T , P , P , T , Pd}},
        {"10,10", {T , T , T , T , T , T , T , T , T , T}},
    }},
};

constexpr BasicChart TwoDecksS17 = {
    .hard = {{
        {"7 or less",  {H , H , H , H , H , H , H , H , H , H}},
        {"8",          {H , H , H , H , H , H , H , H , H , H}},
        {"9",          {Dh, Dh, Dh, Dh, Dh, H , H , H , H , H}},
        {"10",         {Dh, Dh, Dh, Dh, Dh, Dh, Dh, Dh, H , H}},
        {"11",         {Dh, Dh, Dh, Dh, Dh, Dh, Dh, Dh, Dh, Dh}},
        {"12",         {H , H , S , S , S , H , H , H , H , H}},
        {"13",         {S , S , S , S , S , H , H , H , H , H}},
        {"14",         {S , S , S , S , S , H , H , H , H , H}},
        {"15",         {S , S , S , S , S , H , H , H , Rh, H}},
        {"16",         {S , S , S , S , S , H , H , H , Rh, Rh}},
        {"17",         {S , S , S , S , S , S , S , S , S , S}},
        {"18 or more", {S , S , S , S , S , S , S , S , S , S}},
    }},
    .soft = {{
        {"12",         {H , H , H , Dh, Dh, H , H , H , H , H}},
        {"13",         {H , H , H , Dh, Dh, H , H , H , H , H}},
        {"14",         {H , H , H , Dh, Dh, H , H , H , H , H}},
        {"15",         {H , H , Dh, Dh, Dh, H , H , H , H , H}},
        {"16",         {H , H , Dh, Dh, Dh, H , H , H , H , H}},
        {"17",         {H , Dh, Dh, Dh, Dh, H , H , H , H , H}},
        {"18",         {S , Ds, Ds, Ds, Ds, S , S , H , H , H}},
        {"19",         {S , S , S , S , S , S , S , S , S , S}},
        {"20 or more", {S , S , S , S , S , S , S , S , S , S}},
    }},
    .pair = {{
        {"A,A",   {P , P , P , P , P , P , P , P , P , P}},
        {"2,2",   {Pd, Pd, P , P , P , P , T , T , T , T}},
        {"3,3",   {Pd, Pd, P , P , P , P , T , T , T , T}},
        {"4,4",   {T , T , T , Pd, Pd, T , T , T , T , T}},
        {"5,5",   {T , T , T , T , T , T , T , T , T , T}},
        {"6,6",   {P , P , P , P , P , Pd, T , T , T , T}},
        {"7,7",   {P , P , P , P , P , P , Pd, T , T , T}},
        {"8,8",   {P , P , P , P , P , P , P , P , P , P}},
        {"9,9",   {P , P , P , P , P , T , P , P , T , T}},
        {"10,10", {T , T , T , T , T , T , T , T , T , T}},
    }},
};

constexpr BasicChart TwoDecksH17 = {
    .hard = {{
        {"7 or less",  {H , H , H , H , H , H , H , H , H , H}},
        {"8",          {H , H , H , H , H , H , H , H , H , H}},
        {"9",          {Dh, Dh, Dh, Dh, Dh, H , H , H , H , H}},
        {"10",         {Dh, Dh, Dh, Dh, Dh, Dh, Dh, Dh, H , H}},
        {"11",         {Dh, Dh, Dh, Dh, Dh, Dh, Dh, Dh, Dh, Dh}},
        {"12",         {H , H , S , S , S , H , H , H , H , H}},
        {"13",         {S , S , S , S , S , H , H , H , H , H}},
        {"14",         {S , S , S , S , S , H , H , H , H , H}},
        {"15",         {S , S , S , S , S , H , H , H , Rh, Rh}},
        {"16",         {S , S , S , S , S , H , H , H , Rh, Rh}},
        {"17",         {S , S , S , S , S , S , S , S , S , Rs}},
        {"18 or more", {S , S , S , S , S , S , S , S , S , S}},
    }},
    .soft = {{
        {"12",         {H , H , H , Dh, Dh, H , H , H , H , H}},
        {"13",         {H , H , H , Dh, Dh, H , H , H , H , H}},
        {"14",         {H , H , Dh, Dh, Dh, H , H , H , H , H}},
        {"15",         {H , H , Dh, Dh, Dh, H , H , H , H , H}},
        {"16",         {H , H , Dh, Dh, Dh, H , H , H , H , H}},
        {"17",         {H , Dh, Dh, Dh, Dh, H , H , H , H , H}},
        {"18",         {Ds, Ds, Ds, Ds, Ds, S , S , H , H , H}},
        {"19",         {S , S , S , S , Ds, S , S , S , S , S}},
        {"20 or more", {S , S , S , S , S , S , S , S , S , S}},
    }},
    .pair = {{
        {"A,A",   {P , P , P , P , P , P , P , P , P , P}},
        {"2,2",   {Pd, Pd, P , P , P , P , T , T , T , T}},
        {"3,3",   {Pd, Pd, P , P , P , P , T , T , T , T}},
        {"4,4",   {T , T , T , Pd, Pd, T , T , T , T , T}},
        {"5,5",   {T , T , T , T , T , T , T , T , T , T}},
        {"6,6",   {P , P , P , P , P , Pd, T , T , T , T}},
        {"7,7",   {P , P , P , P , P , P , Pd, T , T , T}},
        {"8,8",   {P , P , P , P , P , P , P , P , P , Rd}},
        {"9,9",   {P , P , P , P , P , T , P , P , T , T}},
        {"10,10", {T , T , T , T , T , T , T , T , T , T}},
    }},
};

constexpr BasicChart ManyDecksS17 = {
    .hard = {{
        {"7 or less",  {H , H , H , H , H , H , H , H , H , H}},
        {"8",          {H , H , H , H , H , H , H , H , H , H}},
        {"9",          {H , Dh, Dh, Dh, Dh, H , H , H , H , H}},
        {"10",         {Dh, Dh, Dh, Dh, Dh, Dh, Dh, Dh, H , H}},
        {"11",         {Dh, Dh, Dh, Dh, Dh, Dh, Dh, Dh, Dh, H}},
        {"12",         {H , H , S , S , S , H , H , H , H , H}},
        {"13",         {S , S , S , S , S , H , H , H , H , H}},
        {"14",         {S , S , S , S , S , H , H , H , H , H}},
        {"15",         {S , S , S , S , S , H , H , H , Rh, H}},
        {"16",         {S , S , S , S , S , H , H , Rh, Rh, Rh}},
        {"17",         {S , S , S , S , S , S , S , S , S , S}},
        {"18 or more", {S , S , S , S , S , S , S , S , S , S}},
    }},
    .soft = {{
        {"12",         {H , H , H , H , Dh, H , H , H , H , H}},
        {"13",         {H , H , H , Dh, Dh, H , H , H , H , H}},
        {"14",         {H , H , H , Dh, Dh, H , H , H , H , H}},
        {"15",         {H , H , Dh, Dh, Dh, H , H , H , H , H}},
        {"16",         {H , H , Dh, Dh, Dh, H , H , H , H , H}},
        {"17",         {H , Dh, Dh, Dh, Dh, H , H , H , H , H}},
        {"18",         {S , Ds, Ds, Ds, Ds, S , S , H , H , H}},
        {"19",         {S , S , S , S , S , S , S , S , S , S}},
        {"20 or more", {S , S , S , S , S , S , S , S , S , S}},
    }},
    .pair = {{
        {"A,A",   {P , P , P , P , P , P , P , P , P , P}},
        {"2,2",   {Pd, Pd, P , P , P , P , T , T , T , T}},
        {"3,3",   {Pd, Pd, P , P , P , P , T , T , T , T}},
        {"4,4",   {T , T , T , Pd, Pd, T , T , T , T , T}},
        {"5,5",   {T , T , T , T , T , T , T , T , T , T}},
        {"6,6",   {Pd, P , P , P , P , T , T , T , T , T}},
        {"7,7",   {P , P , P , P , P , P , T , T , T , T}},
        {"8,8",   {P , P , P , P , P , P , P , P , P , P}},
        {"9,9",   {P , P , P , P , P , T , P , P , T , T}},
        {"10,10", {T , T , T , T , T , T , T , T , T , T}},
    }},
};

constexpr BasicChart ManyDecksH17 = {
    .hard = {{
        {"7 or less",  {H , H , H , H , H , H , H , H , H , H}},
        {"8",          {H , H , H , H , H , H , H , H , H , H}},
        {"9",          {H , Dh, Dh, Dh, Dh, H , H , H , H , H}},
        {"10",         {Dh, Dh, Dh, Dh, Dh, Dh, Dh, Dh, H , H}},
        {"11",         {Dh, Dh, Dh, Dh, Dh, Dh, Dh, Dh, Dh, Dh}},
        {"12",         {H , H , S , S , S , H , H , H , H , H}},
        {"13",         {S , S , S , S , S , H , H , H , H , H}},
        {"14",         {S , S , S , S , S , H , H , H , H , H}},
        {"15",         {S , S , S , S , S , H , H , H , Rh, Rh}},
        {"16",         {S , S , S , S , S , H , H , Rh, Rh, Rh}},
        {"17",         {S , S , S , S , S , S , S , S , S , Rs}},
        {"18 or more", {S , S , S , S , S , S , S , S , S , S}},
    }},
    .soft = {{
        {"12",         {H , H , H , H , Dh, H , H , H , H , H}},
        {"13",         {H , H , H , Dh, Dh, H , H , H , H , H}},
        {"14",         {H , H , H , Dh, Dh, H , H , H , H , H}},
        {"15",         {H , H , Dh, Dh, Dh, H , H , H , H , H}},
        {"16",         {H , H , Dh, Dh, Dh, H , H , H , H , H}},
        {"17",         {H , Dh, Dh, Dh, Dh, H , H , H , H , H}},
        {"18",         {Ds, Ds, Ds, Ds, Ds, S , S , H , H , H}},
        {"19",         {S , S , S , S , Ds, S , S , S , S , S}},
        {"20 or more", {S , S , S , S , S , S , S , S , S , S}},
    }},
    .pair = {{
        {"A,A",   {P , P , P , P , P , P , P , P , P , P}},
        {"2,2",   {Pd, Pd, P , P , P , P , T , T , T , T}},
        {"3,3",   {Pd, Pd, P , P , P , P , T , T , T , T}},
        {"4,4",   {T , T , T , Pd, Pd, T , T , T , T , T}},
        {"5,5",   {T , T , T , T , T , T , T , T , T , T}},
        {"6,6",   {Pd, P , P , P , P , T , T , T , T , T}},
        {"7,7",   {P , P , P , P , P , P , T , T , T , T}},
        {"8,8",   {P , P , P , P , P , P , P , P , P , Rp}},
        {"9,9",   {P , P , P , P , P , T , P , P , T , T}},
        {"10,10", {T , T , T , T , T , T , T , T , T , T}},
    }},
};

// clang-format on

}  // namespace

const BasicChart& ChartFor(const Rules& rules) {
  if (rules.decks == 1) return rules.dealerHitsSoft17 ? OneDeckH17 : OneDeckS17;
  if (rules.decks == 2) return rules.dealerHitsSoft17 ? TwoDecksH17 : TwoDecksS17;
  return rules.dealerHitsSoft17 ? ManyDecksH17 : ManyDecksS17;
}

}  // namespace trainer::engine
