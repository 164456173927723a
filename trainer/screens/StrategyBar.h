#pragma once

#include <QWidget>
#include <optional>

#include "tactix-qt/BetStrategyList.h"
#include "tactix-qt/CountStrategyList.h"
#include "tactix-qt/StrategyMarquix.h"
#include "tactix-qt/UnitSelectionList.h"

namespace trainer::screens {

/// Where the player chooses strategies: a marquee for the one that gives advice at the seat, a list for the one that
/// sizes the bet, the units that it is sized in, and a list for the system that counts.
class StrategyBar : public QWidget {
  Q_OBJECT

 public:
  /// Fills itself from the strategy catalogue that the process uses.
  explicit StrategyBar(QWidget* parent = nullptr);

  tactix::qt::StrategyMarquix& Marquee() { return *marquee_; }
  tactix::qt::BetStrategyList& Betting() { return *betting_; }
  tactix::qt::CountStrategyList& Counts() { return *counts_; }
  tactix::qt::UnitSelectionList& Units() { return *units_; }

  /// Shows the strategy in use in the marquee, with the mark; without a number neither a row nor the mark. Reports
  /// nothing.
  void ShowPlaying(std::optional<int> number);

 Q_SIGNALS:
  void PlayingPicked(int number);
  void BettingPicked(int number);
  void CountPicked(int number);
  void UnitsPicked(int units);
  /// An open list has closed, whether something was picked or not.
  void Closed();

 protected:
  bool eventFilter(QObject* object, QEvent* event) override;

 private:
  QWidget* WithCaption(const QString& caption, QWidget* list);
  /// Gives a control's box its name for screen readers, and watches the box for Closed().
  void Introduce(const QString& name, QWidget* list);

  // In the order of the Tab key.
  tactix::qt::StrategyMarquix* marquee_;
  tactix::qt::BetStrategyList* betting_;
  tactix::qt::UnitSelectionList* units_;
  tactix::qt::CountStrategyList* counts_;
};

}  // namespace trainer::screens
