#include "tactix/strategy/StrategyMarquix.h"

#include <algorithm>
#include <array>

#include "tactix/platform/PropertyTable.h"
#include "tactix/platform/SavedProperties.h"

namespace tactix {

namespace {

constexpr std::string_view DesignCaption = "Strategy Un-defined";
constexpr float DesignWidth = 2415;
constexpr float DesignHeight = 735;
constexpr float BannerHeight = 345;
constexpr float MarkWidth = 345;

/// Whether the mark is shown, by control type.
constexpr std::array<bool, 6> ShowsTheMark = {false, false, true, false, false, false};

}  // namespace

StrategyMarquix::StrategyMarquix(Site& site) : Control(site), innerSite_(site), Children(innerSite_) {
  Extender().DesignSize(DesignWidth, DesignHeight);
  Extender().Add(Children.labelStrategyBanner, "labelStrategyBanner");
  Extender().Add(Children.StrategyListBox.Extender(), "StrategyListBox");
  Extender().Add(Children.optStrategySelected, "optStrategySelected");
  Children.labelStrategyBanner.Caption(DesignCaption);
  Children.StrategyListBox.InitProperties();
  Children.optStrategySelected.ToolTipText("The strategy in use");
  Children.optStrategySelected.Visible(false);
  Arrange();
  Children.StrategyListBox.Events.StrategySelectionChanged.Connect(
      [this](std::int32_t& strategy) { Events.StrategySelectionChanged.Raise(strategy); });
}

StrategyMarquix::~StrategyMarquix() { MarkAsGone(); }

void StrategyMarquix::Arrange() {
  // The mark has its place at the banner's end, shown or not: the banner's text does not jump.
  const float width = Extender().ScaleWidth();
  const float banner = std::min(BannerHeight, Extender().ScaleHeight() / 2);
  const float mark = std::min(MarkWidth, width);
  Children.labelStrategyBanner.Place(0, 0, width - mark, banner);
  Children.optStrategySelected.Place(width - mark, 0, mark, banner);
  Children.StrategyListBox.Extender().Place(0, banner, width, Extender().ScaleHeight() - banner);
}

void StrategyMarquix::Caption(std::string_view caption) {
  Children.labelStrategyBanner.Caption(caption);
  NotifyChanged("Caption");
}

void StrategyMarquix::ControlType(Coded<TypeOfStrategyMarquixControl> type) {
  controlType_ = type;
  if (type < 0 || type >= static_cast<std::int32_t>(ShowsTheMark.size())) return;
  Children.optStrategySelected.Visible(ShowsTheMark[static_cast<std::size_t>(type.Value())]);
}

void StrategyMarquix::LoadStrategiesFromIniFile() {
  const Weak<StrategyMarquix> self(this);
  Children.StrategyListBox.LoadStrategiesFromIniFile();
  if (self) Children.StrategyListBox.LoadStrategiesFromIniFile();
}

void StrategyMarquix::ReadProperties(PropertyBag& bag) {
  SavedProperties saved(*this, bag, OnFailure::Report);
  saved.Read(
      "Caption", [this] { return Caption(); },
      [this](const Variant& caption) { Children.labelStrategyBanner.Caption(caption.ToText()); });
  const auto typeSoFar = [this] { return controlType_.Value(); };
  if (!saved.Read("Control Type", typeSoFar, [this](const Variant& type) { ControlType(type.ToLong()); })) return;
  // Under the name of its own value: nothing is ever saved there.
  const Variant marked = Children.optStrategySelected.Value();
  saved.Read(marked.ToText(), marked,
             [this](const Variant& mark) { Children.optStrategySelected.Value(mark.ToBoolean()); });
}

void StrategyMarquix::WriteProperties(PropertyBag& bag) { bag.Write("Caption", Caption()); }

const PropertyTable& StrategyMarquix::Properties() const {
  using Self = StrategyMarquix;
  using Type = Coded<TypeOfStrategyMarquixControl>;
  using ListFormats = Coded<StrategyListFormats>;
  static const PropertyTable table =
      PropertyTable()
          .Property<Self, const std::string&, std::string_view>("Caption", &Self::Caption, &Self::Caption)
          .Property<Self, Type, Type>("ControlType", &Self::ControlType, &Self::ControlType)
          .Property<Self>("Enabled", &Self::Enabled, &Self::Enabled)
          .Property<Self>("ListIndex", &Self::ListIndex, &Self::ListIndex)
          .Property<Self, ListFormats, ListFormats>("ourStrategyListFormats", &Self::Formats, &Self::Formats);
  return table;
}

}  // namespace tactix
