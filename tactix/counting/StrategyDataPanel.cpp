#include "tactix/counting/StrategyDataPanel.h"

#include <cmath>
#include <string_view>
#include <utility>

#include "tactix/counting/DefaultStrategyData.h"
#include "tactix/platform/Error.h"
#include "tactix/platform/NumberText.h"
#include "tactix/platform/PropertyTable.h"
#include "tactix/shared/EnumerationNames.h"

namespace tactix {

namespace {

using Widgets = StrategyDataPanel::ChildWidgets;

template <Label Widgets::*label>
void ShowInteger(StrategyDataPanel& panel, const Variant& value) {
  (panel.Children.*label).Caption(std::to_string(value.ToInteger()));
}

template <Label Widgets::*label>
void ShowLong(StrategyDataPanel& panel, const Variant& value) {
  (panel.Children.*label).Caption(std::to_string(value.ToLong()));
}

void ShowClumpType(StrategyDataPanel& panel, const Variant& value) {
  const Variant clumpType = value.ToLong();
  panel.Children.datClumpType.Caption(panel.GetClumpStuff(clumpType.ToInteger()));
}

/// The double with the same decimal text, so that 0.1F becomes 0.1 and not 0.100000001490116.
double AsItsTextSays(float hands) {
  // Infinity and NaN have no text that can be read back; they fail as the division by them would.
  if (!std::isfinite(hands)) throw Error(Error::Overflow);
  return Variant(Variant(hands).ToText()).ToDouble();
}

double Strength(float stiffHands, float strongHands) {
  const double divisor = AsItsTextSays(stiffHands);
  const double dividend = AsItsTextSays(strongHands);
  return divisor != 0 ? dividend / divisor : 0;
}

}  // namespace

/// One field of a block and where it is shown; in the order of showing.
struct StrategyDataPanel::Field {
  std::string_view name;
  void (*show)(StrategyDataPanel& panel, const Variant& value);
};

const StrategyDataPanel::Field StrategyDataPanel::Fields[] = {
    {"RunningCount", [](StrategyDataPanel& panel,
                        const Variant& value) { panel.Children.CountDisplay.RunningCountValue(value.ToInteger()); }},
    {"TrueCount", [](StrategyDataPanel& panel,
                     const Variant& value) { panel.Children.CountDisplay.TrueCountValue(value.ToInteger()); }},
    {"AcesDealt", ShowInteger<&Widgets::datAces>},
    {"FivesDealt", ShowInteger<&Widgets::datFives>},
    {"TensDealt", ShowInteger<&Widgets::dat10Count>},
    {"BiasRating", ShowLong<&Widgets::datBiasRating>},
    {"ClumpType", ShowClumpType},
    {"CoreCardsDealt", ShowInteger<&Widgets::datCoreCards>},
    {"TargetRating", ShowLong<&Widgets::datTargetRating>},
    {"DealerBreakPercent",
     [](StrategyDataPanel& panel, const Variant& value) {
       panel.Children.datDealerBreaks.Caption(FormatNumber(value.ToSingle(), "#0.0"));
     }},
    {"AdjustedCount", ShowInteger<&Widgets::datAdjustedCount>},
};

StrategyDataPanel::StrategyDataPanel(Site& site) : Control(site), innerSite_(site), Children(innerSite_) {
  BuildWidgets();
  ReportPressesOn(Extender());
}

StrategyDataPanel::~StrategyDataPanel() { MarkAsGone(); }

void StrategyDataPanel::ReportPressesOn(Widget& widget) {
  widget.MousePressed.Connect([this](const MouseState&) { Events.PanelClick.Raise(); });
  for (Widget* child : widget.Children()) ReportPressesOn(*child);
}

void StrategyDataPanel::HereIsYourStrategyData(const ObjectRef& thisSDB) { Display(thisSDB); }

void StrategyDataPanel::HereIsSomeStrategyDataBlockData(const ObjectRef& aStrategyDataBlock) {
  const Weak<StrategyDataPanel> self(this);
  const ObjectRef block = aStrategyDataBlock ? aStrategyDataBlock : DefaultStrategyData::Create();
  if (!self) return;
  // The old block is released last, because that may destroy the panel.
  const ObjectRef old = std::exchange(ownBlock_, block);
  Display(block);
}

void StrategyDataPanel::StrategyDataBlockData(const ObjectRef& block) {
  const Weak<StrategyDataPanel> self(this);
  ObjectRef own = ownBlock_;
  ObjectRef before;  // a block that the factory has made the panel create; released last
  if (!own) {
    own = DefaultStrategyData::Create();
    if (!self) return;
    before = std::exchange(ownBlock_, own);
  }
  own->Put(DefaultPropertyName, block);
  if (self) Display(ownBlock_);
}

void StrategyDataPanel::Display(const ObjectRef& block) {
  // A second owner: each read may run host code, which may give the panel another block or destroy it.
  const ObjectRef data = block;
  if (!data) throw Error(Error::ObjectNotSet);
  const Weak<StrategyDataPanel> self(this);
  for (const Field& field : Fields) {
    const Variant value = data->Get(field.name).Plain();
    if (!self) return;
    field.show(*this, value);
  }
  const float stiffHands = data->Get("DealerStiffHands").ToSingle();
  if (!self) return;
  const float strongHands = data->Get("DealerStrongHands").ToSingle();
  if (!self) return;
  Children.datDealerStrength.Caption(FormatNumber(Strength(stiffHands, strongHands), "#0.00"));
  const float endingTotal = data->Get("DealerEndingTotal").ToSingle();
  if (!self) return;
  Children.datEndingTotal.Caption(FormatNumber(endingTotal, "00.0"));
}

std::string StrategyDataPanel::GetClumpStuff(std::int16_t clumpType) const {
  struct Clump {
    std::int16_t lowest;
    std::string_view text;
  };
  constexpr Clump Clumps[] = {{11, "Player +"}, {8, "Player -"}, {7, "Neutral "}, {4, "Dealer -"}};
  for (const Clump& clump : Clumps) {
    if (clumpType >= clump.lowest) return std::string(clump.text);
  }
  return "Dealer +";
}

void StrategyDataPanel::ShadowBoxStatus(Coded<ShadowBoxingConstants> status) {
  Children.CountDisplay.ShadowBoxStatus(status);
}

void StrategyDataPanel::Refresh() { Extender().Refresh(); }

void StrategyDataPanel::TheKelvoEditionIs(const ObjectRef& theKelvoEdition) {
  const ObjectRef edition = theKelvoEdition;
  if (!edition) throw Error(Error::ObjectNotSet);
  const Weak<StrategyDataPanel> self(this);
  const std::int32_t code = edition->Get("thisKelvoEdition").ToLong();
  if (self) editionCode_ = code;
}

void StrategyDataPanel::Resized() {
  Children.panelStrategyInformation.Place(0, 0, Extender().ScaleWidth(), Extender().ScaleHeight());
}

void StrategyDataPanel::Terminated() {
  const ObjectRef released = std::exchange(ownBlock_, nullptr);
  Control::Terminated();
}

const PropertyTable& StrategyDataPanel::Properties() const {
  using Self = StrategyDataPanel;
  static const PropertyTable table = PropertyTable()
                                         .SetOnly("StrategyDataBlockData", &Self::StrategyDataBlockData)
                                         .SetOnly("ShadowBoxStatus", &Self::ShadowBoxStatus);
  return table;
}

const MethodTable& StrategyDataPanel::Methods() const {
  using Self = StrategyDataPanel;
  static const MethodTable table =
      MethodTable()
          .Method("HereIsYourStrategyData", &Self::HereIsYourStrategyData)
          .Method("HereIsSomeStrategyDataBlockData", &Self::HereIsSomeStrategyDataBlockData)
          .Method("GetClumpStuff", &Self::GetClumpStuff)
          .Method("Refresh", &Self::Refresh)
          .Method("TheKelvoEditionIs", &Self::TheKelvoEditionIs);
  return table;
}

}  // namespace tactix
