#include "tactix/strategy/CountStrategyList.h"

#include <memory>
#include <string_view>

#include "tactix/platform/Tolerance.h"
#include "tactix/shared/EnumerationNames.h"
#include "tactix/strategy/StrategyListData.h"
#include "tactix/strategy/private/CountDescription.h"
#include "tactix/strategy/private/StrategyListRules.h"

namespace tactix {

namespace {

constexpr std::string_view CountStrategyName = "CountStrategy";

constexpr StrategyListRules Rules = {
    .text = SelectACountStrategyText,
    .fontName = {},
    .highestReportedRow = CountStrategyList::HighestReportedRow,
    .failedResize = OnFailure::Report,
    .rowWidth = RowWidth::SixteenBits,
};

/// The captions that a new list shows, from the lowest number up. The last system but one has none, so the last one's
/// caption stands in its row: meant.
constexpr std::string_view DesignNames[] = {"USTON Simple +/-",
                                            "USTON Advanced +/-",
                                            "USTON Advanced Point Count",
                                            "USTON \"SS\"",
                                            "Kelvo' A - 5 Count",
                                            "Kelvo' APC",
                                            "Kelvo' APC2 (Experimental)",
                                            "Kelvo' SS (in Research)",
                                            "Kelvo' Clump Count",
                                            "Kelvo' Clump Track",
                                            "HI-Opt I",
                                            "HI-Opt II",
                                            "Revere +/-",
                                            "Revere PC",
                                            "Revere APC",
                                            "Patterson +/-",
                                            "Anderson PC",
                                            "Scoblete PC",
                                            "Ultimate Count",
                                            "Canfield Expert",
                                            "Canfield Master",
                                            "Snyder's Red-Seven",
                                            "Snyder's Zen Count",
                                            "Marshall's Womans Count",
                                            "Omega II",
                                            "Alan Wilson's Point Count",
                                            "Core-Ratio Count!"};

constexpr auto DefaultSystem = static_cast<std::int16_t>(CountStrategyPossibilities::KelvoAPC);

/// The object without members that the catalogue is handed at each fill.
class CountStrategyStore final : public Object {};

}  // namespace

CountStrategyList::CountStrategyList(Site& site) : StrategyListControl(site, Rules) {
  SetUpBox();
  for (const std::string_view name : DesignNames) Children.StrategyListBox.AddItem(name);
}

CountStrategyList::~CountStrategyList() { MarkAsGone(); }

std::string CountStrategyList::Describe(std::int16_t system) const {
  std::string text;
  if (const std::shared_ptr<StrategyCatalogue> catalogue = Catalogue()) catalogue->DescribeStrategy(system, text);
  return text;
}

bool CountStrategyList::Select(std::int32_t system) {
  const Weak<CountStrategyList> self(this);
  if (!isFilled_) InputCountStrategyDescriptions();
  if (!self || system < Lowest || system > Highest) return false;
  Children.StrategyListBox.ListIndex(system - Lowest);
  return true;
}

void CountStrategyList::CountStrategy(Coded<CountStrategyPossibilities> system) {
  const Weak<CountStrategyList> self(this);
  if (Select(system.Value()) && self) NotifyChanged(CountStrategyName);
}

const CountStrategyRecord& CountStrategyList::Record(Coded<CountStrategyPossibilities> system) const {
  if (system < Lowest || system > Highest) throw Error(Error::SubscriptOutOfRange);
  return records_[static_cast<std::size_t>(system.Value() - Lowest)];
}

std::int16_t CountStrategyList::CountValue(Coded<CountStrategyPossibilities> forThisCount,
                                           std::int16_t andThisCard) const {
  return Record(forThisCount).PointValues(andThisCard, 1);
}

void CountStrategyList::InputCountStrategyDescriptions() {
  const Weak<CountStrategyList> self(this);
  IgnoringErrors([&] {
    Fill(Lowest, Highest);
    if (self) isFilled_ = true;
  });
}

void CountStrategyList::FillBegins() {
  description_.clear();
  store_ = std::make_shared<CountStrategyStore>();
  PassingOverObjectNotSet([this, store = store_] {
    if (const std::shared_ptr<StrategyCatalogue> catalogue = Catalogue()) catalogue->AttachCountStrategyStore(store);
  });
}

void CountStrategyList::FillRow(std::int16_t system) {
  const Weak<CountStrategyList> self(this);
  bool isEmpty = false;  // stays false where there is no catalogue
  PassingOverObjectNotSet([&] { isEmpty = Describe(system).empty(); });
  if (isEmpty || !self) return;
  PassingOverObjectNotSet([&] {
    std::string text = Describe(system);
    if (self) description_ = std::move(text);
  });
  if (!self) return;
  CountStrategyRecord& record = records_[static_cast<std::size_t>(system - Lowest)];
  CountDescription description(description_);
  const bool isListed = description.ReadTexts(record, system);
  ListBox& box = Box();
  box.Append(record.Name);
  if (!isListed) return;
  box.ItemData(box.ListCount() - 1, system);
  description.ReadNumbers(record, system);
}

void CountStrategyList::Report(std::int32_t row) {
  auto newStrategySelected = static_cast<std::int16_t>(row - 1 + Lowest);
  std::string description = Box().Text();
  Events.StrategySelectionChanged.Raise(newStrategySelected, description);
}

const PropertyTable& CountStrategyList::Properties() const {
  using Self = CountStrategyList;
  static const PropertyTable table = [] {
    PropertyTable rows;
    rows.FailedWrites(OnFailure::Report)
        .Property(CountStrategyName, &Self::CountStrategy, &Self::CountStrategy)
        .Saved(DefaultSystem,
               {.value = PropertyTable::GetBy([](Self& self) { return self.ListIndex(); }),
                .restore = PropertyTable::SetBy([](Self& self, std::int16_t system) { self.Select(system); })});
    SavedRow::BackColor(rows);
    SavedRow::ForeColor(rows);
    SavedRow::ToolTipText(rows);
    SavedRow::Font(rows);
    SavedRow::DefaultContent(rows);
    SavedRow::Text(rows);
    SavedRow::Enabled(rows);
    AddTheOtherProperties(rows);
    return rows;
  }();
  return table;
}

const MethodTable& CountStrategyList::Methods() const {
  using Self = CountStrategyList;
  static const MethodTable table = CommonMethods()
                                       .Method("InputCountStrategyDescriptions", &Self::InputCountStrategyDescriptions)
                                       .Method("CountValue", &Self::CountValue);
  return table;
}

}  // namespace tactix
