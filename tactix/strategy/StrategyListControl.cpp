#include "tactix/strategy/StrategyListControl.h"

#include <utility>

#include "tactix/platform/Tolerance.h"
#include "tactix/strategy/SavedListProperty.h"
#include "tactix/strategy/StrategyListData.h"
#include "tactix/strategy/StrategyListRules.h"

namespace tactix {

namespace {

constexpr float DesignWidth = 2415;
constexpr float DesignHeight = 390;
constexpr float SizeOfFont = 8.25F;

template <class Step>
void Run(OnFailure onFailure, Step&& step) {
  if (onFailure == OnFailure::PassOver) {
    IgnoringErrors(step);
  } else {
    step();
  }
}

}  // namespace

StrategyListControl::StrategyListControl(Site& site, const StrategyListRules& rules) : Control(site), rules_(rules) {}

void StrategyListControl::SetUpBox() {
  ListBox& box = Box();
  Extender().Add(box, rules_.boxName);
  Extender().DesignSize(DesignWidth, DesignHeight);
  box.Place(0, 0, DesignWidth, DesignHeight);
  box.Text(rules_.text);
  box.ToolTipText(rules_.toolTip);
  if (!rules_.fontName.empty()) box.Font({std::string(rules_.fontName), SizeOfFont});
  box.Clicked.Connect([this] { ReportTheStrategySelection(); });
  // A new text deselects, so that nothing is reported as long as boxes do so.
  box.Changed.Connect([this] { ReportTheStrategySelection(); });
}

void StrategyListControl::AddItem(std::string_view item, std::optional<std::int32_t> index) {
  Box().AddItem(item, index);
}

Color StrategyListControl::BackColor() const { return Box().BackColor(); }

void StrategyListControl::BackColor(Color color) {
  Box().BackColor(color);
  NotifyChanged("BackColor");
}

Color StrategyListControl::ForeColor() const { return Box().ForeColor(); }

void StrategyListControl::ForeColor(Color color) {
  Box().ForeColor(color);
  NotifyChanged("ForeColor");
}

bool StrategyListControl::Enabled() const { return Box().Enabled(); }

void StrategyListControl::Enabled(bool enabled) {
  const Weak<StrategyListControl> self(this);
  Box().Enabled(enabled);
  if (self) NotifyChanged("Enabled");
}

const tactix::Font& StrategyListControl::Font() const { return Box().Font(); }

void StrategyListControl::Font(const tactix::Font& font) {
  Box().Font(font);
  NotifyChanged("Font");
}

const std::string& StrategyListControl::Text() const { return Box().Text(); }

void StrategyListControl::Text(std::string_view text) {
  const Weak<StrategyListControl> self(this);
  Box().Text(text);
  if (self) NotifyChanged("Text");
}

const std::string& StrategyListControl::ToolTipText() const { return Box().ToolTipText(); }

void StrategyListControl::ToolTipText(std::string_view text) {
  Box().ToolTipText(text);
  NotifyChanged("ToolTipText");
}

const std::string& StrategyListControl::DefaultContent() const { return Box().Text(); }

void StrategyListControl::DefaultContent(std::string_view text) {
  const Weak<StrategyListControl> self(this);
  Box().Text(text);
  if (self) NotifyChanged("DefaultContent");
}

std::int16_t StrategyListControl::ListIndex() const { return Variant(Box().ListIndex() - 1).ToInteger(); }

void StrategyListControl::ListIndex(std::int16_t strategy) {
  const std::int32_t row = std::int32_t{strategy} + 1;
  Box().ListIndex(rules_.rowWidth == RowWidth::SixteenBits ? Variant(row).ToInteger() : row);
}

std::int16_t StrategyListControl::Style() const { return Box().Style(); }

bool StrategyListControl::Visible() const { return Box().Visible(); }

void StrategyListControl::Visible(bool visible) { Box().Visible(visible); }

void StrategyListControl::LoadTheStrategyRange() {
  const Weak<StrategyListControl> self(this);
  const StrategyRange range = StrategyListData::Catalogue()->GetStrategyRange();
  if (self) range_ = range;
}

void StrategyListControl::LoadStrategiesFromIniFile() {
  const Weak<StrategyListControl> self(this);
  LoadTheStrategyRange();
  if (self) InputDescriptions();
}

void StrategyListControl::Fill(std::int32_t first, std::int32_t last) {
  const Weak<StrategyListControl> self(this);
  ListBox::Appending appending(Box());
  Box().Clear();
  FillBegins();
  for (std::int32_t i = first; self && i <= last; ++i) {
    filledNumber_ = static_cast<std::int16_t>(i);
    FillRow(filledNumber_);
  }
  if (!self) return;
  appending.End();
  Box().Text(SelectAStrategyText);
}

void StrategyListControl::UseThisStrategyList(const ObjectRef& thisStrategyList) {
  const ObjectRef collection = thisStrategyList;
  const ObjectRef before = std::exchange(heldCollection_, collection);
  if (!collection) throw Error(Error::ObjectNotSet);
  const Weak<StrategyListControl> self(this);
  const std::int16_t count = collection->Get("Count").ToInteger();
  if (self) strategyCount_ = count;
}

void StrategyListControl::ReportTheStrategySelection() {
  if (refusing_) return;
  const std::int32_t row = Box().ListIndex();
  if (row < 0 || row > rules_.highestReportedRow) return;
  if (Box().Text() == NotPresentText) {
    const Weak<StrategyListControl> self(this);
    ItsSite().Beep();
    if (self) GoBackToTheLastGoodRow();
    return;
  }
  lastGoodListIndex_ = row;
  Report(row);
}

void StrategyListControl::GoBackToTheLastGoodRow() {
  const Weak<StrategyListControl> self(this);
  // Going back is no selection: it is not reported, even where that row is unusable too.
  refusing_ = true;
  try {
    Box().ListIndex(lastGoodListIndex_);
  } catch (...) {
    if (self) refusing_ = false;
    throw;
  }
  if (self) refusing_ = false;
}

void StrategyListControl::ReadProperties(PropertyBag& bag) {
  const Weak<StrategyListControl> self(this);
  for (const SavedListProperty* property : rules_.saved) {
    if (!property->set) continue;
    Run(rules_.failedRead, [&] {
      const Variant value = bag.Read(property->name, property->defaultValue(ItsSite())).Plain();
      if (self) property->set(Box(), value);
    });
    if (!self) return;
  }
}

void StrategyListControl::WriteProperties(PropertyBag& bag) {
  const Weak<StrategyListControl> self(this);
  for (const SavedListProperty* property : rules_.saved) {
    Run(rules_.failedWrite,
        [&] { bag.Write(property->name, property->get(Box()), property->defaultValue(ItsSite())); });
    if (!self) return;
  }
}

void StrategyListControl::Resized() {
  // The box keeps its height.
  Run(rules_.failedResize, [this] { Box().Width(Extender().ScaleWidth()); });
}

void StrategyListControl::Terminated() {
  ObjectRef released;
  if (rules_.atTheEnd == AtTheEnd::ReleaseTheCollection) released = std::exchange(heldCollection_, nullptr);
  Control::Terminated();
}

PropertyTable StrategyListControl::CommonProperties() {
  using Self = StrategyListControl;
  return PropertyTable()
      .Property<Self>("BackColor", &Self::BackColor, &Self::BackColor)
      .Property<Self>("ForeColor", &Self::ForeColor, &Self::ForeColor)
      .Property<Self>("Enabled", &Self::Enabled, &Self::Enabled)
      .Property<Self>("Font", &Self::Font, &Self::Font)
      .Property<Self>("Text", &Self::Text, &Self::Text)
      .Property<Self>("ToolTipText", &Self::ToolTipText, &Self::ToolTipText)
      .Property<Self>("DefaultContent", &Self::DefaultContent, &Self::DefaultContent)
      .Property<Self>("ControlType", &Self::ControlType, &Self::ControlType)
      .Property<Self>("ListIndex", &Self::ListIndex, &Self::ListIndex)
      .GetOnly<Self>("Style", &Self::Style)
      .Property<Self>("Visible", &Self::Visible, &Self::Visible)
      .GetOnly<Self>("StrategyCount", &Self::StrategyCount);
}

}  // namespace tactix
