#include "trainer/screens/SuitShapes.h"

#include <QTransform>
#include <initializer_list>

namespace trainer::screens {
namespace {

using engine::Suit;

QPainterPath Heart() {
  QPainterPath path;
  path.moveTo(0, 0.49);
  path.cubicTo(-0.10, 0.27, -0.47, 0.09, -0.47, -0.20);
  path.cubicTo(-0.47, -0.38, -0.36, -0.47, -0.245, -0.47);
  path.cubicTo(-0.13, -0.47, -0.04, -0.40, 0, -0.27);
  path.cubicTo(0.04, -0.40, 0.13, -0.47, 0.245, -0.47);
  path.cubicTo(0.36, -0.47, 0.47, -0.38, 0.47, -0.20);
  path.cubicTo(0.47, 0.09, 0.10, 0.27, 0, 0.49);
  path.closeSubpath();
  return path;
}

QPainterPath Diamond() {
  QPainterPath path;
  path.moveTo(0, -0.50);
  path.quadTo(0.14, -0.20, 0.40, 0);
  path.quadTo(0.14, 0.20, 0, 0.50);
  path.quadTo(-0.14, 0.20, -0.40, 0);
  path.quadTo(-0.14, -0.20, 0, -0.50);
  path.closeSubpath();
  return path;
}

QPainterPath Stem(qreal top) {
  QPainterPath path;
  path.moveTo(0.035, top);
  path.cubicTo(0.04, 0.34, 0.09, 0.44, 0.19, 0.49);
  path.lineTo(-0.19, 0.49);
  path.cubicTo(-0.09, 0.44, -0.04, 0.34, -0.035, top);
  path.closeSubpath();
  return path;
}

// One outline around them all. Joining works on a large scale, because curves are flattened to a fixed tolerance.
QPainterPath Joined(std::initializer_list<QPainterPath> parts) {
  constexpr qreal Scale = 1000;
  const QTransform enlarge = QTransform::fromScale(Scale, Scale);
  QPainterPath whole;
  for (const QPainterPath& part : parts) whole = whole.united(enlarge.map(part));
  return enlarge.inverted().map(whole);
}

QPainterPath Spade() {
  QPainterPath path;
  path.moveTo(0, -0.49);
  path.cubicTo(0.09, -0.27, 0.46, -0.10, 0.46, 0.14);
  path.cubicTo(0.46, 0.28, 0.36, 0.355, 0.255, 0.355);
  path.cubicTo(0.14, 0.355, 0.05, 0.29, 0, 0.17);
  path.cubicTo(-0.05, 0.29, -0.14, 0.355, -0.255, 0.355);
  path.cubicTo(-0.36, 0.355, -0.46, 0.28, -0.46, 0.14);
  path.cubicTo(-0.46, -0.10, -0.09, -0.27, 0, -0.49);
  path.closeSubpath();
  return Joined({path, Stem(0.10)});
}

QPainterPath Club() {
  constexpr qreal Leaf = 0.222;
  QPainterPath top, left, right, middle;
  top.addEllipse(QPointF(0, -0.265), Leaf, Leaf);
  left.addEllipse(QPointF(-0.25, 0.095), Leaf, Leaf);
  right.addEllipse(QPointF(0.25, 0.095), Leaf, Leaf);
  middle.addEllipse(QPointF(0, -0.01), 0.12, 0.12);
  return Joined({top, left, right, middle, Stem(0.0)});
}

}  // namespace

const QPainterPath& SuitPath(Suit suit) {
  static const QPainterPath Clubs = Club();
  static const QPainterPath Diamonds = Diamond();
  static const QPainterPath Hearts = Heart();
  static const QPainterPath Spades = Spade();
  switch (suit) {
    case Suit::Clubs:
      return Clubs;
    case Suit::Diamonds:
      return Diamonds;
    case Suit::Hearts:
      return Hearts;
    case Suit::Spades:
      break;
  }
  return Spades;
}

QPainterPath SuitPathAt(Suit suit, QPointF centre, qreal size, Upright upright) {
  QTransform place;
  place.translate(centre.x(), centre.y());
  place.scale(size, upright == Upright::Yes ? size : -size);
  return place.map(SuitPath(suit));
}

bool IsRed(Suit suit) { return suit == Suit::Diamonds || suit == Suit::Hearts; }

}  // namespace trainer::screens
