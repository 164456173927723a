#include <utility>

#include "tactix/platform/headless/HeadlessSite.h"
#include "tactix/platform/widgets/ToolBar.h"
#include "tests/support/Robot.h"

namespace tactix::tests {

namespace {

/// One headless site is the window; all controls stand on it.
class HeadlessRobot final : public Robot {
 public:
  tactix::Site& NewSite() override {
    if (!window_) window_ = std::make_unique<HeadlessSite>();
    return *window_;
  }

  void Show(Control& control) override { control.Displayed(); }

  void DestroyWindow(const std::function<void()>& destroyControls) override {
    destroyControls();
    beeps_ = Beeps();
    changes_ = Changes();
    errors_ = Errors();
    window_.reset();
  }

  void Click(PushButton& button) override { button.Click(); }

  void Click(ToolButton& button) override { button.Click(); }

  void Click(Label& label) override { label.Click(); }

  void PressByKey(ToolButton& button) override { button.Click(); }
  void Click(OptionButton& button) override { button.Click(); }

  void MouseDown(Widget& widget, std::int16_t button, std::int16_t shift) override {
    // The mouse has to get there first.
    const Weak<Widget> target(widget);
    MouseMove(widget, shift);
    if (target) widget.MouseDown({button, shift, widget.Width() / 2, widget.Height() / 2});
  }

  void MouseDown(ToolButton& button, std::int16_t mouseButton, std::int16_t shift) override {
    if (button.Visible()) MouseDown(button.Bar(), mouseButton, shift);
  }

  void MouseMove(Widget& widget, std::int16_t shift) override {
    widget.MouseMove({0, shift, widget.Width() / 2, widget.Height() / 2});
  }

  void PressKey(std::int32_t code, std::int16_t shift) override {
    if (window_) window_->PressKey({code, shift});
  }

  void PickRow(ListBox& list, std::int32_t row, PickBy by) override {
    if (!list.Usable()) return;
    const Weak<ListBox> target(list);
    list.SetFocus();
    if (!target) return;
    if (by != PickBy::ArrowKey) {
      list.PickRow(row);
    } else if (row == list.ListIndex() + 1) {
      PressKey(DownArrowKey, 0);
    } else if (row == list.ListIndex() - 1) {
      PressKey(UpArrowKey, 0);
    }
  }

  void SpinUp(SpinButton& spin, SpinBy by) override {
    by == SpinBy::ArrowKey ? PressAt(spin, UpArrowKey) : spin.SpinUp();
  }

  void SpinDown(SpinButton& spin, SpinBy by) override {
    by == SpinBy::ArrowKey ? PressAt(spin, DownArrowKey) : spin.SpinDown();
  }

  void OnNextMenu(std::function<void(Menu&)> script) override {
    if (window_) window_->ScriptMenu(std::move(script));
  }

  void Choose(Menu&, MenuEntry& entry) override { entry.Choose(); }

  void After(std::int64_t milliseconds, std::function<void()> action) override {
    if (window_) window_->After(milliseconds, std::move(action));
  }

  void Wait(std::int64_t milliseconds) override {
    if (window_) window_->Advance(milliseconds);
  }

  void OnPropertyChanged(std::function<void()> handler) override {
    if (window_) window_->OnPropertyChanged([handler = std::move(handler)](std::string_view) { handler(); });
  }

  int Beeps() const override { return window_ ? beeps_ + window_->Beeps() : beeps_; }

  std::vector<std::string> Changes() const override {
    return window_ ? Joined(changes_, window_->Changes()) : changes_;
  }

  std::vector<Error> Errors() const override { return window_ ? Joined(errors_, window_->Errors()) : errors_; }

  Widget* Focus() const override { return window_ ? window_->Focus() : nullptr; }

  bool SeesShown(const Widget& widget) const override { return widget.Shown(); }

  std::string SeesText(const Widget& widget) const override {
    Variant text;
    if (widget.ReadMember("Caption", text)) return PlainCaption(text.ToText());
    if (widget.ReadMember("Text", text)) return text.ToText();
    return {};
  }

  bool SeesEnabled(const Widget& widget) const override {
    for (const Widget* at = &widget; at; at = at->Parent()) {
      if (!at->Enabled()) return false;
    }
    return true;
  }

  bool SeesShown(const ToolButton& button) const override { return button.Visible() && SeesShown(button.Bar()); }

  std::string SeesText(const ToolButton& button) const override { return button.Caption(); }

  bool SeesEnabled(const ToolButton& button) const override { return button.Enabled() && SeesEnabled(button.Bar()); }

  bool SeesPressed(const ToolButton& button) const override { return button.Value(); }
  bool SeesMarked(const OptionButton& button) const override { return button.Value(); }

  bool SeesChecked(Menu&, const MenuEntry& entry) const override { return entry.Checked(); }

 private:
  /// With the focus there, if it can have it.
  void PressAt(Widget& widget, std::int32_t code) {
    if (!widget.Usable()) return;
    const Weak<Widget> target(widget);
    widget.SetFocus();
    if (target) PressKey(code, 0);
  }

  template <class T>
  static std::vector<T> Joined(std::vector<T> first, const std::vector<T>& second) {
    first.insert(first.end(), second.begin(), second.end());
    return first;
  }

  std::unique_ptr<HeadlessSite> window_;
  // What windows that are gone have recorded.
  int beeps_ = 0;
  std::vector<std::string> changes_;
  std::vector<Error> errors_;
};

}  // namespace

std::unique_ptr<Robot> Robot::Make() { return std::make_unique<HeadlessRobot>(); }

}  // namespace tactix::tests
