#include "trainer/screens/TableLayout.h"

#include <algorithm>

#include "trainer/screens/CardPainter.h"

namespace trainer::screens {
namespace {

// All in pixels of the table at its preferred size.
constexpr qreal PreferredWidth = 900;
constexpr qreal PreferredHeight = 480;
constexpr qreal Margin = 12;
constexpr qreal Gap = 6;
constexpr qreal LabelHeight = 27;
constexpr qreal MessageHeight = 44;
constexpr qreal BetHeight = 32;
constexpr qreal FrameMargin = 6;
constexpr qreal SideWidth = 150;
constexpr qreal SideHeight = 58;
constexpr qreal PrintHeight = 15;
constexpr qreal PrintBand = 34;

constexpr qreal DealerStep = 1.07;  // of a card's width: side by side
constexpr qreal PlayerStep = 0.57;  // overlapping, as hit cards are laid

std::size_t DealtToDealer(const TableModel& model) {
  const std::size_t given = model.dealer.size();
  return model.holeHidden && given == 1 ? 2 : given;
}

// The widest card with which `count` of them fit when fanned as closely as their corners allow.
qreal WidestCard(std::size_t count, qreal width) {
  return count == 0 ? width : width / (1 + CardIndexStrip * static_cast<qreal>(count - 1));
}

std::vector<QRectF> Fan(std::size_t count, const QRectF& within, QSizeF card, qreal preferredStep) {
  std::vector<QRectF> places;
  if (count == 0) return places;
  const qreal gaps = static_cast<qreal>(count - 1);
  const qreal room = within.width() - card.width();
  qreal step = preferredStep * card.width();
  if (step * gaps > room) step = std::min(PlayerStep * card.width(), room / gaps);
  qreal left = within.center().x() - (card.width() + step * gaps) / 2;
  for (std::size_t i = 0; i < count; ++i, left += step) places.emplace_back(QPointF(left, within.top()), card);
  return places;
}

}  // namespace

TableLayout LayOut(const TableModel& model, QSizeF size) {
  TableLayout layout;
  const qreal width = std::max(size.width(), 1.0);
  const qreal height = std::max(size.height(), 1.0);
  const qreal unit = std::min(width / PreferredWidth, height / PreferredHeight);
  layout.unit = unit;
  const qreal margin = Margin * unit;
  const qreal gap = Gap * unit;
  const qreal labelHeight = LabelHeight * unit;
  const qreal messageHeight = MessageHeight * unit;
  const qreal betHeight = BetHeight * unit;
  const qreal frameMargin = FrameMargin * unit;
  const qreal sideWidth = SideWidth * unit;

  const std::size_t handCount = model.hands.size();
  const qreal slotWidth = handCount == 0 ? 0 : (width - margin) / static_cast<qreal>(handCount) - margin;
  const qreal fanWidth = slotWidth - 2 * frameMargin;
  const qreal dealerWidth = width - 2 * (sideWidth + 2 * margin);

  const qreal band = (model.feltText.isEmpty() ? 0.0 : PrintBand * unit) + gap + messageHeight + gap;
  const qreal used = margin + labelHeight + gap + band + labelHeight + gap + 2 * frameMargin + gap + betHeight + margin;
  const std::size_t dealerCount = DealtToDealer(model);
  qreal cardWidth = std::max(1.0, (height - used) / 2) / CardAspect;
  cardWidth = std::min(cardWidth, WidestCard(dealerCount, dealerWidth));
  for (const TableModel::HandView& hand : model.hands) {
    cardWidth = std::min(cardWidth, WidestCard(hand.cards.size(), fanWidth));
  }
  const QSizeF card(cardWidth, cardWidth * CardAspect);

  // On a table that is higher than the cards can use, part of the spare height goes above the dealer and below the
  // player.
  const qreal spare = std::max(0.0, height - used - 2 * card.height());
  const qreal outside = spare * 0.15;

  layout.dealerArea =
      QRectF((width - dealerWidth) / 2, margin + outside, dealerWidth, labelHeight + gap + card.height());
  layout.dealerLabel = QRectF(layout.dealerArea.topLeft(), QSizeF(dealerWidth, labelHeight));
  const QRectF dealerFan(layout.dealerArea.left(), layout.dealerLabel.bottom() + gap, dealerWidth, card.height());
  layout.dealerCards = Fan(dealerCount, dealerFan, card, DealerStep);

  const qreal handBottom = height - margin - outside;
  const qreal handTop = handBottom - betHeight - gap - 2 * frameMargin - card.height() - gap - labelHeight;
  qreal left = margin;
  for (const TableModel::HandView& hand : model.hands) {
    TableLayout::Hand place;
    place.area = QRectF(left, handTop, slotWidth, handBottom - handTop);
    place.label = QRectF(left, handTop, slotWidth, labelHeight);
    const QRectF fan(left + frameMargin, place.label.bottom() + gap + frameMargin, fanWidth, card.height());
    place.cards = Fan(hand.cards.size(), fan, card, PlayerStep);
    const QRectF dealt = place.cards.empty()
                             ? QRectF(fan.center().x() - card.width() / 2, fan.top(), card.width(), card.height())
                             : place.cards.front().united(place.cards.back());
    place.frame = dealt.adjusted(-frameMargin, -frameMargin, frameMargin, frameMargin);
    place.wager = QRectF(left, place.frame.bottom() + gap, slotWidth, betHeight);
    layout.hands.push_back(std::move(place));
    left += slotWidth + margin;
  }

  layout.message = QRectF(2 * margin, handTop - gap - messageHeight - spare * 0.2, width - 4 * margin, messageHeight);
  if (!model.feltText.isEmpty()) {
    const qreal printTop = layout.dealerArea.bottom() + gap;
    const qreal printRoom = layout.message.top() - printTop;
    // The letters stand between two lines, which take as much room again.
    layout.printHeight = std::min(PrintHeight * unit, printRoom / 2.3);
    layout.printRadius = width * 1.1;
    layout.printCentre = QPointF(width / 2, printTop + printRoom / 2 + layout.printHeight * 0.4);
  }
  layout.shoe = QRectF(width - margin - sideWidth, margin, sideWidth, SideHeight * unit);
  layout.banner = QRectF(margin, margin, sideWidth, SideHeight * unit);
  return layout;
}

}  // namespace trainer::screens
