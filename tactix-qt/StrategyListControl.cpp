#include "tactix-qt/StrategyListControl.h"

#include <optional>

#include "tactix-qt/Forwarding.h"

namespace tactix::qt {

namespace {

// What ListIndex reads where no row is selected.
constexpr int NoRow = -2;

}  // namespace

StrategyListControl::StrategyListControl(Maker make, QWidget* parent) : WidgetOf(make, parent) {
  setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
}

StrategyListControl::~StrategyListControl() { EndControl(); }

QColor StrategyListControl::BackColor() const { return Get<QColor>(&Core::BackColor); }
QColor StrategyListControl::ForeColor() const { return Get<QColor>(&Core::ForeColor); }
bool StrategyListControl::Enabled() const { return Get<bool>(&Core::Enabled); }
QFont StrategyListControl::Font() const { return Get<QFont>(&Core::Font); }
QString StrategyListControl::Text() const { return Get<QString>(&Core::Text); }
QString StrategyListControl::ToolTipText() const { return Get<QString>(&Core::ToolTipText); }
QString StrategyListControl::DefaultContent() const { return Get<QString>(&Core::DefaultContent); }
StrategyListControl::TypeOfStrategyControl StrategyListControl::ControlType() const {
  return Get<TypeOfStrategyControl>(&Core::ControlType);
}
int StrategyListControl::ListIndex() const { return GetOr(NoRow, &Core::ListIndex); }
int StrategyListControl::Style() const { return Get<int>(&Core::Style); }
bool StrategyListControl::Visible() const { return Get<bool>(&Core::Visible); }
int StrategyListControl::StrategyCount() const { return Get<int>(&Core::StrategyCount); }

void StrategyListControl::setBackColor(const QColor& color) { Call(&Core::BackColor, ColorOr(color, WindowColor)); }
void StrategyListControl::setForeColor(const QColor& color) { Call(&Core::ForeColor, ColorOr(color, WindowTextColor)); }
void StrategyListControl::setControlEnabled(bool enabled) { Call(&Core::Enabled, enabled); }
void StrategyListControl::setControlFont(const QFont& font) { Call(&Core::Font, font); }
void StrategyListControl::setText(const QString& text) { Call(&Core::Text, text); }
void StrategyListControl::setToolTipText(const QString& text) { Call(&Core::ToolTipText, text); }
void StrategyListControl::setDefaultContent(const QString& text) { Call(&Core::DefaultContent, text); }
void StrategyListControl::setControlType(TypeOfStrategyControl type) { Call(&Core::ControlType, type); }
void StrategyListControl::setListIndex(int strategy) { Call(&Core::ListIndex, strategy); }
void StrategyListControl::setControlVisible(bool visible) { Call(&Core::Visible, visible); }

void StrategyListControl::AddItem(const QString& item) { Call(&Core::AddItem, item, std::nullopt); }
void StrategyListControl::AddItem(const QString& item, int index) { Call(&Core::AddItem, item, index); }
void StrategyListControl::LoadStrategiesFromIniFile() { Call(&Core::LoadStrategiesFromIniFile); }
void StrategyListControl::UseThisStrategyList(const ObjectRef& thisStrategyList) {
  Call(&Core::UseThisStrategyList, thisStrategyList);
}

void StrategyListControl::resetBackColor() { Reset("BackColor"); }
void StrategyListControl::resetForeColor() { Reset("ForeColor"); }
void StrategyListControl::resetEnabled() { Reset("Enabled"); }
void StrategyListControl::resetFont() { Reset("Font"); }
void StrategyListControl::resetText() { Reset("Text"); }
void StrategyListControl::resetToolTipText() { Reset("ToolTipText"); }
void StrategyListControl::resetDefaultContent() { Reset("DefaultContent"); }

}  // namespace tactix::qt
