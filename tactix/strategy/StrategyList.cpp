#include "tactix/strategy/StrategyList.h"

#include "tactix/platform/NumberText.h"
#include "tactix/platform/PropertyTable.h"
#include "tactix/platform/Tolerance.h"
#include "tactix/strategy/PlayingDescription.h"
#include "tactix/strategy/RowTexts.h"
#include "tactix/strategy/StrategyListData.h"

namespace tactix {

namespace {

constexpr float DesignWidth = 2415;
constexpr float DesignHeight = 390;

}  // namespace

StrategyList::StrategyList(Site& site) : Control(site) {
  ListBox& box = Children.StrategyListBox;
  Extender().Add(box, "StrategyListBox");
  Extender().DesignSize(DesignWidth, DesignHeight);
  box.Place(0, 0, DesignWidth, DesignHeight);
  box.Text(SelectAStrategyText);
  box.Font({"Comic Sans MS", 8.25F});
  box.Clicked.Connect([this] { ReportTheStrategySelection(); });
  box.Changed.Connect([this] { ReportTheStrategySelection(); });
}

StrategyList::~StrategyList() = default;

void StrategyList::AddItem(std::string_view item, std::optional<std::int32_t> index) {
  Children.StrategyListBox.AddItem(item, index);
}

Color StrategyList::BackColor() const { return Children.StrategyListBox.BackColor(); }

void StrategyList::BackColor(Color color) {
  Children.StrategyListBox.BackColor(color);
  NotifyChanged("BackColor");
}

Color StrategyList::ForeColor() const { return Children.StrategyListBox.ForeColor(); }

void StrategyList::ForeColor(Color color) {
  Children.StrategyListBox.ForeColor(color);
  NotifyChanged("ForeColor");
}

bool StrategyList::Enabled() const { return Children.StrategyListBox.Enabled(); }

void StrategyList::Enabled(bool enabled) {
  const Weak<StrategyList> self(this);
  Children.StrategyListBox.Enabled(enabled);
  if (self) NotifyChanged("Enabled");
}

const tactix::Font& StrategyList::Font() const { return Children.StrategyListBox.Font(); }

void StrategyList::Font(const tactix::Font& font) {
  Children.StrategyListBox.Font(font);
  NotifyChanged("Font");
}

const std::string& StrategyList::Text() const { return Children.StrategyListBox.Text(); }

void StrategyList::Text(std::string_view text) {
  Children.StrategyListBox.Text(text);
  NotifyChanged("Text");
}

const std::string& StrategyList::ToolTipText() const { return Children.StrategyListBox.ToolTipText(); }

void StrategyList::ToolTipText(std::string_view text) {
  Children.StrategyListBox.ToolTipText(text);
  NotifyChanged("ToolTipText");
}

const std::string& StrategyList::DefaultContent() const { return Children.StrategyListBox.Text(); }

void StrategyList::DefaultContent(std::string_view text) {
  Children.StrategyListBox.Text(text);
  NotifyChanged("DefaultContent");
}

std::int16_t StrategyList::ListIndex() const { return Variant(Children.StrategyListBox.ListIndex() - 1).ToInteger(); }

void StrategyList::ListIndex(std::int16_t strategy) { Children.StrategyListBox.ListIndex(std::int32_t{strategy} + 1); }

void StrategyList::SelectThisStrategy(std::int16_t strategy) {
  // Not ">=": the count itself goes on to the box, which refuses it.
  if (strategy > Children.StrategyListBox.ListCount()) return;
  ListIndex(strategy);
}

std::int16_t StrategyList::Style() const { return Children.StrategyListBox.Style(); }

bool StrategyList::Visible() const { return Children.StrategyListBox.Visible(); }

void StrategyList::Visible(bool visible) { Children.StrategyListBox.Visible(visible); }

void StrategyList::LoadTheStrategyRange() {
  const Weak<StrategyList> self(this);
  const StrategyRange range = StrategyListData::Catalogue().GetStrategyRange();
  if (self) range_ = range;
}

void StrategyList::LoadStrategiesFromIniFile() {
  const Weak<StrategyList> self(this);
  LoadTheStrategyRange();
  if (self) InputPlayingStrategyDescriptions();
}

void StrategyList::InputPlayingStrategyDescriptions() {
  ListBox& box = Children.StrategyListBox;
  DescriptionBuffer& buffer = StrategyListData::Buffer();
  const Weak<StrategyList> self(this);
  box.Clear();
  for (std::int32_t i = -1; i <= range_.HighestPlayingStrategy; ++i) {
    currentStrategy_ = static_cast<std::int16_t>(i);
    buffer.Write(FormatNumber(i, "00"));
    // The catalogue is the host's: it may write to the number, and destroy the control.
    auto number = static_cast<std::int16_t>(i);
    buffer.Write(StrategyListData::Catalogue().DescribeStrategy(number));
    // The second answer decides; a catalogue may count its calls.
    number = static_cast<std::int16_t>(i);
    const bool isEmpty = StrategyListData::Catalogue().DescribeStrategy(number).empty();
    if (!self) return;
    if (isEmpty) {
      box.AddItem(i == -1 ? EmptySeatText : NotPresentText);
    } else if (const auto text = PlayingRowText(buffer.Text(), i)) {
      box.AddItem(*text);
    }
  }
  box.Text(SelectAStrategyText);
}

void StrategyList::UseThisStrategyList(const ObjectRef& thisStrategyList) {
  const ObjectRef collection = thisStrategyList;
  heldCollection_ = collection;
  if (!collection) throw Error(Error::ObjectNotSet);
  const Weak<StrategyList> self(this);
  const std::int16_t count = collection->Get("Count").ToInteger();
  if (self) strategyCount_ = count;
}

void StrategyList::ReportTheStrategySelection() {
  if (refusing_) return;
  ListBox& box = Children.StrategyListBox;
  const std::int32_t row = box.ListIndex();
  if (row < 0 || row > HighestReportedRow) return;
  const Weak<StrategyList> self(this);
  if (box.Text() == NotPresentText) {
    ItsSite().Beep();
    if (!self) return;
    // Going back is no selection: it is not reported, even where that row is unusable too.
    refusing_ = true;
    try {
      box.ListIndex(lastGoodListIndex_);
    } catch (...) {
      refusing_ = false;
      throw;
    }
    if (self) refusing_ = false;
    return;
  }
  lastGoodListIndex_ = row;
  std::int32_t newStrategySelected = row - 1;
  Events.StrategySelectionChanged.Raise(newStrategySelected);
}

void StrategyList::ReadProperties(PropertyBag& bag) {
  ListBox& box = Children.StrategyListBox;
  const Weak<StrategyList> self(this);
  IgnoringErrors([&] { box.Enabled(bag.Read("Enabled", true).ToBoolean()); });
  if (!self) return;
  IgnoringErrors([&] { box.BackColor(bag.Read("BackColor", WindowColor).ToLong()); });
  IgnoringErrors([&] { box.ForeColor(bag.Read("ForeColor", WindowTextColor).ToLong()); });
  IgnoringErrors([&] {
    const std::string text = bag.Read("Text", "").ToText();
    if (!text.empty()) box.Text(text);
  });
  IgnoringErrors([&] { box.ToolTipText(bag.Read("ToolTipText", "").ToText()); });
  IgnoringErrors([&] { box.Font(bag.Read("Font", ItsSite().AmbientFont()).ToFont()); });
}

void StrategyList::WriteProperties(PropertyBag& bag) {
  const ListBox& box = Children.StrategyListBox;
  IgnoringErrors([&] { bag.Write("Enabled", box.Enabled(), true); });
  IgnoringErrors([&] { bag.Write("BackColor", box.BackColor(), WindowColor); });
  IgnoringErrors([&] { bag.Write("ForeColor", box.ForeColor(), WindowTextColor); });
  IgnoringErrors([&] { bag.Write("Text", box.Text(), ""); });
  IgnoringErrors([&] { bag.Write("ToolTipText", box.ToolTipText(), ""); });
  IgnoringErrors([&] { bag.Write("DefaultContent", box.Text(), ""); });
  IgnoringErrors([&] { bag.Write("Font", box.Font(), ItsSite().AmbientFont()); });
}

void StrategyList::Resized() {
  IgnoringErrors([&] {
    ListBox& box = Children.StrategyListBox;
    box.Place(box.Left(), box.Top(), Extender().ScaleWidth(), Extender().ScaleHeight());
  });
}

void StrategyList::Terminated() {
  heldCollection_.reset();
  Control::Terminated();
}

const PropertyTable& StrategyList::Properties() const {
  using Self = StrategyList;
  static const PropertyTable table =
      PropertyTable()
          .Property<Self>("BackColor", &Self::BackColor, &Self::BackColor)
          .Property<Self>("ForeColor", &Self::ForeColor, &Self::ForeColor)
          .Property<Self>("Enabled", &Self::Enabled, &Self::Enabled)
          .Property<Self>("Font", &Self::Font, &Self::Font)
          .Property<Self>("Text", &Self::Text, &Self::Text)
          .Property<Self>("ToolTipText", &Self::ToolTipText, &Self::ToolTipText)
          .Property<Self>("DefaultContent", &Self::DefaultContent, &Self::DefaultContent)
          .Property<Self>("ControlType", &Self::ControlType, &Self::ControlType)
          .Property<Self>("ListIndex", &Self::ListIndex, &Self::ListIndex)
          .Property<Self>("SelectThisStrategy", &Self::SelectThisStrategy, &Self::SelectThisStrategy)
          .GetOnly<Self>("Style", &Self::Style)
          .Property<Self>("Visible", &Self::Visible, &Self::Visible)
          .GetOnly<Self>("StrategyCount", &Self::StrategyCount);
  return table;
}

}  // namespace tactix
