#include "tactix/strategy/StrategyListControl.h"

#include <utility>

#include "tactix/platform/Tolerance.h"
#include "tactix/strategy/StrategyListData.h"
#include "tactix/strategy/private/StrategyListRules.h"

namespace tactix {

namespace {

constexpr float DesignWidth = 2415;
constexpr float DesignHeight = 390;
constexpr float SizeOfFont = 8.25F;

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
  // A new text deselects the row, so this reports nothing; it would if boxes kept the selection.
  box.Changed.Connect([this] { ReportTheStrategySelection(); });
}

void StrategyListControl::AddItem(std::string_view item, std::optional<std::int32_t> index) {
  Box().AddItem(item, index);
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
  const std::shared_ptr<StrategyCatalogue> catalogue = Catalogue();
  if (!self) return;
  const StrategyRange range = catalogue->GetStrategyRange();
  if (self) range_ = range;
}

std::shared_ptr<StrategyCatalogue> StrategyListControl::Catalogue() const {
  const Weak<const StrategyListControl> self(this);
  std::shared_ptr<StrategyCatalogue> catalogue = StrategyListData::Catalogue();
  return self ? catalogue : nullptr;
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
  if (!self) return;
  strategyCount_ = count;
  Touched();
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
  struct Refusing {
    Weak<StrategyListControl> list;
    ~Refusing() {
      if (list) list->refusing_ = false;
    }
  };
  // Going back does not count as a selection: it is not reported, nor refused where that row is unusable, too.
  refusing_ = true;
  const Refusing untilTheEnd{Weak(this)};
  Box().ListIndex(lastGoodListIndex_);
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

}  // namespace tactix
