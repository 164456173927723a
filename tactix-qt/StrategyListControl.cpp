#include "tactix-qt/StrategyListControl.h"

#include <utility>

#include "tactix-qt/Convert.h"
#include "tactix-qt/Integers.h"

namespace tactix::qt {

void StrategyListControl::Take(std::unique_ptr<tactix::StrategyListControl> list) {
  list_ = list.get();
  Own(std::move(list));
}

QColor StrategyListControl::BackColor() const { return OwnColor(list_->BackColor()); }
void StrategyListControl::BackColor(const QColor& color) { list_->BackColor(ColorOr(color, WindowColor)); }
QColor StrategyListControl::ForeColor() const { return OwnColor(list_->ForeColor()); }
void StrategyListControl::ForeColor(const QColor& color) { list_->ForeColor(ColorOr(color, WindowTextColor)); }
bool StrategyListControl::Enabled() const { return list_->Enabled(); }
void StrategyListControl::Enabled(bool enabled) { list_->Enabled(enabled); }
QFont StrategyListControl::Font() const { return ToQt(list_->Font()); }
void StrategyListControl::Font(const QFont& font) { list_->Font(FromQt(font)); }
QString StrategyListControl::Text() const { return ToQt(list_->Text()); }
void StrategyListControl::Text(const QString& text) { list_->Text(FromQt(text)); }
QString StrategyListControl::ToolTipText() const { return ToQt(list_->ToolTipText()); }
void StrategyListControl::ToolTipText(const QString& text) { list_->ToolTipText(FromQt(text)); }
QString StrategyListControl::DefaultContent() const { return ToQt(list_->DefaultContent()); }
void StrategyListControl::DefaultContent(const QString& text) { list_->DefaultContent(FromQt(text)); }
StrategyListControl::TypeOfStrategyControl StrategyListControl::ControlType() const {
  return static_cast<TypeOfStrategyControl>(list_->ControlType().Value());
}
void StrategyListControl::ControlType(TypeOfStrategyControl type) {
  list_->ControlType(static_cast<std::int32_t>(type));
}
int StrategyListControl::ListIndex() const { return list_->ListIndex(); }
void StrategyListControl::ListIndex(int strategy) { list_->ListIndex(ToInt16(strategy)); }
int StrategyListControl::Style() const { return list_->Style(); }
bool StrategyListControl::Visible() const { return list_->Visible(); }
void StrategyListControl::Visible(bool visible) { list_->Visible(visible); }
int StrategyListControl::StrategyCount() const { return list_->StrategyCount(); }

void StrategyListControl::AddItem(const QString& item) { list_->AddItem(FromQt(item)); }
void StrategyListControl::AddItem(const QString& item, int index) { list_->AddItem(FromQt(item), index); }
void StrategyListControl::LoadStrategiesFromIniFile() { list_->LoadStrategiesFromIniFile(); }
void StrategyListControl::UseThisStrategyList(const ObjectRef& thisStrategyList) {
  list_->UseThisStrategyList(thisStrategyList);
}

}  // namespace tactix::qt
