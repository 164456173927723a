#include "tactix-qt/peers/AccessibleNames.h"

#include <QLabel>
#include <algorithm>
#include <string_view>

#include "tactix-qt/ControlWidget.h"
#include "tactix-qt/Convert.h"
#include "tactix-qt/peers/LabelPeer.h"
#include "tactix-qt/peers/Peer.h"
#include "tactix/counting/CardCountDisplayBox.h"
#include "tactix/counting/ClumpCardList.h"
#include "tactix/counting/CountValueSelector.h"
#include "tactix/counting/DualCardCountDisplay.h"
#include "tactix/counting/SpinCounter.h"
#include "tactix/counting/StrategyDataPanel.h"
#include "tactix/counting/UnitSelectionList.h"
#include "tactix/decision/AdviceButton.h"
#include "tactix/decision/Decision.h"
#include "tactix/decision/DecisionToolBar.h"
#include "tactix/decision/HitStandLegend.h"
#include "tactix/scoring/DecisionRegiLOG.h"
#include "tactix/scoring/DecisionRegister.h"
#include "tactix/strategy/BetStrategyList.h"
#include "tactix/strategy/CountStrategyList.h"
#include "tactix/strategy/StrategyList.h"
#include "tactix/strategy/StrategyListLITE.h"
#include "tactix/strategy/StrategyMarquix.h"

