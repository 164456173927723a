#include <QApplication>

#include "tactix-qt/Decision.h"

int main(int argc, char** argv) {
  QApplication application(argc, argv);
  tactix::qt::Decision box;
  box.DecisionBoxType(tactix::qt::Decision::forUseWithBlackjackTable);

  tactix::DecisionBlock block;
  block.PlayerName("Ann");
  block.HardTotal(16);
  block.StrategyAdvice(static_cast<std::int16_t>(tactix::AdvicePossibilities::HitAdvised));
  box.SetupTheDecisionBox(block);

  QObject::connect(&box, &tactix::qt::Decision::PlayerHits, [] { qInfo("Ann hits"); });
  QObject::connect(&box, &tactix::qt::Decision::PlayerStands, [] { qInfo("Ann stands"); });
  box.show();
  return QApplication::exec();
}
