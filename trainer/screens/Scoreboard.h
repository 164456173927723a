#pragma once

#include <QWidget>
#include <memory>
#include <optional>

#include "tactix-qt/DecisionRegiLOG.h"
#include "tactix-qt/DualCardCountDisplay.h"
#include "tactix-qt/StrategyDataPanel.h"
#include "tactix/companion/StrategyDataBlock.h"
#include "trainer/engine/CountSystems.h"
#include "trainer/engine/Session.h"

namespace trainer::screens {

/// Below the table: how the player decides, and what the shoe has come to.
class Scoreboard : public QWidget {
  Q_OBJECT

 public:
  explicit Scoreboard(QWidget* parent = nullptr);

  tactix::qt::DecisionRegiLOG& Register() { return *register_; }
  tactix::qt::DualCardCountDisplay& Counts() { return *counts_; }
  tactix::qt::StrategyDataPanel& Statistics() { return *statistics_; }

  /// Counts and statistics; shown at first.
  void ShowCounts(bool shown);
  /// After each card that the player has seen.
  void ShowShoe(const engine::Session& session, const engine::CountSystem& system);
  /// After each decision.
  void ShowJudgement(const engine::Judgement& judgement, const engine::Tally& tally);

 private:
  tactix::qt::DecisionRegiLOG* register_;
  tactix::qt::DualCardCountDisplay* counts_;
  tactix::qt::StrategyDataPanel* statistics_;
  std::shared_ptr<tactix::companion::StrategyDataBlock> block_ =
      std::make_shared<tactix::companion::StrategyDataBlock>();
};

}  // namespace trainer::screens
