// Mutated descriptions, which no list may stumble over.

#include <gtest/gtest.h>

#include <chrono>
#include <cstdlib>
#include <string>

#include "tests/support/DescriptionTarget.h"
#include "tests/support/DescriptionTexts.h"
#include "tests/support/RandomSequence.h"

namespace tactix::tests {
namespace {

/// How long to go on: by itself for a number of inputs, with TACTIX_FUZZ_SECONDS in the environment for that time.
class Until {
 public:
  bool Goes(int inputs) const {
    if (seconds_ <= 0) return inputs < Inputs;
    return std::chrono::steady_clock::now() - start_ < std::chrono::seconds(seconds_);
  }

 private:
  static constexpr int Inputs = 20'000;
  static int Seconds() {
    const char* const text = std::getenv("TACTIX_FUZZ_SECONDS");
    return text ? std::atoi(text) : 0;
  }

  std::chrono::steady_clock::time_point start_ = std::chrono::steady_clock::now();
  int seconds_ = Seconds();
};

TEST(DescriptionMutationTest, NoListStumblesOverADescription) {
  constexpr std::uint64_t Seed = 20240602;
  SequenceRandom random(Seed);
  DescriptionTarget target;
  const Until until;
  int inputs = 0;
  int pastTheFirstComma = 0;
  for (; until.Goes(inputs); ++inputs) {
    const std::string text = MutatedDescription(random);
    if (text.find(',') != std::string::npos) ++pastTheFirstComma;
    ASSERT_EQ(target.Feed(text), "") << "seed " << Seed << ", input " << inputs << ": " << text;
  }
  // Else the parsers' first line is all that is tested.
  EXPECT_GE(pastTheFirstComma * 2, inputs);
  RecordProperty("inputs", inputs);
  RecordProperty("pastTheFirstComma", pastTheFirstComma);
}

TEST(DescriptionMutationTest, TheDescriptionsThatItStartsFromAreGood) {
  DescriptionTarget target;
  for (const char* text : {"note,Basic,False True", "note,Flat,1", "note,HI-Opt I,False True 0 1 1 52 "}) {
    EXPECT_EQ(target.Feed(text), "");
  }
}

}  // namespace
}  // namespace tactix::tests
