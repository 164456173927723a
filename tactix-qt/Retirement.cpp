#include "tactix-qt/Retirement.h"

#include <QPointer>
#include <QWidget>
#include <utility>
#include <vector>

namespace tactix::qt {

namespace {

int depth = 0;
std::vector<QPointer<QWidget>>& Retired() {
  static std::vector<QPointer<QWidget>> widgets;
  return widgets;
}

}  // namespace

HandlerScope::HandlerScope() { ++depth; }

HandlerScope::~HandlerScope() {
  if (--depth != 0 || Retired().empty()) return;
  for (const QPointer<QWidget>& widget : std::exchange(Retired(), {})) {
    if (widget) widget->deleteLater();
  }
}

void Retire(QWidget& native) {
  native.hide();
  native.setParent(nullptr);
  if (depth == 0) {
    native.deleteLater();
  } else {
    // A nested event loop may be running below the handlers, and would carry out a deleteLater() of now.
    Retired().emplace_back(&native);
  }
}

}  // namespace tactix::qt
