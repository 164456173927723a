#pragma once

#include "tactix/platform/Control.h"
#include "tactix/platform/Export.h"
#include "tactix/platform/Site.h"

namespace tactix {

/// The site that a control gives to a control inside it: forwards clock, menus, focus and beep to its own site, takes
/// the ambient from there, and keeps property notices to itself, since the outer control saves no inner properties.
class TACTIX_EXPORT NestedSite final : public Site {
 public:
  explicit NestedSite(Site& outer) : outer_(outer) {}

  Font AmbientFont() const override { return outer_.AmbientFont(); }
  Color AmbientForeColor() const override { return outer_.AmbientForeColor(); }
  Color AmbientBackColor() const override { return outer_.AmbientBackColor(); }
  bool UserMode() const override { return outer_.UserMode(); }
  void PropertyChanged(std::string_view) override {}
  void PropertyTouched() override { outer_.PropertyTouched(); }
  void StartTimer(Timer& timer) override { outer_.StartTimer(timer); }
  void StopTimer(Timer& timer) override { outer_.StopTimer(timer); }
  void RunUntil(const std::function<bool()>& done) override { outer_.RunUntil(done); }
  void Beep() override { outer_.Beep(); }
  void PopUp(Menu& menu, Widget& within, float x, float y) override { outer_.PopUp(menu, within, x, y); }
  float ScreenWidth() const override { return outer_.ScreenWidth(); }
  float ScreenHeight() const override { return outer_.ScreenHeight(); }
  void SetFocus(Widget* widget) override { outer_.SetFocus(widget); }
  Widget* Focus() const override { return outer_.Focus(); }
  void MadeDefault(PushButton& button) override { outer_.MadeDefault(button); }
  void Unhandled(const Error& error) override { outer_.Unhandled(error); }
  Site& Outermost() override { return outer_.Outermost(); }

 private:
  Site& outer_;
};

}  // namespace tactix
