#include "tactix-qt/AdviceButton.h"

#include "tactix-qt/Forwarding.h"

namespace tactix::qt {

AdviceButton::AdviceButton(QWidget* parent) : WidgetOf(parent) {
  using Events = Core::EventSet;
  Relay(&Events::Click, &AdviceButton::Click);
  Relay(&Events::AdviceRecommendation, &AdviceButton::AdviceRecommendation);
  Relay(&Events::AdviceStrategySelected, &AdviceButton::AdviceStrategySelected);
  Relay(&Events::StrategyListBoxVisibilityChanged, &AdviceButton::StrategyListBoxVisibilityChanged);
}

AdviceButton::~AdviceButton() { EndControl(); }

QString AdviceButton::Caption() const { return Get<QString>(&Core::Caption); }
bool AdviceButton::DEFAULT() const { return Get<bool>(&Core::DEFAULT); }
bool AdviceButton::Enabled() const { return Get<bool>(&Core::Enabled); }
int AdviceButton::WhichStrategyToUse() const { return Get<int>(&Core::WhichStrategyToUse); }

void AdviceButton::setCaption(const QString& caption) { Call(&Core::Caption, caption); }
void AdviceButton::setDEFAULT(bool isDefault) { Call(&Core::DEFAULT, isDefault); }
void AdviceButton::setControlEnabled(bool enabled) { Call(&Core::Enabled, enabled); }
void AdviceButton::setWhichStrategyToUse(int strategy) { Call(&Core::WhichStrategyToUse, strategy); }

ObjectRef AdviceButton::AdviceStrategyList(const ObjectRef& thisStrategyList) {
  return Read<ObjectRef>([&](Core& button) { return button.AdviceStrategyList(thisStrategyList); });
}
void AdviceButton::BlinkIfNecessary() { Call(&Core::BlinkIfNecessary); }
void AdviceButton::BlinkTime(float timeAmount) { Call(&Core::BlinkTime, timeAmount); }
void AdviceButton::FlashObject(const ObjectRef& buttonToFlash) { Call(&Core::FlashObject, buttonToFlash); }

}  // namespace tactix::qt
