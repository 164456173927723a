#include "tactix/strategy/StrategyMarquix.h"

#include <algorithm>
#include <array>

#include "tactix/platform/PropertyTable.h"
#include "tactix/shared/EnumerationNames.h"

namespace tactix {

namespace {

constexpr std::string_view CaptionName = "Caption";
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
  Children.labelStrategyBanner.Caption(DefaultCaption);
  Children.StrategyListBox.InitProperties();
  Children.optStrategySelected.ToolTipText("The strategy in use");
  Children.optStrategySelected.Visible(false);
  Arrange();
  Children.StrategyListBox.Events.StrategySelectionChanged.Connect(
      [this](std::int32_t& strategy) { Events.StrategySelectionChanged.Raise(strategy); });
}

StrategyMarquix::~StrategyMarquix() { MarkAsGone(); }

void StrategyMarquix::Arrange() {
  // The mark's place at the banner's end is kept free while it is hidden, so that the banner's text does not move.
  const float width = Extender().ScaleWidth();
  const float banner = std::min(BannerHeight, Extender().ScaleHeight() / 2);
  const float mark = std::min(MarkWidth, width);
  Children.labelStrategyBanner.Place(0, 0, width - mark, banner);
  Children.optStrategySelected.Place(width - mark, 0, mark, banner);
  Children.StrategyListBox.Extender().Place(0, banner, width, Extender().ScaleHeight() - banner);
}

void StrategyMarquix::Caption(std::string_view caption) {
  Children.labelStrategyBanner.Caption(caption);
  NotifyChanged(CaptionName);
}

void StrategyMarquix::ControlType(Coded<TypeOfStrategyMarquixControl> type) {
  controlType_ = type;
  Touched();
  if (type < 0 || type >= static_cast<std::int32_t>(ShowsTheMark.size())) return;
  Children.optStrategySelected.Visible(ShowsTheMark[static_cast<std::size_t>(type.Value())]);
}

void StrategyMarquix::LoadStrategiesFromIniFile() {
  const Weak<StrategyMarquix> self(this);
  Children.StrategyListBox.LoadStrategiesFromIniFile();
  if (self) Children.StrategyListBox.LoadStrategiesFromIniFile();
}

void StrategyMarquix::ReadProperties(PropertyBag& bag) {
  const Weak<StrategyMarquix> self(this);
  Control::ReadProperties(bag);
  if (!self) return;
  // Read under the name "True" or "False", whichever the mark is at the moment: odd, but meant. Nothing is ever saved
  // there.
  const Variant marked = Children.optStrategySelected.Value();
  const bool read = bag.Read(marked.ToText(), marked).ToBoolean();
  if (self) Children.optStrategySelected.Value(read);
}

const PropertyTable& StrategyMarquix::Properties() const {
  using Self = StrategyMarquix;
  using Type = Coded<TypeOfStrategyMarquixControl>;
  const auto caption = [](Self& self) { return self.Caption(); };
  const auto restoreCaption = [](Self& self, const std::string& text) {
    self.Children.labelStrategyBanner.Caption(text);
  };
  const auto controlType = [](Self& self) { return self.ControlType(); };
  using Formats = Coded<StrategyListFormats>;
  const auto formats = [](Self& self) { return self.ourStrategyListFormats; };
  const auto setFormats = [](Self& self, Formats value) {
    self.ourStrategyListFormats = value;
    self.Touched();
  };
  static const PropertyTable table =
      PropertyTable()
          .FailedReads(OnFailedRead::Report)
          .FailedWrites(OnFailure::Report)
          .Property(CaptionName, &Self::Caption, &Self::Caption)
          .SavedWithDefault(PropertyTable::GetBy(caption),
                            {.restore = PropertyTable::SetBy(restoreCaption), .always = true})
          .Property<Self, Type, Type>("ControlType", &Self::ControlType, &Self::ControlType)
          .SavedWithDefault(PropertyTable::GetBy(controlType),
                            {.ways = SavedWays::RestoredOnly, .name = "Control Type"})
          .Property("Enabled", &Self::Enabled, &Self::Enabled)
          .Property("ListIndex", &Self::ListIndex, &Self::ListIndex)
          .Add({"ourStrategyListFormats",
                LateBound<Formats>::Type,
                PropertyTable::GetBy(formats),
                PropertyTable::SetBy(setFormats),
                {}});
  return table;
}

const MethodTable& StrategyMarquix::Methods() const {
  using Self = StrategyMarquix;
  static const MethodTable table =
      MethodTable()
          .Method("AddItem", &Self::AddItem)
          .Method("aStrategyExists", &Self::aStrategyExists)
          .Method("InputPlayingStrategyDescriptions", &Self::InputPlayingStrategyDescriptions)
          .Method("LoadStrategiesFromIniFile", &Self::LoadStrategiesFromIniFile)
          .Method("SelectThisStrategy", &Self::SelectThisStrategy)
          .Method("SetFocus", &Self::SetFocus)
          .Method("UseThisStrategyList", &Self::UseThisStrategyList);
  return table;
}

}  // namespace tactix
