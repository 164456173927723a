#pragma once

#include <QPointer>
#include <QTest>
#include <QToolBar>
#include <QToolButton>
#include <QWidget>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "tactix-qt/DecisionBAR.h"
#include "tactix-qt/peers/ToolBarPeer.h"
#include "tests/support-qt/Gestures.h"

namespace tactix::tests {

/// A host's window with a decision toolbar in it, of the kind that opens no menu, and a widget of the host's own, which
/// has the focus at first.
class BarWindow {
 public:
  BarWindow() : window_(new QWidget), desk_(new QWidget(window_)), widget_(new qt::DecisionBAR(window_)) {
    desk_->setGeometry(0, 0, 10, 10);
    desk_->setFocusPolicy(Qt::StrongFocus);
    desk_->setFocus();
    widget_->move(0, 10);
    window_->resize(1000, 400);
    window_->show();
    Activate();
    Model().ButtonClicked.Connect([this](const ToolButton& button) { clicked_.push_back(button.Key()); });
  }
  ~BarWindow() {
    delete window_;
    Settle();
  }
  BarWindow(const BarWindow&) = delete;
  BarWindow& operator=(const BarWindow&) = delete;

  void Activate() {
    window_->activateWindow();
    static_cast<void>(QTest::qWaitForWindowActive(window_));
    Settle();
  }
  void Resize(int width, int height) {
    widget_->resize(width, height);
    Settle();
  }
  void Destroy() { delete window_; }

  QWidget& Window() { return *window_; }
  QWidget& Desk() { return *desk_; }
  QPointer<qt::DecisionBAR>& Itself() { return widget_; }
  ToolBar& Model() { return widget_->control().Children.DecisionToolBar; }
  ToolButton& Button(std::string_view key) { return Model().Button(key); }

  QToolBar& Bar() { return *static_cast<QToolBar*>(NativeOf(Model())); }
  QToolButton& Native(std::string_view key) { return *qt::ToolBarPeer::NativeOf(Button(key)); }
  QAction& Action(std::string_view key) { return *qt::ToolBarPeer::ActionOf(Button(key)); }
  QToolButton& More() { return *Bar().findChild<QToolButton*>(QStringLiteral("qt_toolbar_ext_button")); }

  void ClickWithMouse(std::string_view key, std::int16_t button = LeftButton) {
    ClickAt(*window_, ReachablePlace(Native(key)).value(), button);
    Settle();
  }
  void Press(Qt::Key key, std::int16_t shift = 0) {
    PressKey(*window_, key, shift);
    Settle();
  }
  /// The keys of the buttons clicked since the last call.
  std::vector<std::string> Clicked() { return std::exchange(clicked_, {}); }

 private:
  QPointer<QWidget> window_;
  QPointer<QWidget> desk_;
  QPointer<qt::DecisionBAR> widget_;
  std::vector<std::string> clicked_;
};

}  // namespace tactix::tests
