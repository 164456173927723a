#include "tactix-qt/AdviceButton.h"

#include "tactix-qt/Convert.h"
#include "tactix-qt/Integers.h"

namespace tactix::qt {

AdviceButton::AdviceButton(QWidget* parent) : ControlWidget(parent) {
  auto control = std::make_unique<tactix::AdviceButton>(ItsSite());
  button_ = control.get();
  Own(std::move(control));
  tactix::AdviceButton::EventSet& events = button_->Events;
  events.Click.Connect([this] { Q_EMIT Click(); });
  events.AdviceRecommendation.Connect([this](bool recommendation) { Q_EMIT AdviceRecommendation(recommendation); });
  events.AdviceStrategySelected.Connect(
      [this](const Variant& strategy) { Q_EMIT AdviceStrategySelected(strategy.ToLong()); });
  events.StrategyListBoxVisibilityChanged.Connect(
      [this](bool status) { Q_EMIT StrategyListBoxVisibilityChanged(status); });
}

AdviceButton::~AdviceButton() { EndControl(); }

QString AdviceButton::Caption() const { return ToQt(button_->Caption()); }
void AdviceButton::Caption(const QString& caption) { button_->Caption(FromQt(caption)); }
bool AdviceButton::DEFAULT() const { return button_->DEFAULT(); }
void AdviceButton::DEFAULT(bool isDefault) { button_->DEFAULT(isDefault); }
bool AdviceButton::Enabled() const { return button_->Enabled(); }
void AdviceButton::Enabled(bool enabled) { button_->Enabled(enabled); }
int AdviceButton::WhichStrategyToUse() const { return button_->WhichStrategyToUse(); }
void AdviceButton::WhichStrategyToUse(int strategy) { button_->WhichStrategyToUse(ToInt16(strategy)); }
ObjectRef AdviceButton::AdviceStrategyList(const ObjectRef& thisStrategyList) {
  return button_->AdviceStrategyList(thisStrategyList);
}
void AdviceButton::BlinkIfNecessary() { button_->BlinkIfNecessary(); }
void AdviceButton::BlinkTime(float timeAmount) { button_->BlinkTime(timeAmount); }
void AdviceButton::FlashObject(const ObjectRef& buttonToFlash) { button_->FlashObject(buttonToFlash); }

}  // namespace tactix::qt
