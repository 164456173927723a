#pragma once

#include <QAction>
#include <QString>
#include <QToolBar>

namespace tactix::bench {

/// What somebody would write who needs one decision toolbar and no library: a QToolBar with the buttons, captions, tool
/// tips, pictures and groups of a decision toolbar. It does for one decision what the decision toolbar does.
class HandWrittenToolBar : public QToolBar {
  Q_OBJECT

 public:
  struct Hand {
    QString playerName;
    int hardTotal = 0;
    int softTotal = 0;
    bool restricted = false;
    bool canSplit = false;
    bool canDouble = false;
    bool canSurrender = false;
    int advice = 0;
  };

  explicit HandWrittenToolBar(QWidget* parent = nullptr);

  void SetUp(const Hand& hand);

 Q_SIGNALS:
  void Prompted(const QString& text);

 private:
  QAction* split_ = nullptr;
  QAction* double_ = nullptr;
  QAction* surrender_ = nullptr;
  int advised_ = 0;
};

}  // namespace tactix::bench
