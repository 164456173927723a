#include "tactix/platform/headless/HeadlessSite.h"

#include <algorithm>
#include <limits>
#include <stdexcept>
#include <utility>

#include "tactix/platform/Control.h"
#include "tactix/platform/Timer.h"
#include "tactix/platform/widgets/OptionButton.h"

namespace tactix {

namespace {

bool IsButton(const Widget& widget) {
  return widget.Kind() == WidgetKind::PushButton || widget.Kind() == WidgetKind::OptionButton;
}

/// The first button below a widget whose caption marks the letter and that the user can reach.
Widget* FindAccessKey(Widget& widget, char letter) {
  if (!widget.Visible() || !widget.Enabled()) return nullptr;
  if (IsButton(widget) && static_cast<Captioned&>(widget).AccessKey() == letter) return &widget;
  for (Widget* child : widget.Children()) {
    if (Widget* found = FindAccessKey(*child, letter)) return found;
  }
  return nullptr;
}

/// Closes a menu that still exists, also where its script fails.
struct ClosedAtTheEnd {
  Weak<Menu> menu;
  ~ClosedAtTheEnd() {
    if (menu) menu->Close();
  }
};

void Click(Widget& button) {
  if (button.Kind() == WidgetKind::PushButton) {
    static_cast<PushButton&>(button).Click();
  } else {
    static_cast<OptionButton&>(button).Click();
  }
}

}  // namespace

void HeadlessSite::Advance(std::int64_t milliseconds) {
  const Weak<HeadlessSite> self(this);
  const std::int64_t end = now_ + milliseconds;
  while (RunNext(end)) {
    if (!self) return;
  }
  now_ = std::max(now_, end);
}

void HeadlessSite::After(std::int64_t milliseconds, std::function<void()> action) {
  scheduled_.push_back({now_ + milliseconds, ++order_, std::move(action)});
}

bool HeadlessSite::RunNext(std::int64_t latest) {
  const auto sooner = [](const auto& a, const auto& b) {
    return std::pair(a.due, a.order) < std::pair(b.due, b.order);
  };
  const auto timer = std::min_element(timers_.begin(), timers_.end(), sooner);
  const auto scheduled = std::min_element(scheduled_.begin(), scheduled_.end(), sooner);
  const bool timerFirst =
      timer != timers_.end() && (scheduled == scheduled_.end() ||
                                 std::pair(timer->due, timer->order) < std::pair(scheduled->due, scheduled->order));
  if (timerFirst && timer->due <= latest) {
    now_ = std::max(now_, timer->due);
    timer->due += std::max(timer->timer->Interval(), 1);
    timer->order = ++order_;
    timer->timer->Elapse();
    return true;
  }
  if (!timerFirst && scheduled != scheduled_.end() && scheduled->due <= latest) {
    now_ = std::max(now_, scheduled->due);
    const auto action = std::move(scheduled->action);
    scheduled_.erase(scheduled);
    action();
    return true;
  }
  return false;
}

void HeadlessSite::RunUntil(const std::function<bool()>& done) {
  const Weak<HeadlessSite> self(this);
  while (!done()) {
    if (!RunNext(std::numeric_limits<std::int64_t>::max())) throw std::logic_error("nothing would ever end this wait");
    if (!self) return;
  }
}

void HeadlessSite::StartTimer(Timer& timer) {
  StopTimer(timer);
  timers_.push_back({&timer, now_ + std::max(timer.Interval(), 1), ++order_});
}

void HeadlessSite::StopTimer(Timer& timer) {
  std::erase_if(timers_, [&timer](const RunningTimer& running) { return running.timer == &timer; });
}

void HeadlessSite::PropertyChanged(std::string_view name) {
  changes_.emplace_back(name);
  if (const auto handler = onPropertyChanged_) handler(name);
}

void HeadlessSite::PopUp(Menu& menu, Widget&, float x, float y) {
  if (Menu* open = openMenu_.Get()) open->Close();
  openMenu_ = Weak<Menu>(menu);
  menu.Opened(*this);
  popUps_.push_back({menu.Caption(), x, y});
  if (menuScripts_.empty()) return menu.Close();
  const ClosedAtTheEnd closed{Weak<Menu>(menu)};
  const auto script = std::move(menuScripts_.front());
  menuScripts_.pop_front();
  script(menu);
}

void HeadlessSite::MadeDefault(PushButton& button) {
  PushButton* const before = default_.Get();
  default_ = Weak<PushButton>(button);
  if (before && before != &button) before->DEFAULT(false);
}

bool HeadlessSite::PressKey(const KeyPress& key) {
  if ((key.shift & AltKey) != 0 && key.Letter() != '\0') {
    for (Control* control : controls_) {
      if (Widget* button = FindAccessKey(control->Extender(), key.Letter())) {
        Click(*button);
        return true;
      }
    }
  }
  if (key.code == ReturnKey) {
    PushButton* const button = default_.Get();
    if (button && button->DEFAULT() && button->Usable()) {
      button->Click();
      return true;
    }
  }
  Widget* const focused = focus_.Focus();
  return focused && focused->KeyDown(key);
}

void HeadlessSite::ForgetRecords() {
  changes_.clear();
  popUps_.clear();
  errors_.clear();
  beeps_ = 0;
}

}  // namespace tactix
