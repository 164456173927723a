#pragma once

#include <QPointer>
#include <QTest>
#include <QWidget>
#include <memory>
#include <utility>

#include "tactix-qt/ControlWidget.h"
#include "tests/support-qt/Gestures.h"
#include "tests/support/EventRecorder.h"
#include "tests/support/ProbeControls.h"

namespace tactix::tests {

/// A control as a widget class of its own, as hosts use it.
class ProbeWidget final : public qt::ControlWidget {
 public:
  explicit ProbeWidget(QWidget* parent = nullptr) : ControlWidget(parent) {
    auto control = std::make_unique<OuterProbe>(ItsSite());
    probe_ = control.get();
    Own(std::move(control));
  }
  ~ProbeWidget() override { EndControl(); }

  OuterProbe& Probe() const { return *probe_; }

 private:
  OuterProbe* probe_;
};

/// A host's window with one probe in it and a widget of the host's own, which has the focus at first.
class NativeProbeWindow {
 public:
  NativeProbeWindow() : window_(new QWidget), desk_(new QWidget(window_)), widget_(new ProbeWidget(window_)) {
    desk_->setGeometry(0, 0, 10, 10);
    desk_->setFocusPolicy(Qt::StrongFocus);
    desk_->setFocus();
    widget_->move(0, 10);
    window_->resize(500, 400);
    recorder_.Watch(Probe().Events.All());
    recorder_.Watch(Probe().Children.Inner.Events.All());
  }
  ~NativeProbeWindow() {
    delete window_;
    Settle();
  }
  NativeProbeWindow(const NativeProbeWindow&) = delete;
  NativeProbeWindow& operator=(const NativeProbeWindow&) = delete;

  void Show() {
    window_->show();
    window_->activateWindow();
    static_cast<void>(QTest::qWaitForWindowActive(window_));
    Settle();
  }

  QWidget& Window() { return *window_; }
  QWidget& Desk() { return *desk_; }
  ProbeWidget& Itself() { return *widget_; }
  OuterProbe& Probe() { return widget_->Probe(); }
  OuterProbe::ChildWidgets& Children() { return Probe().Children; }
  EventRecorder& Recorder() { return recorder_; }

  void Destroy() { delete window_; }
  bool IsGone() const { return !window_; }

 private:
  QPointer<QWidget> window_;
  QPointer<QWidget> desk_;
  QPointer<ProbeWidget> widget_;
  EventRecorder recorder_;
};

}  // namespace tactix::tests
