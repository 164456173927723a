#pragma once

#include <functional>
#include <string_view>

#include "tactix/platform/Site.h"

namespace tactix::tests {

/// A site that only calls a test when it beeps or moves the focus.
class BareSite final : public Site {
 public:
  std::function<void()> OnBeep;
  Widget* Focused = nullptr;
  std::function<void()> OnSetFocus;

  tactix::Font AmbientFont() const override { return {}; }
  Color AmbientForeColor() const override { return WindowTextColor; }
  Color AmbientBackColor() const override { return WindowColor; }
  bool UserMode() const override { return true; }
  void PropertyChanged(std::string_view) override {}
  void StartTimer(Timer&) override {}
  void StopTimer(Timer&) override {}
  void RunUntil(const std::function<bool()>&) override {}
  void Beep() override { OnBeep(); }
  void PopUp(Menu&, Widget&, float, float) override {}
  float ScreenWidth() const override { return 0; }
  float ScreenHeight() const override { return 0; }
  void SetFocus(Widget*) override { OnSetFocus(); }
  Widget* Focus() const override { return Focused; }
  void MadeDefault(PushButton&) override {}
  void Unhandled(const Error&) override {}
};

}  // namespace tactix::tests
