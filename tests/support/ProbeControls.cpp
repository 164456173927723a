#include "tests/support/ProbeControls.h"

#include <utility>

#include "tactix/platform/PropertyTable.h"

namespace tactix::tests {

bool NotingControl::Note(const char* what) {
  const Weak<NotingControl> self(this);
  if (const auto note = OnNote) note(who_ + ": " + what);
  return static_cast<bool>(self);
}

void NotingControl::Displayed() {
  if (Note("Displayed")) Control::Displayed();
}

void NotingControl::AmbientChanged() {
  if (Note("AmbientChanged")) Control::AmbientChanged();
}

void NotingControl::Terminated() {
  if (Note("Terminated")) Control::Terminated();
}

InnerProbe::InnerProbe(Site& site) : NotingControl(site, "inner") {
  Extender().Scale(ScaleUnit::Pixels);
  Extender().DesignSize(2400, 1200);
  Extender().Add(Children.InnerButton, "InnerButton");
  Children.InnerButton.Caption("&Inner");
  Children.InnerButton.Place(5, 5, 80, 25);
  Children.InnerButton.Clicked.Connect([this] { Events.InnerClicked.Raise(); });
  Extender().Add(Children.InnerList, "InnerList");
  Children.InnerList.Place(5, 40, 120, 21);
  for (const char* row : {"one", "two", "three"}) Children.InnerList.AddItem(row);
  Children.InnerList.Clicked.Connect([this] {
    std::int32_t row = Children.InnerList.ListIndex();
    Events.InnerPicked.Raise(row);
  });
}

void InnerProbe::Mark(std::int32_t mark) {
  mark_ = mark;
  NotifyChanged("Mark");
}

OuterProbe::OuterProbe(Site& site) : NotingControl(site, "outer"), SiteOfInner(site), Children(site, SiteOfInner) {
  Extender().DesignSize(6000, 3000);
  AddTheButtons();
  AddTheMenu();

  Extender().Add(Children.RowList, "RowList");
  Children.RowList.Place(100, 2000, 2500, 315);
  for (const char* row : {"apple", "banana", "cherry", "avocado", ""}) Children.RowList.AddItem(row);
  Children.RowList.Clicked.Connect([this] {
    ++pickCount_;
    std::int32_t row = Children.RowList.ListIndex();
    Events.RowPicked.Raise(row);
  });

  Extender().Add(Children.Inner.Extender(), "Inner");
  Children.Inner.Extender().Place(3000, 1000, 2400, 1200);

  Children.WaitTimer.Tick.Connect([this] {
    ticked_ = true;
    Children.WaitTimer.Enabled(false);
  });
  Extender().OnKeyDown([this](const KeyPress& key) { RaiseKey("box", key); });
}

void OuterProbe::AddTheButtons() {
  struct Row {
    PushButton& button;
    const char* name;
    const char* caption;
    float left;
  };
  const Row rows[] = {
      {Children.FirstButton, "FirstButton", "&First", 100},
      {Children.SecondButton, "SecondButton", "&Second", 1400},
      {Children.MenuButton, "MenuButton", "&Menu", 2700},
      {Children.WaitButton, "WaitButton", "&Wait", 4000},
  };
  for (const Row& row : rows) {
    Extender().Add(row.button, row.name);
    row.button.Caption(row.caption);
    row.button.Place(row.left, 100, 1200, 375);
  }
  Extender().Add(Children.StatusLabel, "StatusLabel");
  Children.StatusLabel.Caption("Ready");
  Children.StatusLabel.Place(100, 600, 2500, 300);
  Extender().Add(Children.ButtonPanel, "ButtonPanel");
  Children.ButtonPanel.Place(100, 1000, 2600, 800);
  Children.ButtonPanel.Add(Children.PanelButton, "PanelButton");
  Children.PanelButton.Caption("&Panel");
  Children.PanelButton.Place(100, 100, 1200, 375);

  Children.FirstButton.Clicked.Connect([this] { Events.FirstClicked.Raise(); });
  Children.FirstButton.OnKeyDown([this](const KeyPress& key) { RaiseKey("first", key); });
  Children.SecondButton.Clicked.Connect([this] { Events.SecondClicked.Raise(); });
  Children.MenuButton.Clicked.Connect([this] { PopUpMenu(); });
  Children.WaitButton.Clicked.Connect([this] { WaitFor(400); });
  Children.ButtonPanel.OnKeyDown([this](const KeyPress& key) { RaiseKey("panel", key); });
  Children.ButtonPanel.MousePressed.Connect(
      [this](const MouseState& mouse) { Events.MouseWasDown.Raise(mouse.button, mouse.shift); });
  Children.ButtonPanel.MouseMoved.Connect(
      [this](const MouseState& mouse) { Events.MouseWasMoved.Raise(mouse.button, mouse.shift); });
  Children.PanelButton.Clicked.Connect([this] { Events.PanelClicked.Raise(); });
}

void OuterProbe::AddTheMenu() {
  struct Row {
    MenuEntry& entry;
    const char* caption;
  };
  const Row rows[] = {
      {Children.PlainEntry, "&Plain"},   {Children.CheckedEntry, "&Checked"}, {Children.DisabledEntry, "&Disabled"},
      {Children.HiddenEntry, "&Hidden"}, {Children.SeparatorEntry, "-"},      {Children.MoreEntry, "&More"},
      {Children.DeepEntry, "D&eep"},
  };
  Children.ProbeMenu.Caption("Probe");
  std::int16_t index = 0;
  for (const Row& row : rows) {
    MenuEntry& entry = row.entry;
    entry.Caption(row.caption);
    entry.Index(++index);
    (&entry == &Children.DeepEntry ? Children.MoreEntry : Children.ProbeMenu).Add(entry);
    entry.Chosen.Connect([this, &entry] { Events.MenuChosen.Raise(entry.Index()); });
  }
  Children.CheckedEntry.Checked(true);
  Children.DisabledEntry.Enabled(false);
  Children.HiddenEntry.Visible(false);
}

void OuterProbe::RaiseKey(std::string_view map, const KeyPress& key) {
  const char letter = key.Letter();
  Events.KeyPressed.Raise(map, letter == '\0' ? std::string() : std::string(1, letter));
}

void OuterProbe::Tag(std::string_view tag) {
  tag_.assign(tag);
  const Weak<OuterProbe> self(this);
  NotifyChanged("Tag");
  if (self) Events.TagChanged.Raise();
}

void OuterProbe::WaitFor(std::int32_t milliseconds) {
  const Weak<OuterProbe> self(this);
  ticked_ = false;
  Children.WaitTimer.Interval(milliseconds);
  Children.WaitTimer.Enabled(true);
  ItsSite().RunUntil([self] { return !self || self->ticked_; });
  if (self) Events.WaitEnded.Raise();
}

void OuterProbe::PopUpMenu() {
  const Weak<OuterProbe> self(this);
  ItsSite().PopUp(Children.ProbeMenu, Extender(), 200, 300);
  if (self) Events.MenuClosed.Raise();
}

void OuterProbe::ReadProperties(PropertyBag& bag) { tag_ = bag.Read("Tag", "").ToText(); }

void OuterProbe::WriteProperties(PropertyBag& bag) { bag.Write("Tag", tag_, ""); }

const PropertyTable& OuterProbe::Properties() const {
  static const PropertyTable table = PropertyTable()
                                         .Property("Tag", &OuterProbe::Tag, &OuterProbe::Tag)
                                         .Property("Left", &OuterProbe::Left, &OuterProbe::Left)
                                         .Property("Enabled", &OuterProbe::Enabled, &OuterProbe::Enabled)
                                         .Property("Visible", &OuterProbe::Visible, &OuterProbe::Visible)
                                         .GetOnly("PickCount", &OuterProbe::PickCount)
                                         .SetOnly("Secret", &OuterProbe::Secret);
  return table;
}

}  // namespace tactix::tests
