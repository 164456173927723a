#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "tactix/platform/Export.h"
#include "tactix/platform/Object.h"
#include "tactix/shared/BlockField.h"

namespace tactix {

/// The record of one pending decision: whose hand it is, its totals, which plays are legal and what the strategy
/// advises. The host fills it and hands it to a decision control, which copies it. Plain values without validation; in
/// a new block every number is 0, every flag false and every text empty. Standing is always legal and has no flag.
///
/// Also a late-bound object with the same properties. Put fails with the error of a value that does not convert, and
/// then keeps the old value.
class TACTIX_EXPORT DecisionBlock final : public Object {
 public:
  /// The player, or seat, whose hand is being decided.
  const std::string& PlayerName() const { return playerName_; }
  void PlayerName(std::string_view name) { playerName_ = name; }

  /// The hand's total with every ace counted as 1.
  std::int16_t HardTotal() const { return hardTotal_; }
  void HardTotal(std::int16_t total) { hardTotal_ = total; }

  /// Non-zero when the hand is soft. A stored 11 reads as 21, deliberately.
  std::int16_t SoftTotal() const { return softTotal_ == 11 ? std::int16_t{21} : softTotal_; }
  void SoftTotal(std::int16_t total) { softTotal_ = total; }

  /// The host's wording of which cards count as mid cards; its first character becomes an access key.
  const std::string& MidCardsAre() const { return midCardsAre_; }
  void MidCardsAre(std::string_view wording) { midCardsAre_ = wording; }

  bool HitIsValid() const { return hitIsValid_; }
  void HitIsValid(bool valid) { hitIsValid_ = valid; }
  bool SplitIsValid() const { return splitIsValid_; }
  void SplitIsValid(bool valid) { splitIsValid_ = valid; }
  bool HardDoubleIsValid() const { return hardDoubleIsValid_; }
  void HardDoubleIsValid(bool valid) { hardDoubleIsValid_ = valid; }
  bool SoftDoubleIsValid() const { return softDoubleIsValid_; }
  void SoftDoubleIsValid(bool valid) { softDoubleIsValid_ = valid; }
  bool SurrenderIsValid() const { return surrenderIsValid_; }
  void SurrenderIsValid(bool valid) { surrenderIsValid_ = valid; }

  /// True: controls offer only the legal ones of Split, Double and Surrender; false: all three.
  bool ManualPlayerRestrictions() const { return manualPlayerRestrictions_; }
  void ManualPlayerRestrictions(bool restricted) { manualPlayerRestrictions_ = restricted; }

  /// The advised decision, coded as in AdvicePossibilities.
  std::int16_t StrategyAdvice() const { return strategyAdvice_; }
  void StrategyAdvice(std::int16_t advice) { strategyAdvice_ = advice; }

  bool PromptPlayButtons() const { return promptPlayButtons_; }
  void PromptPlayButtons(bool prompt) { promptPlayButtons_ = prompt; }

  /// A playing log is kept, so a hand can be copied to the clipboard.
  bool PlayingLogEnabled() const { return playingLogEnabled_; }
  void PlayingLogEnabled(bool enabled) { playingLogEnabled_ = enabled; }

  Variant Get(std::string_view name) override;
  Variant Get(std::string_view name) const;
  void Put(std::string_view name, const Variant& value) override;

  /// Get and Put by field instead of by name.
  Variant Field(BlockField field) const;
  void Field(BlockField field, const Variant& value);

 private:
  std::string playerName_;
  std::string midCardsAre_;
  std::int16_t hardTotal_ = 0;
  std::int16_t softTotal_ = 0;
  std::int16_t strategyAdvice_ = 0;
  bool hitIsValid_ = false;
  bool splitIsValid_ = false;
  bool hardDoubleIsValid_ = false;
  bool softDoubleIsValid_ = false;
  bool surrenderIsValid_ = false;
  bool manualPlayerRestrictions_ = false;
  bool promptPlayButtons_ = false;
  bool playingLogEnabled_ = false;
};

}  // namespace tactix
