// The unit conversions and the edition object.

#include <gtest/gtest.h>

#include <limits>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "tactix/decision/Decision.h"
#include "tests/decision/DecisionFixture.h"
#include "tests/decision/DecisionStates.h"
#include "tests/platform/ErrorCode.h"
#include "tests/support/PropertyObject.h"
#include "tests/support/RowName.h"

namespace tactix::tests {
namespace {

using Texts = std::vector<std::string>;

// Conversions.

struct ConversionRow {
  const char* name;
  Variant value;
  int toTwips;
  int toPixels;
};

constexpr int Code(int code) { return 100'000 + code; }

class DecisionConversionTest : public DecisionFixture, public testing::WithParamInterface<ConversionRow> {};

TEST_P(DecisionConversionTest, Converts) {
  const auto outcome = [&](std::int16_t (Decision::*convert)(const Variant&) const) {
    int result = 0;
    const int code = ErrorCodeOf([&] { result = (box_.get()->*convert)(GetParam().value); });
    return code == 0 ? result : Code(code);
  };
  EXPECT_EQ(outcome(&Decision::ConvertFromPixelsToTwipsX), GetParam().toTwips);
  EXPECT_EQ(outcome(&Decision::ConvertFromPixelsToTwipsY), GetParam().toTwips);
  EXPECT_EQ(outcome(&Decision::ConvertFromTwipsToPixelsX), GetParam().toPixels);
  EXPECT_EQ(outcome(&Decision::ConvertFromTwipsToPixelsY), GetParam().toPixels);
}

INSTANTIATE_TEST_SUITE_P(
    Rows, DecisionConversionTest,
    testing::Values(ConversionRow{"Zero", 0, 0, 0}, ConversionRow{"One", 1, 12, 0}, ConversionRow{"Half", 6, 72, 0},
                    ConversionRow{"MoreThanHalf", 7, 84, 1}, ConversionRow{"OneAndAHalf", 18, 216, 2},
                    ConversionRow{"TwoAndAHalf", 30, 360, 2}, ConversionRow{"MinusHalf", -6, -72, 0},
                    ConversionRow{"MinusOneAndAHalf", -18, -216, -2}, ConversionRow{"HalfATwip", 0.125, 2, 0},
                    ConversionRow{"FourAndAHalfTwips", 0.375, 4, 0}, ConversionRow{"HighestTwips", 2730, 32760, 228},
                    ConversionRow{"TooManyTwips", 2731, Code(6), 228},
                    ConversionRow{"LowestTwips", -2730, -32760, -228},
                    ConversionRow{"TooFewTwips", -2731, Code(6), -228},
                    ConversionRow{"HighestPixels", 393209, Code(6), 32767},
                    ConversionRow{"TooManyPixels", 393210, Code(6), Code(6)},
                    ConversionRow{"LowestPixels", -393222, Code(6), -32768},
                    ConversionRow{"TooFewPixels", -393223, Code(6), Code(6)}, ConversionRow{"Text", "10", 120, 1},
                    ConversionRow{"Word", "ten", Code(13), Code(13)}, ConversionRow{"Empty", {}, 0, 0},
                    ConversionRow{"Null", Variant::Null(), Code(94), Code(94)}, ConversionRow{"True", true, -12, 0},
                    ConversionRow{"Infinite", std::numeric_limits<double>::infinity(), Code(6), Code(6)}),
    RowName());

// The edition.

class DecisionEditionTest : public DecisionFixture {};

TEST_F(DecisionEditionTest, ReadsTheEditionsNumber) {
  const auto edition = std::make_shared<PropertyObject>("thisKelvoEdition", "7");
  box_->TheKelvoEditionIs(edition);
  EXPECT_EQ(box_->thisKelvoEdition(), 7);
  EXPECT_TRUE(PromptOnIsChecked(*box_));
  EXPECT_FALSE(box_->PromptThePlayButtons()) << "only the menu is checked";
  EXPECT_EQ(edition->Log, Texts{"Get thisKelvoEdition"});
  EXPECT_EQ(edition.use_count(), 1) << "the edition is not kept";
  std::int16_t flag = 0;
  EXPECT_EQ(ErrorCodeOf([&] { box_->Show(flag); }), 91);
}

TEST_F(DecisionEditionTest, AnEditionThatFailsChangesNothing) {
  const struct {
    Variant edition;
    int code;
  } rows[] = {
      {std::make_shared<PropertyObject>("thisKelvoEdition", 32768), 6},
      {std::make_shared<PropertyObject>("thisKelvoEdition", "gold"), 13},
      {std::make_shared<PropertyObject>("thisKelvoEdition", Variant::Null()), 94},
      {std::make_shared<PropertyObject>("Edition", 3), 438},
      {ObjectRef(), 91},
      {5, 424},
      {{}, 424},
  };
  for (const auto& row : rows) {
    EXPECT_EQ(ErrorCodeOf([&] { box_->TheKelvoEditionIs(row.edition); }), row.code);
    EXPECT_EQ(box_->thisKelvoEdition(), 0);
    EXPECT_TRUE(PromptOffIsChecked(*box_));
  }
}

TEST_F(DecisionEditionTest, AnEditionMayDestroyTheBoxWhenItIsRead) {
  const auto edition = std::make_shared<PropertyObject>("thisKelvoEdition", 7);
  edition->OnUse = [&](const std::string&) { box_.reset(); };
  box_->TheKelvoEditionIs(edition);
  EXPECT_EQ(box_, nullptr);
}

TEST_F(DecisionEditionTest, ShowNeedsAnEdition) {
  std::int16_t flag = 5;
  EXPECT_EQ(ErrorCodeOf([&] { box_->Show(flag); }), 91);
  box_->SetupDecisionBox(DecisionBlock(), nullptr);
  EXPECT_EQ(ErrorCodeOf([&] { box_->Show(flag); }), 91);
  EXPECT_EQ(flag, 5);
}

TEST_F(DecisionEditionTest, ShowIsTheEditionsAndMayWriteToTheFlag) {
  const auto edition = std::make_shared<PropertyObject>();
  edition->OnCall = [](std::string_view, std::span<Variant> arguments) { arguments[0] = 9; };
  box_->SetupDecisionBox(DecisionBlock(), edition);
  box_->SetupTheDecisionBox(FullBlock());  // keeps it
  std::int16_t flag = 1;
  box_->Show(flag);
  EXPECT_EQ(flag, 9);
  EXPECT_EQ(edition->Log, Texts{"Call Show(1)"});
  EXPECT_EQ(recorder_.Take(), Texts{}) << "the event of that name is the host's";
}

TEST_F(DecisionEditionTest, ShowFailsAsTheEditionDoes) {
  const auto edition = std::make_shared<PropertyObject>();
  box_->SetupDecisionBox(DecisionBlock(), edition);
  std::int16_t flag = 1;
  EXPECT_EQ(ErrorCodeOf([&] { box_->Show(flag); }), 438);
  for (const auto& [written, code] : {std::pair<Variant, int>{40000, 6}, {"x", 13}, {Variant::Null(), 94}}) {
    edition->OnCall = [&value = written](std::string_view, std::span<Variant> arguments) { arguments[0] = value; };
    EXPECT_EQ(ErrorCodeOf([&] { box_->Show(flag); }), code);
    EXPECT_EQ(flag, 1);
  }
  edition->OnCall = [](std::string_view, std::span<Variant>) { throw Error(1234); };
  EXPECT_EQ(ErrorCodeOf([&] { box_->Show(flag); }), 1234);
}

TEST_F(DecisionEditionTest, AnEditionMayDestroyTheBoxOrReplaceItselfInShow) {
  auto edition = std::make_shared<PropertyObject>();
  edition->OnCall = [&](std::string_view, std::span<Variant> arguments) {
    box_->SetupDecisionBox(DecisionBlock(), nullptr);
    box_.reset();
    arguments[0] = 3;
  };
  box_->SetupDecisionBox(DecisionBlock(), std::move(edition));
  std::int16_t flag = 1;
  box_->Show(flag);
  EXPECT_EQ(flag, 3);
}

}  // namespace
}  // namespace tactix::tests
