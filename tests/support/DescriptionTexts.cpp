#include "tests/support/DescriptionTexts.h"

#include <cstddef>
#include <iterator>
#include <string_view>

namespace tactix::tests {

namespace {

constexpr std::string_view PlayingTexts[] = {"",
                                             "no comma",
                                             "note,one comma",
                                             "note,Basic,False True",
                                             "note,Basic Strategy,False False",
                                             "xy~o,Lk}sm,True True",
                                             "xy~o,Lk}sm,True False",
                                             "note,Basic,maybe True",
                                             "note,Basic,False maybe",
                                             "note,\x09,True True",
                                             "note,Not Present,0 1",
                                             "note,,0 1",
                                             "note,Select a Strategy,0 -1",
                                             "\xE2\x99\xA0 note,\xC3\x89t\xC3\xA9,0 1"};

constexpr std::string_view BettingTexts[] = {"",
                                             "no comma",
                                             "note,one comma",
                                             "note,Flat,1",
                                             "note,One to four,0",
                                             "xy~o,Pvk~,1\\",
                                             "xy~o,Pvk~,0 and \\",
                                             "xy~o,Pvk~,\\1",
                                             "note,\x09,1\\",
                                             "note,Flat,",
                                             "note,Flat,x",
                                             "note,Not Present,1",
                                             "note,,1"};

constexpr std::string_view CountTexts[] = {"",
                                           "no comma",
                                           "note,one comma",
                                           "note,HI-Opt I,False True 1 2 3 4 ",
                                           "note,HI-Opt II,False False ",
                                           "xy~o,Rs7Yz~,True True 0 0 -1 100 ",
                                           "xy~o,Rs7Yz~,True False ",
                                           "note,Name,False True 1 2 3 4 5 ",
                                           "note,Name,False True 1 2 3 4",
                                           "note,Name,False True 1 2 3 ",
                                           "note,Name,False True 1 2 3 40000 ",
                                           "note,Name,False True one two ",
                                           "note,Name,True",
                                           "note,Name,maybe True ",
                                           "note,Not Present,0 1 1 2 3 4 ",
                                           "note,,0 1 1 2 3 4 "};

constexpr std::string_view RealTexts[] = {
    "Four to eight decks; the dealer stands on soft 17,Basic Strategy,False True",
    "Plays as the dealer does,Mimic the Dealer,0 -1",
    "P\x79\x7F|*~y*osqr~*nomu},Lk}sm*]~|k~oq\x83,True True",
    "The same bet on every hand,Flat Bet,1",
    "Up by one unit after a win,One to Four,0",
    "Rkvp*~ro*lox,Pvk~*Lo~,1 \\",
    "A balanced count of level 1,HI-Opt I,False True 0 1 1 52 ",
    "An unbalanced count; start at minus four,Snyder's Red-Seven,False True -4 0 1 100 ",
    "K*myx~,Sx*|o}ok|mr,True True 0 0 0 0 ",
    "Not yet,Kelvo' Clump Count,False False ",
};

constexpr std::string_view Pieces[] = {
    ",",    " ",    "  ", "\\",    "0",           "1",    "-1", "True", "False",    "32",   "1E5",
    "&HFF", ".5",   "-",  "40000", "Not Present", "\x0A", "\t", "\x09", "\xC3\xA9", "\xFF", "\xF0\x9F\x82\xA1",
    "\xC3", "\x80", ",,", " ,",    ", ",          "maybe"};

template <std::size_t Count>
std::string OneOf(SequenceRandom& random, const std::string_view (&texts)[Count]) {
  return std::string(texts[random.Below(static_cast<std::uint32_t>(Count))]);
}

void Mutate(std::string& text, SequenceRandom& random) {
  const std::size_t at = random.Below(static_cast<std::uint32_t>(text.size() + 1));
  const std::size_t length = random.Below(random.OneIn(4) ? 40 : 4);
  switch (random.Below(6)) {
    case 0:
      text.insert(at, OneOf(random, Pieces));
      break;
    case 1:
      text.erase(at, length);
      break;
    case 2:
      text.insert(at, text.substr(at, length));
      break;
    case 3:
      if (at < text.size()) text[at] = static_cast<char>(random.Below(256));
      break;
    case 4:
      text.insert(at, random.Below(1100), static_cast<char>('0' + random.Below(3)));
      break;
    default:
      text.replace(at, length, OneOf(random, Pieces));
      break;
  }
}

}  // namespace

std::string AnyPlayingDescription(SequenceRandom& random) { return OneOf(random, PlayingTexts); }

std::string AnyBettingDescription(SequenceRandom& random) { return OneOf(random, BettingTexts); }

std::string AnyCountDescription(SequenceRandom& random) { return OneOf(random, CountTexts); }

std::string MutatedDescription(SequenceRandom& random) {
  std::string text = OneOf(random, RealTexts);
  for (std::uint32_t i = random.Below(5); i > 0; --i) Mutate(text, random);
  return text;
}

}  // namespace tactix::tests
