#include "tactix-qt/StrategyMarquix.h"

#include <memory>
#include <utility>

#include "tactix-qt/Convert.h"
#include "tactix-qt/Integers.h"

namespace tactix::qt {

StrategyMarquix::StrategyMarquix(QWidget* parent) : ControlWidget(parent) {
  auto control = std::make_unique<tactix::StrategyMarquix>(ItsSite());
  marquee_ = control.get();
  Own(std::move(control));
  tactix::StrategyMarquix::EventSet& events = marquee_->Events;
  events.BettingStrategySelected.Connect([this](std::int16_t index) { Q_EMIT BettingStrategySelected(index); });
  events.PlayingStrategySelected.Connect([this](std::int16_t index) { Q_EMIT PlayingStrategySelected(index); });
  events.StrategySelectionChanged.Connect(
      [this](const std::int32_t& strategy) { Q_EMIT StrategySelectionChanged(strategy); });
}

StrategyMarquix::~StrategyMarquix() { EndControl(); }

QString StrategyMarquix::Caption() const { return ToQt(marquee_->Caption()); }
void StrategyMarquix::Caption(const QString& caption) { marquee_->Caption(FromQt(caption)); }
StrategyMarquix::TypeOfStrategyMarquixControl StrategyMarquix::ControlType() const {
  return static_cast<TypeOfStrategyMarquixControl>(marquee_->ControlType().Value());
}
void StrategyMarquix::ControlType(TypeOfStrategyMarquixControl type) {
  marquee_->ControlType(static_cast<std::int32_t>(type));
}
bool StrategyMarquix::Enabled() const { return marquee_->Enabled(); }
void StrategyMarquix::Enabled(bool enabled) { marquee_->Enabled(enabled); }
int StrategyMarquix::ListIndex() const { return marquee_->ListIndex(); }
void StrategyMarquix::ListIndex(int strategy) { marquee_->ListIndex(ToInt16(strategy)); }
StrategyMarquix::StrategyListFormats StrategyMarquix::ourStrategyListFormats() const {
  return static_cast<StrategyListFormats>(marquee_->ourStrategyListFormats.Value());
}
void StrategyMarquix::ourStrategyListFormats(StrategyListFormats formats) {
  marquee_->ourStrategyListFormats = static_cast<std::int32_t>(formats);
}
bool StrategyMarquix::aStrategyExists() const { return marquee_->aStrategyExists(); }
void StrategyMarquix::AddItem(const QString& thisItem) { marquee_->AddItem(FromQt(thisItem)); }
void StrategyMarquix::InputPlayingStrategyDescriptions() { marquee_->InputPlayingStrategyDescriptions(); }
void StrategyMarquix::LoadStrategiesFromIniFile() { marquee_->LoadStrategiesFromIniFile(); }
void StrategyMarquix::SelectThisStrategy(bool selection) { marquee_->SelectThisStrategy(selection); }
void StrategyMarquix::SetFocus() { marquee_->SetFocus(); }
void StrategyMarquix::UseThisStrategyList(const ObjectRef& thisStrategyList) {
  marquee_->UseThisStrategyList(thisStrategyList);
}

}  // namespace tactix::qt
