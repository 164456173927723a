#pragma once

#include <QPushButton>
#include <functional>

#include "tactix-qt/Export.h"

namespace tactix::qt {

/// One of a pair of buttons for stepping a value: it shows an arrow and repeats while the mouse holds it. It steps when
/// it is pressed, not when it is released. Never takes the focus; it looks focused while its parent is.
class TACTIX_QT_EXPORT ArrowButton final : public QPushButton {
 public:
  /// `step` may close the button's window, but the button itself must live until it returns.
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
