#include "tactix-qt/StrategyMarquix.h"

#include "tactix-qt/Forwarding.h"

namespace tactix::qt {

namespace {

// What ListIndex reads where no row is selected.
constexpr int NoRow = -2;

}  // namespace

StrategyMarquix::StrategyMarquix(QWidget* parent) : WidgetOf(parent) {
  using Events = Core::EventSet;
  Relay(&Events::BettingStrategySelected, &StrategyMarquix::BettingStrategySelected);
  Relay(&Events::PlayingStrategySelected, &StrategyMarquix::PlayingStrategySelected);
  Relay(&Events::StrategySelectionChanged, &StrategyMarquix::StrategySelectionChanged);
}

StrategyMarquix::~StrategyMarquix() { EndControl(); }

QString StrategyMarquix::Caption() const { return Get<QString>(&Core::Caption); }
StrategyMarquix::TypeOfStrategyMarquixControl StrategyMarquix::ControlType() const {
  return Get<TypeOfStrategyMarquixControl>(&Core::ControlType);
}
bool StrategyMarquix::Enabled() const { return Get<bool>(&Core::Enabled); }
int StrategyMarquix::ListIndex() const { return GetOr(NoRow, &Core::ListIndex); }
StrategyMarquix::StrategyListFormats StrategyMarquix::ourStrategyListFormats() const {
  return Read<StrategyListFormats>([](const Core& marquee) { return marquee.ourStrategyListFormats; });
}
bool StrategyMarquix::aStrategyExists() const { return Get<bool>(&Core::aStrategyExists); }

void StrategyMarquix::setCaption(const QString& caption) { Call(&Core::Caption, caption); }
void StrategyMarquix::setControlType(TypeOfStrategyMarquixControl type) {
  Run([&](Core& marquee) { marquee.ControlType(std::int32_t{type}); });
}
void StrategyMarquix::setControlEnabled(bool enabled) { Call(&Core::Enabled, enabled); }
void StrategyMarquix::setListIndex(int strategy) { Call(&Core::ListIndex, strategy); }
void StrategyMarquix::setOurStrategyListFormats(StrategyListFormats formats) {
  Run([&](Core& marquee) { marquee.ourStrategyListFormats = std::int32_t{formats}; });
}

void StrategyMarquix::AddItem(const QString& thisItem) { Call(&Core::AddItem, thisItem); }
void StrategyMarquix::InputPlayingStrategyDescriptions() { Call(&Core::InputPlayingStrategyDescriptions); }
void StrategyMarquix::LoadStrategiesFromIniFile() { Call(&Core::LoadStrategiesFromIniFile); }
void StrategyMarquix::SelectThisStrategy(bool selection) { Call(&Core::SelectThisStrategy, selection); }
void StrategyMarquix::SetFocus() { Call(&Core::SetFocus); }
void StrategyMarquix::UseThisStrategyList(const ObjectRef& thisStrategyList) {
  Call(&Core::UseThisStrategyList, thisStrategyList);
}

// What a saved marquee lacks stays as it is, so these defaults are not in its table.
void StrategyMarquix::resetCaption() { setCaption(ToQt(Core::DefaultCaption)); }
void StrategyMarquix::resetControlType() { setControlType(IsNotYetAssigned); }

}  // namespace tactix::qt
