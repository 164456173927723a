#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>
#include <tuple>

#include "tactix/platform/Control.h"
#include "tactix/platform/Event.h"
#include "tactix/platform/NestedSite.h"
#include "tactix/platform/Timer.h"
#include "tactix/platform/widgets/Label.h"
#include "tactix/platform/widgets/ListBox.h"
#include "tactix/platform/widgets/Menu.h"
#include "tactix/platform/widgets/Panel.h"
#include "tactix/platform/widgets/PushButton.h"

namespace tactix::tests {

/// A control that tells a test about its container's notifications, as "outer: Resized".
class NotingControl : public Control {
 public:
  NotingControl(Site& site, std::string who) : Control(site), who_(std::move(who)) {}

  void InitProperties() override { Note("InitProperties"); }
  void Resized() override { Note("Resized"); }
  void GotFocus() override { Note("GotFocus"); }
  void Displayed() override;
  void AmbientChanged() override;
  void Terminated() override;

  std::function<void(std::string)> OnNote;

 private:
  /// False when the control no longer exists.
  bool Note(const char* what);

  std::string who_;
};

/// Stands inside the outer probe; its places are in pixels.
class InnerProbe final : public NotingControl {
 public:
  explicit InnerProbe(Site& site);

  /// Saved as "Mark".
  void Mark(std::int32_t mark);

  struct EventSet {
    Event<> InnerClicked{1, "InnerClicked"};
    Event<std::int32_t&> InnerPicked{2, "InnerPicked"};

    auto All() { return std::tie(InnerClicked, InnerPicked); }
  } Events;

  struct ChildWidgets {
    PushButton InnerButton;
    ListBox InnerList;
  } Children;

 private:
  std::int32_t mark_ = 0;
};

/// A control with a bit of everything, for tests of the platform and of front ends; its places are in twips.
class OuterProbe final : public NotingControl {
 public:
  explicit OuterProbe(Site& site);

  /// Saved as "Tag"; raises TagChanged after the notice.
  const std::string& Tag() const { return tag_; }
  void Tag(std::string_view tag);
  /// Its own, no more than a number: they neither move the control nor enable or hide it.
  std::int32_t Left() const { return left_; }
  void Left(std::int32_t left) { left_ = left; }
  bool Enabled() const { return enabled_; }
  void Enabled(bool enabled) { enabled_ = enabled; }
  bool Visible() const { return visible_; }
  void Visible(bool visible) { visible_ = visible; }
  std::int16_t PickCount() const { return pickCount_; }
  void Secret(std::int32_t secret) { secret_ = secret; }

  /// Waits with the timer's next tick for an end, then raises WaitEnded.
  void WaitFor(std::int32_t milliseconds);
  /// Pops the menu up, then raises MenuClosed.
  void PopUpMenu();

  void ReadProperties(PropertyBag& bag) override;
  void WriteProperties(PropertyBag& bag) override;
  const PropertyTable& Properties() const override;

  struct EventSet {
    Event<> FirstClicked{1, "FirstClicked"};
    Event<> SecondClicked{2, "SecondClicked"};
    Event<> PanelClicked{3, "PanelClicked"};
    Event<std::int32_t&> RowPicked{4, "RowPicked"};
    Event<std::int16_t> MenuChosen{5, "MenuChosen"};
    Event<> MenuClosed{6, "MenuClosed"};
    Event<> WaitEnded{7, "WaitEnded"};
    Event<> TagChanged{8, "TagChanged"};
    /// Which key map ran, and the letter; "" for other keys.
    Event<std::string_view, std::string> KeyPressed{9, "KeyPressed"};
    Event<std::int16_t, std::int16_t> MouseWasDown{10, "MouseWasDown"};
    Event<std::int16_t, std::int16_t> MouseWasMoved{11, "MouseWasMoved"};

    auto All() {
      return std::tie(FirstClicked, SecondClicked, PanelClicked, RowPicked, MenuChosen, MenuClosed, WaitEnded,
                      TagChanged, KeyPressed, MouseWasDown, MouseWasMoved);
    }
  } Events;

  // Before the children: the inner control stands on it until its end.
  NestedSite SiteOfInner;

  struct ChildWidgets {
    explicit ChildWidgets(Site& site, Site& siteOfInner) : WaitTimer(site), Inner(siteOfInner) {}

    PushButton FirstButton;   // has a key map of its own
    PushButton SecondButton;  // has none
    PushButton MenuButton;
    PushButton WaitButton;
    Label StatusLabel;
    Panel ButtonPanel;  // has a key map
    PushButton PanelButton;
    ListBox RowList;
    Menu ProbeMenu;
    MenuEntry PlainEntry;
    MenuEntry CheckedEntry;
    MenuEntry DisabledEntry;
    MenuEntry HiddenEntry;
    MenuEntry SeparatorEntry;
    MenuEntry MoreEntry;  // opens the next
    MenuEntry DeepEntry;
    Timer WaitTimer;
    InnerProbe Inner;
  } Children;

 private:
  void AddTheButtons();
  void AddTheMenu();
  void RaiseKey(std::string_view map, const KeyPress& key);

  std::string tag_;
  std::int32_t left_ = 0;
  std::int32_t secret_ = 0;
  std::int16_t pickCount_ = 0;
  bool enabled_ = true;
  bool visible_ = true;
  bool ticked_ = false;
};

}  // namespace tactix::tests
