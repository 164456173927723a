#include "trainer/screens/RankShapes.h"

#include <QPainterPathStroker>
#include <QTransform>
#include <array>

namespace trainer::screens {
namespace {

using engine::Rank;

// The pen's way through a letter. Straight strokes that meet the top or the bottom overshoot it; the box cuts them off.
struct Skeleton {
  qreal width;
  QPainterPath strokes;
};

QPainterPath Six() {
  QPainterPath path;
  path.moveTo(0.525, 0.21);
  path.cubicTo(0.49, 0.12, 0.41, 0.0775, 0.325, 0.0775);
  path.cubicTo(0.16, 0.0775, 0.0775, 0.27, 0.0775, 0.56);
  path.cubicTo(0.0775, 0.80, 0.17, 0.9225, 0.31, 0.9225);
  path.cubicTo(0.45, 0.9225, 0.5425, 0.82, 0.5425, 0.665);
  path.cubicTo(0.5425, 0.51, 0.45, 0.41, 0.32, 0.41);
  path.cubicTo(0.20, 0.41, 0.10, 0.49, 0.0775, 0.62);
  return path;
}

Skeleton SkeletonOf(Rank rank) {
  QPainterPath path;
  switch (rank) {
    case Rank::Ace:
      path.moveTo(0.055, 1.1);
      path.lineTo(0.34, 0.02);
      path.lineTo(0.625, 1.1);
      path.moveTo(0.14, 0.69);
      path.lineTo(0.54, 0.69);
      return {0.68, path};
    case Rank::Two:
      path.moveTo(0.0775, 0.33);
      path.cubicTo(0.0775, 0.17, 0.17, 0.0775, 0.305, 0.0775);
      path.cubicTo(0.445, 0.0775, 0.53, 0.165, 0.53, 0.295);
      path.cubicTo(0.53, 0.49, 0.24, 0.62, 0.0925, 0.9225);
      path.lineTo(0.61, 0.9225);
      return {0.61, path};
    case Rank::Three:
      path.moveTo(0.075, 0.24);
      path.cubicTo(0.10, 0.13, 0.19, 0.0775, 0.30, 0.0775);
      path.cubicTo(0.43, 0.0775, 0.515, 0.155, 0.515, 0.275);
      path.cubicTo(0.515, 0.40, 0.42, 0.475, 0.23, 0.475);
      path.cubicTo(0.44, 0.475, 0.5425, 0.555, 0.5425, 0.69);
      path.cubicTo(0.5425, 0.835, 0.44, 0.9225, 0.30, 0.9225);
      path.cubicTo(0.18, 0.9225, 0.09, 0.87, 0.065, 0.75);
      return {0.62, path};
    case Rank::Four:
      path.moveTo(0.45, 1.1);
      path.lineTo(0.45, 0.03);
      path.lineTo(0.07, 0.70);
      path.lineTo(0.64, 0.70);
      return {0.64, path};
    case Rank::Five:
      path.moveTo(0.565, 0.0775);
      path.lineTo(0.145, 0.0775);
      path.lineTo(0.115, 0.475);
      path.cubicTo(0.165, 0.42, 0.23, 0.39, 0.305, 0.39);
      path.cubicTo(0.45, 0.39, 0.5425, 0.495, 0.5425, 0.65);
      path.cubicTo(0.5425, 0.82, 0.44, 0.9225, 0.295, 0.9225);
      path.cubicTo(0.18, 0.9225, 0.095, 0.87, 0.065, 0.765);
      return {0.62, path};
    case Rank::Six:
      return {0.62, Six()};
    case Rank::Seven:
      path.moveTo(0, 0.0775);
      path.lineTo(0.52, 0.0775);
      path.lineTo(0.19, 1.1);
      return {0.62, path};
    case Rank::Eight:
      path.addEllipse(QPointF(0.31, 0.28), 0.2, 0.2025);
      path.addEllipse(QPointF(0.31, 0.7025), 0.2325, 0.22);
      return {0.62, path};
    case Rank::Nine: {
      QTransform halfTurn;
      halfTurn.translate(0.62, 1);
      halfTurn.rotate(180);
      return {0.62, halfTurn.map(Six())};
    }
    case Rank::Ten:
      path.moveTo(0, 0.275);
      path.lineTo(0.1675, 0.07);
      path.lineTo(0.1675, 1.1);
      path.addEllipse(QPointF(0.58, 0.5), 0.1825, 0.4225);
      return {0.84, path};
    case Rank::Jack:
      path.moveTo(0.24, 0.0775);
      path.lineTo(0.4325, 0.0775);
      path.lineTo(0.4325, 0.65);
      path.cubicTo(0.4325, 0.83, 0.365, 0.9225, 0.25, 0.9225);
      path.cubicTo(0.14, 0.9225, 0.0775, 0.85, 0.0775, 0.71);
      return {0.56, path};
    case Rank::Queen:
      path.addEllipse(QPointF(0.325, 0.48), 0.2475, 0.4025);
      path.moveTo(0.36, 0.66);
      path.lineTo(0.66, 1.05);
      return {0.66, path};
    case Rank::King:
      break;
  }
  path.moveTo(0.0775, -0.1);
  path.lineTo(0.0775, 1.1);
  path.moveTo(0.62, -0.1);
  path.lineTo(0.10, 0.66);
  path.moveTo(0.27, 0.40);
  path.lineTo(0.62, 1.1);
  return {0.66, path};
}

qreal WeightOf(RankStroke stroke) {
  switch (stroke) {
    case RankStroke::Index:
      return 0.165;
    case RankStroke::Letter:
      return 0.20;
    case RankStroke::Inline:
      break;
  }
  return 0.035;
}

QPainterPath Outline(Rank rank, RankStroke stroke) {
  // Stroking and cutting work on a large scale, because curves are flattened to a fixed tolerance.
  constexpr qreal Scale = 1000;
  const Skeleton skeleton = SkeletonOf(rank);
  QPainterPathStroker pen;
  pen.setWidth(WeightOf(stroke) * Scale);
  pen.setCapStyle(Qt::FlatCap);
  pen.setJoinStyle(Qt::MiterJoin);
  pen.setMiterLimit(6);
  const QTransform enlarge = QTransform::fromScale(Scale, Scale);
  QPainterPath box;
  box.addRect(0, 0, skeleton.width * Scale, Scale);
  const QPainterPath outline = pen.createStroke(enlarge.map(skeleton.strokes)).simplified().intersected(box);
  return enlarge.inverted().map(outline).translated(-skeleton.width / 2, 0);
}

using Alphabet = std::array<QPainterPath, engine::RankCount>;

Alphabet AllRanks(RankStroke stroke) {
  Alphabet outlines;
  int rank = 1;
  for (QPainterPath& outline : outlines) outline = Outline(static_cast<Rank>(rank++), stroke);
  return outlines;
}

}  // namespace

const QPainterPath& RankPath(Rank rank, RankStroke stroke) {
  static const std::array Alphabets = {AllRanks(RankStroke::Index), AllRanks(RankStroke::Letter),
                                       AllRanks(RankStroke::Inline)};
  return Alphabets[static_cast<std::size_t>(stroke)][static_cast<std::size_t>(rank) - 1];
}

QPainterPath RankPathAt(Rank rank, QPointF top, qreal height, RankStroke stroke) {
  QTransform place;
  place.translate(top.x(), top.y());
  place.scale(height, height);
  return place.map(RankPath(rank, stroke));
}

}  // namespace trainer::screens