namespace tactix::qt {

namespace {

struct ControlName {
  bool (*isIt)(const Control& control);
  const char* name;
};

template <class C>
constexpr ControlName NameFor(const char* name) {
  return {[](const Control& control) { return dynamic_cast<const C*>(&control) != nullptr; }, name};
}

constexpr ControlName ControlNames[] = {
    NameFor<AdviceButton>("Advice"),
    NameFor<BetStrategyList>("Betting strategy"),
    NameFor<CardCountDisplayBox>("Count"),
    NameFor<ClumpCardList>("Clump value"),
    NameFor<CountStrategyList>("Count system"),
    NameFor<CountValueSelector>("Point value"),
    NameFor<Decision>("Decision"),
    NameFor<DecisionToolBarControl>("Decision toolbar"),
    NameFor<DecisionRegiLOG>("Decision log"),
    NameFor<DecisionRegister>("Decision register"),
    NameFor<DualCardCountDisplay>("Counts"),
    NameFor<HitStandLegend>("Legend of plays"),
    NameFor<SpinCounter>("Counter"),
    NameFor<StrategyDataPanel>("Strategy information"),
    NameFor<StrategyList>("Strategy"),
    NameFor<StrategyListLITE>("Strategy"),
    NameFor<StrategyMarquix>("Strategy of a seat"),
    NameFor<UnitSelectionList>("Units"),
};

/// Child widgets by the names under which their controls know them.
constexpr std::string_view PlayButtonPanel = "ManualPlayButtons";
constexpr std::string_view CardLabel = "lblCardValue";
constexpr std::string_view AnnouncedLabels[] = {"lblUserControlCaption", "labelAfterAdvice2",
                                                "labelTheShouldRecommendation"};

/// Empty for a control of the host's own.
QString DefaultNameOf(const Control& control) {
  for (const ControlName& row : ControlNames) {
    if (row.isIt(control)) return QString::fromLatin1(row.name);
  }
  return {};
}

QString Spoken(std::string_view caption) {
  // A line of underscores is an empty field.
  return ToQt(PlainCaption(caption)).remove(QLatin1Char('_')).trimmed();
}

QString BuddyTextOf(const QWidget& widget) {
  if (!widget.parentWidget()) return {};
  for (const QLabel* label : widget.parentWidget()->findChildren<QLabel*>(QString(), Qt::FindDirectChildrenOnly)) {
    if (label->buddy() == &widget) return ToQt(PlainCaption(FromQt(label->text())));
  }
  return {};
}

/// The card beside a list of values; empty where there is none.
QString CardBeside(const Widget& list) {
  for (const Widget* sibling : list.Parent()->Children()) {
    if (sibling->Name() != CardLabel || sibling->Kind() != WidgetKind::Label) continue;
    const std::string& card = static_cast<const Label*>(sibling)->Caption();
    if (card == "A" || card == "1") return QStringLiteral("ace");
    if (card == "T" || card == "10") return QStringLiteral("ten");
    return ToQt(card);
  }
  return {};
}

/// The control to which a child widget belongs, as called by its host or by default.
QString NameOfOwner(const Peer& peer) {
  const Extender* const owner = peer.ItsWidget()->Owner();
  if (!owner) return {};
  const QWidget* at = &peer.Native();
  while (at && !qobject_cast<const ControlWidget*>(at)) at = at->parentWidget();
  const auto* const shell = static_cast<const ControlWidget*>(at);
  return shell && shell->Hosted() == &owner->ItsControl() ? SpokenNameOf(*shell) : DefaultNameOf(owner->ItsControl());
}

QString NameAsItsControl(const Peer& peer, const char* otherwise) {
  const Widget& widget = *peer.ItsWidget();
  const QString name = NameOfOwner(peer);
  const QString card = CardBeside(widget);
  if (!name.isEmpty()) return card.isEmpty() ? name : name + QLatin1String(" of ") + card;
  return widget.ToolTipText().empty() ? QString::fromLatin1(otherwise) : ToQt(widget.ToolTipText());
}

QString NameOfLabel(const Peer& peer) {
  const auto& label = static_cast<const Label&>(*peer.ItsWidget());
  QString name = Spoken(label.Heading() + " " + label.Caption());
  const auto* const native = dynamic_cast<const LabelPeer*>(&peer);
  if (const Label* sign = native ? native->Sign() : nullptr) {
    QString letter = Spoken(sign->Caption());
    while (letter.endsWith(QLatin1Char('-')) || letter.endsWith(QLatin1Char(' '))) letter.chop(1);
    name += QLatin1String(", ") + letter;
  }
  return name;
}

}  // namespace

QString SpokenNameOf(const ControlWidget& widget) {
  if (!widget.accessibleName().isEmpty()) return widget.accessibleName();
  const QString buddy = BuddyTextOf(widget);
  if (!buddy.isEmpty() || !widget.Hosted()) return buddy;
  return DefaultNameOf(*widget.Hosted());
}

QString SpokenNameOf(const Peer& peer) {
  const Widget* const widget = peer.ItsWidget();
  if (!widget) return {};
  switch (widget->Kind()) {
    case WidgetKind::Extender:
      return DefaultNameOf(static_cast<const Extender*>(widget)->ItsControl());
    case WidgetKind::Label:
      return NameOfLabel(peer);
    case WidgetKind::PushButton:
    case WidgetKind::OptionButton: {
      const QString caption = Spoken(static_cast<const Captioned*>(widget)->Caption());
      return caption.isEmpty() ? ToQt(widget->ToolTipText()) : caption;
    }
    case WidgetKind::Panel:
      if (widget->Name() == PlayButtonPanel) return QStringLiteral("Plays");
      return Spoken(static_cast<const Captioned*>(widget)->Caption());
    case WidgetKind::Frame:
      return Spoken(static_cast<const Captioned*>(widget)->Caption());
    case WidgetKind::ListBox:
      return NameAsItsControl(peer, "List");
    case WidgetKind::SpinButton:
      return NameAsItsControl(peer, "Number");
    case WidgetKind::ToolBar:
      return NameAsItsControl(peer, "Toolbar");
    case WidgetKind::Picture:
    case WidgetKind::Line:
      return {};
  }
  return {};
}

bool IsAnnounced(const Widget& widget) {
  return std::find(std::begin(AnnouncedLabels), std::end(AnnouncedLabels), widget.Name()) != std::end(AnnouncedLabels);
}

}  // namespace tactix::qt
