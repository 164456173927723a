#include "bench/qt/HandWrittenToolBar.h"

#include <QActionGroup>
#include <QStyle>

namespace tactix::bench {

namespace {

struct Button {
  const char* caption;
  const char* toolTip;
};
constexpr Button Plays[] = {
    {"Hit", "Draw another card"},
    {"Stand", "Draw no more cards"},
    {"Split", "Split a pair of cards"},
    {"Double", "Double your bet, receive one card"},
    {"Surr.", "Forfeit half of your wager"},
    {"Advice", "Ask for playing advice"},
};
constexpr Button CardGuesses[] = {{"Low", "low"}, {"Mid", "mid"}, {"High", "high"}, {"? ?", "unknown"}};
constexpr Button RatioGuesses[] = {{"Low", "low"}, {"High", "high"}};
constexpr Button DealerGuesses[] = {{"Dealer", "weak"}, {"Dealer", "strong"}};
constexpr Button Statistics[] = {{"Stats", "Statistics"}};

}  // namespace

HandWrittenToolBar::HandWrittenToolBar(QWidget* parent) : QToolBar(parent) {
  const QIcon picture = style()->standardIcon(QStyle::SP_MediaPlay);
  setToolButtonStyle(Qt::ToolButtonTextUnderIcon);
  const auto add = [&](const Button& button) {
    QAction* const action = addAction(picture, QLatin1String(button.caption));
    action->setToolTip(QLatin1String(button.toolTip));
    return action;
  };
  const auto addGroup = [&](const auto& buttons) {
    addSeparator();
    auto* const group = new QActionGroup(this);
    for (const Button& button : buttons) {
      QAction* const action = add(button);
      action->setCheckable(true);
      group->addAction(action);
    }
  };
  for (const Button& play : Plays) add(play);
  split_ = actions()[2];
  double_ = actions()[3];
  surrender_ = actions()[4];
  addGroup(CardGuesses);
  addGroup(CardGuesses);
  addGroup(RatioGuesses);
  addGroup(DealerGuesses);
  addSeparator();
  for (const Button& button : Statistics) add(button);
}

void HandWrittenToolBar::SetUp(const Hand& hand) {
  split_->setEnabled(!hand.restricted || hand.canSplit);
  surrender_->setEnabled(!hand.restricted || hand.canSurrender);
  double_->setEnabled(!hand.restricted || hand.canDouble);
  advised_ = hand.advice;
  const auto numberOf = [](int total) {
    return (total < 0 ? QString() : QStringLiteral(" ")) + QString::number(total);
  };
  QString totals = numberOf(hand.hardTotal);
  if (hand.softTotal != 0 && hand.softTotal < 11) totals += QStringLiteral(" OR ") + numberOf(hand.hardTotal + 10);
  Q_EMIT Prompted(hand.playerName + QStringLiteral(" - You have ") + totals +
                  QStringLiteral("  - Make your Selection"));
}

}  // namespace tactix::bench
