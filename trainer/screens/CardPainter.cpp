#include "trainer/screens/CardPainter.h"

#include <QPainterPath>
#include <QTransform>
#include <algorithm>
#include <array>
#include <cmath>

#include "trainer/screens/CourtPanel.h"
#include "trainer/screens/RankShapes.h"
#include "trainer/screens/SuitShapes.h"

namespace trainer::screens {
namespace {

using engine::Card;
using engine::Rank;
using engine::Suit;

// All faces are drawn on a sheet of this size, which is then scaled to where the card lies.
constexpr qreal SheetWidth = 100;
constexpr qreal SheetHeight = SheetWidth * CardAspect;
constexpr qreal CornerRadius = 7;

constexpr QColor Paper(0xFD, 0xFC, 0xF8);
constexpr QColor PaperEdge(0x9A, 0x96, 0x8C);
constexpr QColor RedInk(0xC4, 0x16, 0x24);
constexpr QColor BlackInk(0x17, 0x1A, 0x20);
constexpr QColor BackInk(0x1B, 0x2F, 0x5E);
constexpr QColor BackPale(0xC9, 0xD6, 0xF0);
constexpr QColor BackGold(0xE3, 0xB9, 0x5B);

constexpr qreal LeftX = 0.33, MiddleX = 0.5, RightX = 0.67;
constexpr qreal TopY = 0.18, BottomY = 0.82;
constexpr qreal UpperY = 0.3933, LowerY = 0.6067;

constexpr std::array Pips1 = {PipPlace{MiddleX, 0.5}};
constexpr std::array Pips2 = {PipPlace{MiddleX, TopY}, PipPlace{MiddleX, BottomY}};
constexpr std::array Pips3 = {PipPlace{MiddleX, TopY}, PipPlace{MiddleX, 0.5}, PipPlace{MiddleX, BottomY}};
constexpr std::array Pips4 = {PipPlace{LeftX, TopY}, PipPlace{RightX, TopY}, PipPlace{LeftX, BottomY},
                              PipPlace{RightX, BottomY}};
constexpr std::array Pips5 = {PipPlace{LeftX, TopY}, PipPlace{RightX, TopY}, PipPlace{MiddleX, 0.5},
                              PipPlace{LeftX, BottomY}, PipPlace{RightX, BottomY}};
constexpr std::array Pips6 = {PipPlace{LeftX, TopY}, PipPlace{RightX, TopY},   PipPlace{LeftX, 0.5},
                              PipPlace{RightX, 0.5}, PipPlace{LeftX, BottomY}, PipPlace{RightX, BottomY}};
constexpr std::array Pips7 = {PipPlace{LeftX, TopY},    PipPlace{RightX, TopY}, PipPlace{MiddleX, 0.34},
                              PipPlace{LeftX, 0.5},     PipPlace{RightX, 0.5},  PipPlace{LeftX, BottomY},
                              PipPlace{RightX, BottomY}};
constexpr std::array Pips8 = {PipPlace{LeftX, TopY},    PipPlace{RightX, TopY},   PipPlace{MiddleX, 0.34},
                              PipPlace{LeftX, 0.5},     PipPlace{RightX, 0.5},    PipPlace{MiddleX, 0.66},
                              PipPlace{LeftX, BottomY}, PipPlace{RightX, BottomY}};
constexpr std::array Pips9 = {PipPlace{LeftX, TopY},    PipPlace{RightX, TopY},   PipPlace{LeftX, UpperY},
                              PipPlace{RightX, UpperY}, PipPlace{MiddleX, 0.5},   PipPlace{LeftX, LowerY},
                              PipPlace{RightX, LowerY}, PipPlace{LeftX, BottomY}, PipPlace{RightX, BottomY}};
constexpr std::array Pips10 = {PipPlace{LeftX, TopY},    PipPlace{RightX, TopY},    PipPlace{MiddleX, 0.2867},
                               PipPlace{LeftX, UpperY},  PipPlace{RightX, UpperY},  PipPlace{LeftX, LowerY},
                               PipPlace{RightX, LowerY}, PipPlace{MiddleX, 0.7133}, PipPlace{LeftX, BottomY},
                               PipPlace{RightX, BottomY}};

// Moves edges onto whole device pixels, so that a card's outline is a line and not a smear.
QRectF OnWholePixels(const QPainter& painter, const QRectF& bounds) {
  const QTransform& toDevice = painter.deviceTransform();
  if (toDevice.type() > QTransform::TxScale) return bounds;
  const QRectF device = toDevice.mapRect(bounds);
  const QRectF whole(QPointF(std::round(device.left()), std::round(device.top())),
                     QPointF(std::round(device.right()), std::round(device.bottom())));
  if (whole.isEmpty()) return bounds;
  return toDevice.inverted().mapRect(whole);
}

QPainterPath RoundedSheet(qreal inset) {
  QPainterPath path;
  path.addRoundedRect(QRectF(0, 0, SheetWidth, SheetHeight).adjusted(inset, inset, -inset, -inset),
                      CornerRadius - inset, CornerRadius - inset);
  return path;
}

// Lays the empty sheet and leaves the painter in the sheet's coordinates.
void LaySheet(QPainter& painter, const QRectF& bounds) {
  painter.setRenderHint(QPainter::Antialiasing);
  const QRectF place = OnWholePixels(painter, bounds);
  const qreal onePixel = painter.device() == nullptr ? 1.0 : 1.0 / painter.device()->devicePixelRatio();
  painter.translate(place.topLeft());
  painter.scale(place.width() / SheetWidth, place.height() / SheetHeight);
  painter.setPen(Qt::NoPen);
  painter.fillPath(RoundedSheet(0), PaperEdge);
  painter.fillPath(RoundedSheet(std::max(0.7, onePixel * SheetWidth / place.width())), Paper);
}

void TurnUpsideDown(QPainter& painter) {
  painter.translate(SheetWidth, SheetHeight);
  painter.rotate(180);
}

void PaintIndex(QPainter& painter, Card card, const QColor& ink) {
  painter.fillPath(RankPathAt(card.rank, QPointF(12, 7), 20, RankStroke::Index), ink);
  painter.fillPath(SuitPathAt(card.suit, QPointF(12, 37.5), 14), ink);
}

void PaintPips(QPainter& painter, Card card, const QColor& ink) {
  const qreal size = card.rank == Rank::Ace ? 46 : 19.5;
  for (const PipPlace& pip : PipPlaces(card.rank)) {
    const Upright upright = pip.y > 0.5 ? Upright::No : Upright::Yes;
    painter.fillPath(SuitPathAt(card.suit, QPointF(pip.x * SheetWidth, pip.y * SheetHeight), size, upright), ink);
  }
}

bool IsFace(Rank rank) { return rank > Rank::Ten; }

}  // namespace

std::span<const PipPlace> PipPlaces(Rank rank) {
  static constexpr std::array<std::span<const PipPlace>, 10> Tables = {Pips1, Pips2, Pips3, Pips4, Pips5,
                                                                       Pips6, Pips7, Pips8, Pips9, Pips10};
  if (IsFace(rank)) return {};
  return Tables[static_cast<std::size_t>(rank) - 1];
}

QColor SuitColor(Suit suit) { return IsRed(suit) ? RedInk : BlackInk; }

void PaintCard(QPainter& painter, const QRectF& bounds, Card card) {
  if (bounds.isEmpty()) return;
  painter.save();
  LaySheet(painter, bounds);
  const QColor ink = SuitColor(card.suit);
  if (IsFace(card.rank)) {
    PaintCourtPanel(painter, QRectF(23, 12, SheetWidth - 46, SheetHeight - 24), card, ink);
  } else {
    PaintPips(painter, card, ink);
  }
  PaintIndex(painter, card, ink);
  TurnUpsideDown(painter);
  PaintIndex(painter, card, ink);
  painter.restore();
}

void PaintCardBack(QPainter& painter, const QRectF& bounds) {
  if (bounds.isEmpty()) return;
  painter.save();
  LaySheet(painter, bounds);
  const QRectF field(6, 6, SheetWidth - 12, SheetHeight - 12);
  const QPointF middle = field.center();
  QPainterPath frame;
  frame.addRoundedRect(field, 4, 4);
  painter.fillPath(frame, BackInk);

  // A lattice of lozenges with a stud in every other one.
  constexpr int Columns = 8;
  constexpr int Rows = 8;
  const QRectF lattice = field.adjusted(4, 4, -4, -4);
  const qreal stepX = lattice.width() / Columns;
  const qreal stepY = lattice.height() / Rows;
  painter.save();
  painter.setClipRect(lattice);
  QPainterPath lines;
  for (int line = -Rows; line <= Columns; ++line) {
    const qreal x = lattice.left() + line * stepX;
    lines.moveTo(x, lattice.top());
    lines.lineTo(x + Rows * stepX, lattice.bottom());
    lines.moveTo(x, lattice.bottom());
    lines.lineTo(x + Rows * stepX, lattice.top());
  }
  painter.strokePath(lines, QPen(BackPale, 0.9));
  QPainterPath studs;
  for (int row = 0; row <= 2 * Rows; ++row) {
    for (int column = 0; column <= 2 * Columns; ++column) {
      if ((row + column) % 2 == 0 || row % 2 == 0) continue;
      const QPointF stud(lattice.left() + column * stepX / 2, lattice.top() + row * stepY / 2);
      studs.addPath(SuitPathAt(Suit::Diamonds, stud, 5.4));
    }
  }
  painter.fillPath(studs, BackGold);
  painter.restore();
  painter.setBrush(Qt::NoBrush);
  painter.setPen(QPen(BackPale, 1.1));
  painter.drawRect(lattice);

  // The medallion: the four suits around the middle, one turned to each side.
  painter.setBrush(BackInk);
  painter.setPen(QPen(BackGold, 1.4));
  painter.drawEllipse(middle, 25, 25);
  painter.setPen(QPen(BackPale, 0.8));
  painter.drawEllipse(middle, 22, 22);
  constexpr std::array Around = {Suit::Spades, Suit::Hearts, Suit::Clubs, Suit::Diamonds};
  painter.translate(middle);
  for (const Suit suit : Around) {
    painter.fillPath(SuitPathAt(suit, QPointF(0, -12), 13), BackPale);
    painter.rotate(90);
  }
  painter.fillPath(SuitPathAt(Suit::Diamonds, QPointF(0, 0), 6), BackGold);
  painter.restore();
}

}  // namespace trainer::screens
