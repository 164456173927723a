#pragma once

#include <QFont>
#include <QPoint>
#include <functional>
#include <memory>
#include <vector>

#include "tactix-qt/Export.h"
#include "tactix/platform/FocusKeeper.h"
#include "tactix/platform/Site.h"
#include "tactix/platform/widgets/PushButton.h"
#include "tactix/platform/widgets/Widget.h"

class QObject;

namespace tactix::qt {

class ControlWidget;
class QtTimers;

/// The site of the control on one ControlWidget: clock, waits, menus, focus and default button by means of Qt.
class TACTIX_QT_EXPORT QtSite final : public Site {
 public:
  explicit QtSite(ControlWidget& widget);
  ~QtSite() override;

  /// What beeps instead of QApplication::beep(); empty again for that.
  static void BeepWith(std::function<void()> beep);

  void Attach(Control& control) override;
  void Detach(Control& control) override;
  Font AmbientFont() const override;
  /// What the host has set of a font, on the widget or around it up to the window, in the font's resolve mask.
  QFont HostFont() const;
  /// System colours, except where the host has set a palette on the widget or around it.
  Color AmbientForeColor() const override;
  Color AmbientBackColor() const override;
  bool UserMode() const override { return userMode_; }
  void UserMode(bool running) { userMode_ = running; }
  void PropertyChanged(std::string_view name) override;
  void PropertyTouched() override;
  void StartTimer(Timer& timer) override;
  void StopTimer(Timer& timer) override;
  /// Ends early when the application quits.
  void RunUntil(const std::function<bool()>& done) override;
  void Beep() override;
  void PopUp(Menu& menu, Widget& within, float x, float y) override;
  float ScreenWidth() const override;
  float ScreenHeight() const override;
  void SetFocus(Widget* widget) override;
  Widget* Focus() const override;
  void MadeDefault(PushButton& button) override;
  void Unhandled(const Error& error) override;

  /// The default button of the window if the user can press it, or null.
  PushButton* DefaultButton() const;

  // For peers: Qt has moved the focus.
  void FocusArrived(Widget& widget);
  void FocusLeft();
  // For peers: a child widget has changed, and a property with it, perhaps.
  void WidgetChanged() { PropertyTouched(); }
  // For peers: a user can reach a child widget from now on, or no longer.
  void ReachChanged();
  // For peers: a child widget has another font.
  void FontsChanged();

 private:
  void ReportArrival();
  PushButton* UsableDefault() const;

  struct DeleteLater {
    void operator()(QObject* object) const;
  };

  ControlWidget& widget_;
  std::unique_ptr<QtTimers, DeleteLater> timers_;
  FocusKeeper focus_;
  Weak<Widget> arrived_;
  Weak<PushButton> default_;
  bool arrivalIsPosted_ = false;
  bool settingFocus_ = false;
  bool userMode_ = true;
};

}  // namespace tactix::qt
