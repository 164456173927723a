#pragma once

#include <QLabel>
#include <QPushButton>
#include <QWidget>
#include <array>

namespace tactix::bench {

/// What somebody would write who needs one decision panel and no library: plain Qt widgets at the places and with the
/// texts of a decision box for a blackjack table. It does for one decision what the box does, and no more.
class HandWrittenPanel : public QWidget {
  Q_OBJECT

 public:
  struct Hand {
    QString playerName;
    QString midCards;
    int hardTotal = 0;
    int softTotal = 0;
    bool restricted = false;
    bool canSplit = false;
    bool canDouble = false;
    bool canSurrender = false;
    bool hasLog = false;
    int advice = 0;
  };

  explicit HandWrittenPanel(QWidget* parent = nullptr);

  void SetUp(const Hand& hand);

 Q_SIGNALS:
  void Hits();
  void Stands();
  void Splits();
  void Doubles();
  void Surrenders();

 protected:
  void keyPressEvent(QKeyEvent* event) override;

 private:
  struct Play {
    Qt::Key key;
    const char* caption;
    void (HandWrittenPanel::*signal)();
  };
  static const std::array<Play, 5> Plays;

  void Choose(void (HandWrittenPanel::*signal)());

  QPushButton advice_;
  QPushButton holeCard_;
  QPushButton tensRatio_;
  QPushButton options_;
  QLabel prompt_;
  QFrame panel_;
  std::array<QPushButton*, 5> buttons_{};
  QFrame descriptionBox_;
  QLabel description_;
  QString midCardsEntry_;  // for the menu, which is built when it opens
  bool canCopy_ = false;
  int advised_ = 0;
};

}  // namespace tactix::bench
