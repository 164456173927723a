#include "trainer/screens/CardView.h"

#include <QPainter>
#include <algorithm>

#include "trainer/engine/Words.h"
#include "trainer/screens/CardPainter.h"
#include "trainer/screens/Messages.h"

namespace trainer::screens {

namespace {

constexpr int Margin = 8;
constexpr int HintedWidth = 150;
constexpr int SmallestWidth = 80;

QSize SizeFor(int width) { return {width + 2 * Margin, qRound(width * CardAspect) + 2 * Margin}; }

}  // namespace

CardView::CardView(QWidget* parent) : QWidget(parent) {
  setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
  Show(std::nullopt);
}

void CardView::Show(std::optional<engine::Card> card) {
  card_ = card;
  setAccessibleName(card ? ToQt(engine::NameOf(*card)) : QStringLiteral("No card"));
  update();
}

QSize CardView::sizeHint() const { return SizeFor(HintedWidth); }

QSize CardView::minimumSizeHint() const { return SizeFor(SmallestWidth); }

void CardView::paintEvent(QPaintEvent*) {
  const QRect room = rect().adjusted(Margin, Margin, -Margin, -Margin);
  const qreal width = std::min<qreal>(room.width(), room.height() / CardAspect);
  QRectF place(0, 0, width, width * CardAspect);
  place.moveCenter(QRectF(room).center());
  QPainter painter(this);
  card_ ? PaintCard(painter, place, *card_) : PaintCardBack(painter, place);
}

}  // namespace trainer::screens
