#include "tactix-qt/DecisionBarDock.h"

#include <QChildEvent>
#include <QEvent>
#include <QMainWindow>
#include <QPointer>
#include <QToolBar>
#include <utility>

#include "tactix-qt/Convert.h"

namespace tactix::qt {

namespace {

using Bar = DecisionToolBarControl;

struct Edge {
  Bar::DecisionBARAlignment alignment;
  Qt::ToolBarArea area;
};
constexpr Edge Edges[] = {{Bar::DBAlignTop, Qt::TopToolBarArea},
                          {Bar::DBAlignBottom, Qt::BottomToolBarArea},
                          {Bar::DBAlignLeft, Qt::LeftToolBarArea},
                          {Bar::DBAlignRight, Qt::RightToolBarArea}};

Qt::ToolBarArea AreaOf(Bar::DecisionBARAlignment alignment) {
  for (const Edge& edge : Edges) {
    if (edge.alignment == alignment) return edge.area;
  }
  return Qt::NoToolBarArea;
}

Bar::DecisionBARAlignment AlignmentOf(Qt::ToolBarArea area) {
  for (const Edge& edge : Edges) {
    if (edge.area == area) return edge.alignment;
  }
  return Bar::DBAlignNone;
}

bool IsHiddenOnPurpose(const QWidget& widget) {
  return widget.isHidden() && widget.testAttribute(Qt::WA_WState_ExplicitShowHide);
}

/// What lies in the toolbar. The bar fills it and not the toolbar itself, since a bar whose saved properties are read
/// goes to the corner of what is around it.
class Holder final : public QWidget {
 public:
  explicit Holder(Bar& bar) : bar_(&bar) {
    const bool isShown = !IsHiddenOnPurpose(bar);
    bar.setParent(this);
    bar.move(0, 0);
    bar.setVisible(isShown);
    Turn(Qt::Horizontal);
  }

  Bar* Held() const { return bar_; }

  void Turn(Qt::Orientation orientation) {
    orientation_ = orientation;
    if (orientation == Qt::Horizontal) {
      setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    } else {
      setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Expanding);
    }
    updateGeometry();
  }

  QSize sizeHint() const override {
    const int length = bar_ ? bar_->sizeHint().width() : 0;
    return orientation_ == Qt::Horizontal ? QSize(length, Thickness()) : QSize(Thickness(), length);
  }
  /// Short: the bar has a menu for the buttons that have no room.
  QSize minimumSizeHint() const override { return {Thickness(), Thickness()}; }

 protected:
  void resizeEvent(QResizeEvent*) override {
    if (bar_) bar_->setGeometry(rect());
  }

  void childEvent(QChildEvent* event) override {
    if (!event->removed() || event->child() != child_) {
      if (event->added()) child_ = event->child();
      return;
    }
    bar_ = nullptr;
    if (parent()) parent()->deleteLater();
  }

 private:
  int Thickness() const {
    return ToPixels(orientation_ == Qt::Horizontal ? tactix::DecisionToolBarControl::RowThickness
                                                   : tactix::DecisionToolBarControl::ColumnThickness);
  }

  QPointer<Bar> bar_;
  const QObject* child_ = nullptr;
  Qt::Orientation orientation_ = Qt::Horizontal;
};

class Dock final : public QToolBar {
 public:
  Dock(QMainWindow& window, Bar& bar)
      : QToolBar(QStringLiteral("Decisions"), &window), window_(window), holder_(new Holder(bar)) {
    setObjectName(QStringLiteral("DecisionBarDock"));
    addWidget(holder_);
    connect(&bar, &ControlWidget::propertyChanged, this, [this](const QString& name) {
      if (name == QLatin1String("Alignment")) TakeTheAlignment();
    });
    connect(this, &QToolBar::orientationChanged, holder_, [this](Qt::Orientation to) { holder_->Turn(to); });
    window.installEventFilter(this);
    // In some area first: a main window knows only toolbars that have been in one.
    window.addToolBar(Qt::TopToolBarArea, this);
    TakeTheAlignment();
  }

 protected:
  bool event(QEvent* event) override {
    const bool handled = QToolBar::event(event);
    switch (event->type()) {
      case QEvent::Move:
      case QEvent::Resize:
      case QEvent::Show:
        LookLater();
        break;
      default:
        break;
    }
    return handled;
  }

  bool eventFilter(QObject* object, QEvent* event) override {
    // A floating toolbar is a window of its own and does not appear together with the main window.
    if (object == &window_ && event->type() == QEvent::Show && isWindow() && !IsHiddenOnPurpose(*this)) {
      QMetaObject::invokeMethod(this, &QWidget::show, Qt::QueuedConnection);
    }
    return QToolBar::eventFilter(object, event);
  }

 private:
  /// While it is dragged, a toolbar is a window that no window manager minds.
  bool IsAtRest() const { return !isWindow() || !(windowFlags() & Qt::X11BypassWindowManagerHint); }
  Qt::ToolBarArea Area() const { return isWindow() ? Qt::NoToolBarArea : window_.toolBarArea(this); }

  void TakeTheAlignment() {
    const Bar* const bar = holder_->Held();
    if (!bar) return;
    const Qt::ToolBarArea area = AreaOf(bar->Alignment());
    if (area == Area()) return;
    const bool isShown = !IsHiddenOnPurpose(*this);
    if (area == Qt::NoToolBarArea) {
      Float();
    } else {
      setWindowFlags(Qt::Widget);
      window_.addToolBar(area, this);
    }
    // Becoming a window, or none, has hidden it.
    if (isShown && (window_.isVisible() || !isWindow())) show();
  }

  void Float() {
    const QPoint place = window_.isVisible() ? mapToGlobal(QPoint()) : window_.pos();
    setWindowFlags(Qt::Tool | Qt::FramelessWindowHint);
    LieDown();
    move(place);
  }

  /// As a row: that is how a bar stands that is docked nowhere.
  void LieDown() {
    setOrientation(Qt::Horizontal);
    adjustSize();
  }

  /// Later: the main window is still busy with moving it, and what hears of the Alignment may destroy both.
  void LookLater() {
    if (std::exchange(isLookPosted_, true)) return;
    const auto look = [this] {
      isLookPosted_ = false;
      TakeTheArea();
    };
    QMetaObject::invokeMethod(this, look, Qt::QueuedConnection);
  }

  void TakeTheArea() {
    Bar* const bar = holder_->Held();
    if (!bar || !IsAtRest() || AreaOf(bar->Alignment()) == Area()) return;
    if (isWindow()) LieDown();
    bar->setAlignment(AlignmentOf(Area()));
  }

  QMainWindow& window_;
  Holder* holder_;
  bool isLookPosted_ = false;
};

}  // namespace

QToolBar* DockIn(QMainWindow& window, DecisionToolBarControl& bar) { return new Dock(window, bar); }

}  // namespace tactix::qt
