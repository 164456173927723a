#include "tactix-qt/StrategyList.h"

#include "tactix-qt/Convert.h"
#include "tactix-qt/Integers.h"

namespace tactix::qt {

StrategyList::StrategyList(QWidget* parent) : ControlWidget(parent) {
  auto control = std::make_unique<tactix::StrategyList>(ItsSite());
  list_ = control.get();
  Own(std::move(control));
  list_->Events.StrategySelectionChanged.Connect(
      [this](const std::int32_t& strategy) { Q_EMIT StrategySelectionChanged(strategy); });
}

StrategyList::~StrategyList() { EndControl(); }

QColor StrategyList::BackColor() const { return OwnColor(list_->BackColor()); }
void StrategyList::BackColor(const QColor& color) { list_->BackColor(ColorOr(color, WindowColor)); }
QColor StrategyList::ForeColor() const { return OwnColor(list_->ForeColor()); }
void StrategyList::ForeColor(const QColor& color) { list_->ForeColor(ColorOr(color, WindowTextColor)); }
bool StrategyList::Enabled() const { return list_->Enabled(); }
void StrategyList::Enabled(bool enabled) { list_->Enabled(enabled); }
QFont StrategyList::Font() const { return ToQt(list_->Font()); }
void StrategyList::Font(const QFont& font) { list_->Font(FromQt(font)); }
QString StrategyList::Text() const { return ToQt(list_->Text()); }
void StrategyList::Text(const QString& text) { list_->Text(FromQt(text)); }
QString StrategyList::ToolTipText() const { return ToQt(list_->ToolTipText()); }
void StrategyList::ToolTipText(const QString& text) { list_->ToolTipText(FromQt(text)); }
QString StrategyList::DefaultContent() const { return ToQt(list_->DefaultContent()); }
void StrategyList::DefaultContent(const QString& text) { list_->DefaultContent(FromQt(text)); }
StrategyList::TypeOfStrategyControl StrategyList::ControlType() const {
  return static_cast<TypeOfStrategyControl>(list_->ControlType().Value());
}
void StrategyList::ControlType(TypeOfStrategyControl type) { list_->ControlType(static_cast<std::int32_t>(type)); }
int StrategyList::ListIndex() const { return list_->ListIndex(); }
void StrategyList::ListIndex(int strategy) { list_->ListIndex(ToInt16(strategy)); }
int StrategyList::SelectThisStrategy() const { return list_->SelectThisStrategy(); }
void StrategyList::SelectThisStrategy(int strategy) { list_->SelectThisStrategy(ToInt16(strategy)); }
int StrategyList::Style() const { return list_->Style(); }
bool StrategyList::Visible() const { return list_->Visible(); }
void StrategyList::Visible(bool visible) { list_->Visible(visible); }
int StrategyList::StrategyCount() const { return list_->StrategyCount(); }

void StrategyList::AddItem(const QString& item) { list_->AddItem(FromQt(item)); }
void StrategyList::AddItem(const QString& item, int index) { list_->AddItem(FromQt(item), index); }
void StrategyList::InputPlayingStrategyDescriptions() { list_->InputPlayingStrategyDescriptions(); }
void StrategyList::LoadStrategiesFromIniFile() { list_->LoadStrategiesFromIniFile(); }
void StrategyList::UseThisStrategyList(const ObjectRef& thisStrategyList) {
  list_->UseThisStrategyList(thisStrategyList);
}

}  // namespace tactix::qt
