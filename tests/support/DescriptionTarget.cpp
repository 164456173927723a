#include "tests/support/DescriptionTarget.h"

#include <algorithm>
#include <iterator>
#include <utility>
#include <vector>

#include "tactix/platform/Error.h"
#include "tactix/platform/headless/HeadlessSite.h"
#include "tactix/strategy/BetStrategyList.h"
#include "tactix/strategy/CountStrategyList.h"
#include "tactix/strategy/StrategyList.h"
#include "tactix/strategy/StrategyListLITE.h"
#include "tests/support/FakeCatalogue.h"
#include "tests/support/StrategyListModel.h"

namespace tactix::tests {

namespace {

constexpr int HighestStrategy = 3;

}  // namespace

/// The four lists, loaded, and their catalogue.
class DescriptionTarget::Lists {
 public:
  Lists() {
    catalogue_->DescribeBetting(HighestStrategy);
    catalogue_->DescribeCounts();
    playing_.LoadStrategiesFromIniFile();
    compact_.LoadStrategiesFromIniFile();
    betting_.LoadStrategiesFromIniFile();
  }

  std::string Feed(const std::string& text) {
    const InstalledText installed(*catalogue_, text);
    std::string wrong = FillPlaying();
    if (wrong.empty()) wrong = FillCompact(text);
    if (wrong.empty()) wrong = FillBetting(text);
    if (wrong.empty()) wrong = FillCounts(text);
    catalogue_->Log.clear();
    return wrong;
  }
  std::string FillAfterwards() {
    playing_.InputPlayingStrategyDescriptions();
    const bool isFilled = playing_.Children.StrategyListBox.ListCount() == HighestStrategy + 2;
    return isFilled ? "" : "the list does not fill any more";
  }

 private:
  /// The text stands for the seat, for one strategy in the middle, and for two count systems.
  class InstalledText {
   public:
    InstalledText(FakeCatalogue& catalogue, const std::string& text) {
      for (const int number : {-1, 1}) {
        Put(catalogue.Playing[number], text);
        Put(catalogue.Betting[number], text);
      }
      for (const int system : {11, 20}) Put(catalogue.Counts[system], text);
    }
    ~InstalledText() {
      for (auto& [slot, text] : before_) *slot = std::move(text);
    }
    InstalledText(const InstalledText&) = delete;
    InstalledText& operator=(const InstalledText&) = delete;

   private:
    void Put(std::string& slot, const std::string& text) { before_.emplace_back(&slot, std::exchange(slot, text)); }

    std::vector<std::pair<std::string*, std::string>> before_;
  };

  std::string FillPlaying() {
    try {
      playing_.InputPlayingStrategyDescriptions();
    } catch (const Error& error) {
      constexpr int Codes[] = {Error::InvalidProcedureCall, Error::TypeMismatch, Error::Overflow};
      const bool isKnown = std::find(std::begin(Codes), std::end(Codes), error.Code()) != std::end(Codes);
      if (!isKnown) return "the playing list failed with " + std::to_string(error.Code());
    }
    return {};
  }
  std::string FillCompact(const std::string& text) {
    try {
      compact_.InputPlayingStrategyDescriptions();
    } catch (const Error&) {
      return "the compact list let an error out";
    }
    return Compare(ModelledList::Compact, text, compact_.Children.StrategyListBox);
  }
  std::string FillBetting(const std::string& text) {
    try {
      betting_.InputBettingStrategyDescriptions();
    } catch (const Error& error) {
      if (error.Source() != "BettingStrategyList::") return "the betting list's error has another source";
    }
    return Compare(ModelledList::Betting, text, betting_.Children.BetStrategyListBox);
  }
  std::string FillCounts(const std::string& text) {
    try {
      counts_.InputCountStrategyDescriptions();
      for (int card = 1; card <= 4; ++card) {
        if (counts_.CountValue(20, static_cast<std::int16_t>(card)) != 0) return "a point value was stored";
      }
    } catch (const Error&) {
      return "the count list let an error out";
    }
    return Compare(ModelledList::Count, text, counts_.Children.StrategyListBox);
  }

  std::string Compare(ModelledList list, const std::string& text, const ListBox& box) {
    // The model unshifts ASCII only.
    if (std::any_of(text.begin(), text.end(), [](char c) { return c < 0; })) return {};
    StrategyListModel model(list, known_);
    StrategyListData::Buffer().Write("");
    model.Load();
    bool isSame = box.ListCount() == static_cast<std::int32_t>(model.rows.size());
    for (std::int32_t row = 0; isSame && row < box.ListCount(); ++row) {
      isSame = box.List(row) == model.rows[static_cast<std::size_t>(row)];
    }
    return isSame ? "" : "rows of model " + std::to_string(static_cast<int>(list)) + " that the list does not have";
  }

  InstalledCatalogue catalogue_;
  ModelCatalogue known_{*catalogue_, true, {}, 0};
  HeadlessSite site_;
  StrategyList playing_{site_};
  StrategyListLITE compact_{site_};
  BetStrategyList betting_{site_};
  CountStrategyList counts_{site_};
};

DescriptionTarget::DescriptionTarget() : lists_(std::make_unique<Lists>()) {}

DescriptionTarget::~DescriptionTarget() = default;

std::string DescriptionTarget::Feed(const std::string& text) {
  std::string wrong = lists_->Feed(text);
  return wrong.empty() ? lists_->FillAfterwards() : wrong;
}

}  // namespace tactix::tests
