#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "tactix/platform/Control.h"
#include "tactix/platform/Error.h"
#include "tactix/platform/Site.h"
#include "tactix/platform/widgets/Label.h"
#include "tactix/platform/widgets/ListBox.h"
#include "tactix/platform/widgets/Menu.h"
#include "tactix/platform/widgets/OptionButton.h"
#include "tactix/platform/widgets/PushButton.h"
#include "tactix/platform/widgets/SpinButton.h"
#include "tactix/platform/widgets/ToolButton.h"
#include "tactix/platform/widgets/Widget.h"

namespace tactix::tests {

/// A user at a window that holds one or more controls. Behaviour tests are written against it once; one implementation
/// drives the headless site, another real Qt widgets with real mouse and key events.
class Robot {
 public:
  virtual ~Robot() = default;

  /// Makes the robot of the front end under test: each test executable links one of the two.
  static std::unique_ptr<Robot> Make();

  /// A site for one control; several controls of one robot stand in one window, each on a site of its own or a common
  /// one, as the front end has it. It lives as long as the robot, or until DestroyWindow.
  virtual tactix::Site& NewSite() = 0;
  /// Puts the control, already given its properties, into the window and shows it.
  virtual void Show(Control& control) = 0;
  /// What happens when the user closes the window: `destroyControls` is called, and everything drawn goes with it. May
  /// be called from a handler.
  virtual void DestroyWindow(const std::function<void()>& destroyControls) = 0;

  // What the user does, at a widget that the front end draws. A widget that a user cannot reach does not react.
  virtual void Click(PushButton& button) = 0;
  virtual void Click(ToolButton& button) = 0;
  virtual void Click(Label& label) = 0;
  /// Gives a toolbar's button the focus and presses it there.
  virtual void PressByKey(ToolButton& button) = 0;
  virtual void Click(OptionButton& button) = 0;
  virtual void MouseDown(Widget& widget, std::int16_t button, std::int16_t shift) = 0;
  /// A press on a toolbar's button is one on its bar, too.
  virtual void MouseDown(ToolButton& button, std::int16_t mouseButton, std::int16_t shift) = 0;
  virtual void MouseMove(Widget& widget, std::int16_t shift) = 0;
  /// A key for whatever has the focus in the window: access keys, the default button and key maps included.
  virtual void PressKey(std::int32_t code, std::int16_t shift = 0) = 0;
  enum class PickBy { Mouse, ReturnKey, ArrowKey };
  /// Picks a row of a list. By arrow key, the row must be the next or the previous one.
  virtual void PickRow(ListBox& list, std::int32_t row, PickBy by = PickBy::Mouse) = 0;
  enum class SpinBy { Mouse, Wheel, ArrowKey };
  /// Spins by one.
  virtual void SpinUp(SpinButton& spin, SpinBy by = SpinBy::Mouse) = 0;
  virtual void SpinDown(SpinButton& spin, SpinBy by = SpinBy::Mouse) = 0;
  /// What the user does with the next menu that opens: runs while it is open. Scripts queue up; without one a menu is
  /// closed without a choice.
  virtual void OnNextMenu(std::function<void(Menu&)> script) = 0;
  /// Inside a menu script: chooses the entry, if the user can.
  virtual void Choose(Menu& menu, MenuEntry& entry) = 0;
  /// Runs an action that many milliseconds from now, in the middle of a wait too. Time goes on only in waits, as fast
  /// as what happens in them allows; see also When.
  virtual void After(std::int64_t milliseconds, std::function<void()> action) = 0;
  /// Lets time pass.
  virtual void Wait(std::int64_t milliseconds) = 0;
  /// Runs inside every property-changed notice, after it was recorded.
  virtual void OnPropertyChanged(std::function<void()> handler) = 0;

  // What can be seen and heard.
  virtual int Beeps() const = 0;
  /// Names of the property-changed notices of all sites, in order.
  virtual std::vector<std::string> Changes() const = 0;
  /// Errors that ended at the sites.
  virtual std::vector<Error> Errors() const = 0;
  /// The widget with the focus, or null.
  virtual Widget* Focus() const = 0;
  /// What the user sees of a widget: shown on the screen, its text as drawn, whether it takes clicks.
  virtual bool SeesShown(const Widget& widget) const = 0;
  virtual std::string SeesText(const Widget& widget) const = 0;
  virtual bool SeesEnabled(const Widget& widget) const = 0;
  virtual bool SeesShown(const ToolButton& button) const = 0;
  virtual std::string SeesText(const ToolButton& button) const = 0;
  virtual bool SeesEnabled(const ToolButton& button) const = 0;
  virtual bool SeesPressed(const ToolButton& button) const = 0;
  virtual bool SeesMarked(const OptionButton& button) const = 0;
  /// True for a checked entry of the open menu, as drawn.
  virtual bool SeesChecked(Menu& menu, const MenuEntry& entry) const = 0;
};

}  // namespace tactix::tests
