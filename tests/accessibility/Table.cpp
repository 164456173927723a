// A host for hand.py: a button that deals a hand, the decision box, and a line that says what the box has reported.

#include <QApplication>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include "tactix-qt/Decision.h"
#include "tactix/companion/Companion.h"

int main(int argc, char** argv) {
  QApplication application(argc, argv);
  QApplication::setApplicationName(QStringLiteral("Table"));
  tactix::companion::Install();

  QWidget window;
  auto* const layout = new QVBoxLayout(&window);
  auto* const deal = new QPushButton(QStringLiteral("Deal"), &window);
  auto* const reported = new QLabel(QStringLiteral("Reported: nothing"), &window);
  auto* const box = new tactix::qt::Decision(&window);
  for (QWidget* each : std::initializer_list<QWidget*>{deal, reported, box}) layout->addWidget(each);
  box->DecisionBoxType(tactix::qt::Decision::forUseWithBlackjackTable);

  QObject::connect(deal, &QPushButton::clicked, box, [box] {
    tactix::DecisionBlock block;
    block.PlayerName("Ann");
    block.HardTotal(16);
    block.MidCardsAre("7 to 9");
    block.StrategyAdvice(static_cast<std::int16_t>(tactix::AdvicePossibilities::HitAdvised));
    box->SetupTheDecisionBox(block);
  });
  const auto report = [box, reported](auto signal, const char* what) {
    QObject::connect(box, signal, reported,
                     [reported, what] { reported->setText(QLatin1String("Reported: ") + QLatin1String(what)); });
  };
  report(&tactix::qt::Decision::AdviceRequested, "advice");
  report(&tactix::qt::Decision::WholeCardLoPrediction, "low hole card");
  report(&tactix::qt::Decision::PlayerHits, "hit");
  report(&tactix::qt::Decision::PlayerStands, "stand");
  window.show();
  return QApplication::exec();
}
