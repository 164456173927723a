#include "tactix-qt/peers/TextGrowth.h"

#include <QFontMetricsF>
#include <QWidget>

#include "tactix-qt/Convert.h"
#include "tactix-qt/peers/Peer.h"

namespace tactix::qt {

namespace {

bool ShowsText(const Widget& widget) {
  switch (widget.Kind()) {
    case WidgetKind::Label:
    case WidgetKind::PushButton:
    case WidgetKind::OptionButton:
    case WidgetKind::Panel:
    case WidgetKind::Frame:
    case WidgetKind::ListBox:
    case WidgetKind::ToolBar:
      return true;
    default:
      return false;
  }
}

QSizeF SizeOfLetters(const QFont& font) {
  const QFontMetricsF metrics(font);
  return {metrics.horizontalAdvance(QStringLiteral("Hit Stand Split Double 16")), metrics.lineSpacing()};
}

QSizeF GrowthOf(const QFont& shown, const QFont& designed) {
  // Other letters of the same size fit as they are, or shrink a little.
  if (FromQt(shown).Size <= FromQt(designed).Size) return {1, 1};
  const QSizeF now = SizeOfLetters(shown);
  const QSizeF then = SizeOfLetters(designed);
  return {now.width() / then.width(), now.height() / then.height()};
}

}  // namespace

QSizeF TextGrowth(const QWidget& native) {
  QSizeF growth(1, 1);
  for (const QWidget* child : native.findChildren<QWidget*>()) {
    const auto* const peer = dynamic_cast<const Peer*>(child);
    if (!peer || !peer->ItsWidget() || !ShowsText(*peer->ItsWidget())) continue;
    growth = growth.expandedTo(GrowthOf(child->font(), peer->DesignedFont()));
  }
  return growth;
}

}  // namespace tactix::qt
