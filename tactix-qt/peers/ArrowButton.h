#pragma once

#include <QPushButton>
#include <functional>

#include "tactix-qt/Export.h"

namespace tactix::qt {

/// One of a pair of buttons that step something: with an arrow instead of a text, and repeating while the
/// mouse holds it. It steps as it is pressed, not as it is let go. Never takes the focus; it looks focused while its
/// parent is.
class TACTIX_QT_EXPORT ArrowButton final : public QPushButton {
 public:
  /// `step` may end the button's window; the button itself must live until it returns.
  ArrowButton(Qt::ArrowType arrow, std::function<void()> step, QWidget* parent);

 protected:
  void mousePressEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void timerEvent(QTimerEvent* event) override;
  void hideEvent(QHideEvent* event) override;
  void paintEvent(QPaintEvent* event) override;

 private:
  void Step();
  void LetGo();

  std::function<void()> step_;
  Qt::ArrowType arrow_;
  int stepping_ = 0;
};

}  // namespace tactix::qt
