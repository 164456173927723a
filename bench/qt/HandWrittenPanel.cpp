#include "bench/qt/HandWrittenPanel.h"

#include <QKeyEvent>

namespace tactix::bench {

namespace {

constexpr int SplitButton = 2;
constexpr int DoubleButton = 3;
constexpr int SurrenderButton = 4;

}  // namespace

const std::array<HandWrittenPanel::Play, 5> HandWrittenPanel::Plays = {{
    {Qt::Key_H, "HIT", &HandWrittenPanel::Hits},
    {Qt::Key_S, "Stand", &HandWrittenPanel::Stands},
    {Qt::Key_P, "SPLIT", &HandWrittenPanel::Splits},
    {Qt::Key_D, "DOUBLE", &HandWrittenPanel::Doubles},
    {Qt::Key_G, "Surrender", &HandWrittenPanel::Surrenders},
}};

HandWrittenPanel::HandWrittenPanel(QWidget* parent)
    : QWidget(parent),
      advice_(QStringLiteral("&Ask Kelvo for Advice"), this),
      holeCard_(QStringLiteral("&HoleCard"), this),
      tensRatio_(QStringLiteral("&Tens-Ratio"), this),
      options_(QStringLiteral("&Options"), this),
      prompt_(this),
      panel_(this),
      descriptionBox_(&panel_),
      description_(&descriptionBox_) {
  resize(500, 170);
  setFocusPolicy(Qt::StrongFocus);
  advice_.setGeometry(17, 110, 94, 56);
  advice_.setFont(QFont(QStringLiteral("Comic Neue"), 8));
  advice_.setDefault(true);
  holeCard_.setGeometry(256, 110, 77, 56);
  tensRatio_.setGeometry(337, 110, 77, 56);
  options_.setGeometry(418, 110, 77, 56);
  prompt_.setGeometry(4, 4, 492, 24);
  prompt_.setTextFormat(Qt::PlainText);
  panel_.setGeometry(4, 32, 492, 74);
  panel_.setFrameStyle(int{QFrame::Panel} | int{QFrame::Raised});
  panel_.setToolTip(QStringLiteral("H=Hit, S=Stand, P=Split, D=Double, G=Surrender"));
  for (std::size_t i = 0; i < Plays.size(); ++i) {
    buttons_[i] = new QPushButton(QString::fromLatin1(Plays[i].caption), &panel_);
    buttons_[i]->setGeometry(4 + static_cast<int>(i) * 98, 26, 94, 40);
    connect(buttons_[i], &QPushButton::clicked, this, [this, signal = Plays[i].signal] { Choose(signal); });
  }
  descriptionBox_.setGeometry(4, 4, 120, 20);
  descriptionBox_.setFrameStyle(int{QFrame::StyledPanel} | int{QFrame::Plain});
  descriptionBox_.hide();
  description_.setGeometry(2, 0, 116, 20);
}

void HandWrittenPanel::SetUp(const Hand& hand) {
  midCardsEntry_ = QStringLiteral("Is &") + hand.midCards;
  canCopy_ = hand.hasLog;
  advised_ = hand.advice;
  buttons_[SplitButton]->setVisible(!hand.restricted || hand.canSplit);
  buttons_[DoubleButton]->setVisible(!hand.restricted || hand.canDouble);
  buttons_[SurrenderButton]->setVisible(!hand.restricted || hand.canSurrender);
  advice_.setDefault(true);
  options_.setEnabled(true);
  QString total = QString::number(hand.hardTotal);
  if (hand.softTotal != 0 && hand.softTotal < 11) {
    total += QStringLiteral(" OR ") + QString::number(hand.hardTotal + 10);
  }
  prompt_.setText(hand.playerName + QStringLiteral(" - You have ") + total + QStringLiteral("  - Make your Selection"));
}

void HandWrittenPanel::Choose(void (HandWrittenPanel::*signal)()) {
  prompt_.clear();
  descriptionBox_.hide();
  Q_EMIT(this->*signal)();
}

void HandWrittenPanel::keyPressEvent(QKeyEvent* event) {
  for (const Play& play : Plays) {
    if (event->key() == play.key) return Choose(play.signal);
  }
  QWidget::keyPressEvent(event);
}

}  // namespace tactix::bench
