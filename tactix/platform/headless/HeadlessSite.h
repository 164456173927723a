#pragma once

#include <cstdint>
#include <deque>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "tactix/platform/Export.h"
#include "tactix/platform/FocusKeeper.h"
#include "tactix/platform/Site.h"
#include "tactix/platform/widgets/Menu.h"
#include "tactix/platform/widgets/PushButton.h"
#include "tactix/platform/widgets/Widget.h"

namespace tactix {

/// A site without a toolkit, for tests and tools: one window's worth of controls, a virtual clock that moves only when
/// something waits or Advance is called, scripted menus, and a record of what the controls asked for.
class TACTIX_EXPORT HeadlessSite : public Site {
 public:
  HeadlessSite() = default;

  // The ambient; controls are told with Control::AmbientChanged.
  Font AmbientFont() const override { return ambientFont_; }
  void AmbientFont(const Font& font) { ambientFont_ = font; }
  Color AmbientForeColor() const override { return ambientForeColor_; }
  void AmbientForeColor(Color color) { ambientForeColor_ = color; }
  Color AmbientBackColor() const override { return ambientBackColor_; }
  void AmbientBackColor(Color color) { ambientBackColor_ = color; }
  /// True by default.
  bool UserMode() const override { return userMode_; }
  void UserMode(bool running) { userMode_ = running; }
  /// 1024 by 768 pixels by default, in twips.
  float ScreenWidth() const override { return screenWidth_; }
  float ScreenHeight() const override { return screenHeight_; }
  void ScreenSize(float width, float height) {
    screenWidth_ = width;
    screenHeight_ = height;
  }

  /// Milliseconds since the site was made.
  std::int64_t Now() const { return now_; }
  /// Lets time pass: timers tick and scheduled actions run in order of their time.
  void Advance(std::int64_t milliseconds);
  /// Runs an action when the clock has moved on by that much, in the middle of a wait too.
  void After(std::int64_t milliseconds, std::function<void()> action);

  /// What the user does with the next menu that pops up; a menu without a script closes without a choice. The script
  /// runs while the menu is open.
  void ScriptMenu(std::function<void(Menu&)> script) { menuScripts_.push_back(std::move(script)); }

  /// The user presses a key: an access key (Alt and the letter) of an element of any control here comes first, then
  /// Enter for the default button, then the focused widget. False when nothing took it.
  bool PressKey(const KeyPress& key);

  struct PopUpRecord {
    std::string caption;
    float x;
    float y;
  };
  /// What the controls asked for, in order.
  const std::vector<std::string>& Changes() const { return changes_; }
  const std::vector<PopUpRecord>& PopUps() const { return popUps_; }
  const std::vector<Error>& Errors() const { return errors_; }
  int Beeps() const { return beeps_; }
  void ForgetRecords();

  /// Called for every property-changed notice, after it was recorded.
  void OnPropertyChanged(std::function<void(std::string_view)> handler) { onPropertyChanged_ = std::move(handler); }

  void Attach(Control& control) override { controls_.push_back(&control); }
  void Detach(Control& control) override { std::erase(controls_, &control); }
  void PropertyChanged(std::string_view name) override;
  void StartTimer(Timer& timer) override;
  void StopTimer(Timer& timer) override;
  /// Fails with std::logic_error when nothing is left that could ever end the wait.
  void RunUntil(const std::function<bool()>& done) override;
  void Beep() override { ++beeps_; }
  void PopUp(Menu& menu, Widget& within, float x, float y) override;
  void SetFocus(Widget* widget) override { focus_.MoveTo(widget); }
  Widget* Focus() const override { return focus_.Focus(); }
  void MadeDefault(PushButton& button) override;
  void Unhandled(const Error& error) override { errors_.push_back(error); }

 private:
  struct RunningTimer {
    Timer* timer;
    std::int64_t due;
    std::uint64_t order;
  };
  struct Scheduled {
    std::int64_t due;
    std::uint64_t order;
    std::function<void()> action;
  };

  /// Runs what is due first, unless that is later than `latest`; false when there is nothing.
  bool RunNext(std::int64_t latest);

  std::vector<Control*> controls_;
  std::vector<RunningTimer> timers_;
  std::vector<Scheduled> scheduled_;
  std::deque<std::function<void(Menu&)>> menuScripts_;
  std::function<void(std::string_view)> onPropertyChanged_;
  std::vector<std::string> changes_;
  std::vector<PopUpRecord> popUps_;
  std::vector<Error> errors_;
  FocusKeeper focus_;
  Weak<Menu> openMenu_;
  Weak<PushButton> default_;
  Font ambientFont_;
  Color ambientForeColor_ = WindowTextColor;
  Color ambientBackColor_ = ButtonFaceColor;
  float screenWidth_ = 1024 * 15;
  float screenHeight_ = 768 * 15;
  std::int64_t now_ = 0;
  std::uint64_t order_ = 0;
  int beeps_ = 0;
  bool userMode_ = true;
};

}  // namespace tactix
