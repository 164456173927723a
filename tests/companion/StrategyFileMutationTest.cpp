#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>
#include <memory>
#include <string>

#include "tactix/companion/Companion.h"
#include "tactix/companion/IniStrategyCatalogue.h"
#include "tactix/platform/private/Utf8.h"
#include "tactix/strategy/StrategyListData.h"
#include "tests/support/RandomSequence.h"

namespace tactix::tests {
namespace {

using companion::BettingPlan;
using companion::HandKind;
using companion::IniError;
using companion::IniStrategyCatalogue;
using companion::PlayingTable;

struct Mutated {
  std::string text{companion::DefaultStrategies()};

  std::size_t Anywhere(SequenceRandom& random) const {
    return random.Below(static_cast<std::uint32_t>(text.size() + 1));
  }
  std::size_t LineStart(SequenceRandom& random) const {
    const std::size_t end = text.find('\n', Anywhere(random));
    return end == std::string::npos ? text.size() : end + 1;
  }
  std::string LineAt(std::size_t start) const { return text.substr(start, text.find('\n', start) - start + 1); }
};

int refused = 0;
int taken = 0;

std::string WhatIsWrongWithBet(IniStrategyCatalogue& catalogue, std::int16_t number) {
  const std::string description = catalogue.DescribeBettingStrategy(number);
  if (description.empty())
    return number <= catalogue.GetStrategyRange().HighestBettingStrategy && number >= -1 &&
                   !catalogue.BettingCaptionOf(-1).empty()
               ? "gap in the betting strategies"
               : "";
  if (catalogue.DescribeStrategy(number).empty()) return "betting strategy without a playing strategy";
  if (!IsUtf8(description) || CountUtf8(description) >= DescriptionBuffer::Width) return "bad bet";
  if (std::count(description.begin(), description.end(), ',') != 2) return "bad fields of a bet";
  const char presence = description[description.rfind(',') + 1];
  if (presence != '0' && presence != '1') return "bad presence of a bet";
  const BettingPlan* const plan = catalogue.BettingPlanOf(number);
  if (plan && (plan->UnitsFor(7, 0) < 1 || plan->UnitsFor(-7, 7) > BettingPlan::MostUnits)) return "bad plan";
  return {};
}

std::string WhatIsWrongWithCount(IniStrategyCatalogue& catalogue, std::int16_t number) {
  std::string description;
  catalogue.DescribeStrategy(number, description);
  if (description.empty()) return catalogue.CountSettingsOf(number) ? "settings of no count" : "";
  if (!IsUtf8(description) || CountUtf8(description) >= DescriptionBuffer::Width) return "bad count";
  if (std::count(description.begin(), description.end(), ',') != 2) return "bad fields of a count";
  const std::string fields = description.substr(description.rfind(',') + 1);
  if (std::count(fields.begin(), fields.end(), ' ') != 6 || !fields.ends_with(' ')) return "bad blanks of a count";
  return {};
}

/// A file is taken, and then every answer can be used, or it is refused with an error that names the file and one of
/// its lines.
std::string WhatIsWrong(Mutated& mutated) {
  try {
    IniStrategyCatalogue catalogue(mutated.text, "m.ini");
    ++taken;
    for (std::int16_t number = -3; number < 60; ++number) {
      std::int16_t asked = number;
      const std::string description = catalogue.DescribeStrategy(asked);
      if (!IsUtf8(description) || CountUtf8(description) >= DescriptionBuffer::Width) return "bad description";
      if (!description.empty() && std::count(description.begin(), description.end(), ',') != 2) return "bad fields";
      const PlayingTable* const table = catalogue.TableOf(number);
      if ((table == nullptr) != catalogue.PlaysOf(number).empty()) return "table missing";
      if (table) static_cast<void>(table->Find(HandKind::Pair, PlayingTable::Ace, PlayingTable::Ace));
      if (const std::string wrong = WhatIsWrongWithBet(catalogue, number); !wrong.empty()) return wrong;
      if (const std::string wrong = WhatIsWrongWithCount(catalogue, number); !wrong.empty()) return wrong;
    }
    return {};
  } catch (const IniError& error) {
    ++refused;
    const auto lines = std::count(mutated.text.begin(), mutated.text.end(), '\n') + 1;
    if (error.Line() < 0 || error.Line() > lines) return "line " + std::to_string(error.Line());
    const std::string place = error.Line() == 0 ? "m.ini: " : "m.ini:" + std::to_string(error.Line()) + ": ";
    if (!error.Description().starts_with(place)) return "no place in: " + error.Description();
    if (!IsUtf8(error.Description())) return "not UTF-8: " + error.Description();
    return {};
  }
}

TEST(StrategyFileMutationTest, IsTakenOrRefusedWithItsLine) {
  RandomSequence<Mutated> sequence([] { return std::make_unique<Mutated>(); });
  sequence.Add("change a byte", 4, [](Mutated& m, SequenceRandom& random) {
    if (!m.text.empty()) m.text[m.Anywhere(random) % m.text.size()] = static_cast<char>(random.Below(256));
  });
  sequence.Add("insert something", 4, [](Mutated& m, SequenceRandom& random) {
    const std::string pieces[] = {"[",
                                  "]",
                                  "=",
                                  "\"",
                                  ",",
                                  " ",
                                  "\n",
                                  "\r\n",
                                  "\t",
                                  "-",
                                  ";",
                                  "9",
                                  "Rp",
                                  "\xC3\xA9",
                                  "\xEF\xBB\xBF",
                                  "\xED\x9F\xBF",
                                  "#",
                                  "no",
                                  "yes",
                                  "[Table",
                                  "[Betting",
                                  "[Count",
                                  "true-count",
                                  "caption=",
                                  std::string(1, '\0'),
                                  std::string(2000, 'x')};
    m.text.insert(m.Anywhere(random), pieces[random.Below(std::size(pieces))]);
  });
  sequence.Add("cut a piece", 2, [](Mutated& m, SequenceRandom& random) {
    m.text.erase(m.Anywhere(random), 1 + random.Below(random.OneIn(5) ? 4000 : 8));
  });
  sequence.Add("drop a line", 3, [](Mutated& m, SequenceRandom& random) {
    const std::size_t start = m.LineStart(random);
    m.text.erase(start, m.LineAt(start).size());
  });
  sequence.Add("move a line", 3, [](Mutated& m, SequenceRandom& random) {
    const std::size_t start = m.LineStart(random);
    const std::string line = m.LineAt(start);
    m.text.erase(start, line.size());
    m.text.insert(m.LineStart(random), line);
  });
  sequence.Add("repeat a line", 1, [](Mutated& m, SequenceRandom& random) {
    const std::string line = m.LineAt(m.LineStart(random));
    m.text.insert(m.LineStart(random), line);
  });
  sequence.Always(WhatIsWrong);
  EXPECT_TRUE(sequence.Run(19620917, 4000, 3));
  EXPECT_GT(taken, 400);
  EXPECT_GT(refused, 400);
}

}  // namespace
}  // namespace tactix::tests
