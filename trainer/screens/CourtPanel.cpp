#include "trainer/screens/CourtPanel.h"

#include <QPainterPath>
#include <array>
#include <cmath>
#include <numbers>

#include "trainer/screens/RankShapes.h"
#include "trainer/screens/SuitShapes.h"

namespace trainer::screens {
namespace {

using engine::Card;
using engine::Rank;

struct PanelColors {
  QColor ground;
  QColor ray;
  QColor gold;
};

constexpr PanelColors RedPanel{QColor(0xFB, 0xE9, 0xE0), QColor(0xF4, 0xD3, 0xC6), QColor(0xD9, 0x9A, 0x26)};
constexpr PanelColors BlackPanel{QColor(0xE6, 0xEB, 0xF3), QColor(0xCF, 0xD8, 0xE6), QColor(0xC8, 0x96, 0x2C)};
constexpr QColor MedallionGround(0xFE, 0xFD, 0xFA);

// The rays of a fan from the middle to beyond the corners.
QPainterPath Rays(QPointF middle, qreal reach) {
  constexpr int Count = 20;
  const auto rim = [&](qreal turn) {
    const qreal angle = turn * 2 * std::numbers::pi / Count;
    return middle + QPointF(std::sin(angle), -std::cos(angle)) * reach;
  };
  QPainterPath rays;
  for (int ray = 0; ray < Count; ++ray) {
    rays.moveTo(middle);
    rays.lineTo(rim(ray - 0.25));
    rays.lineTo(rim(ray + 0.25));
    rays.closeSubpath();
  }
  return rays;
}

// A crown with its base's middle at the origin; the more points, the higher the rank.
QPainterPath Crown(Rank rank) {
  QPainterPath crown;
  if (rank == Rank::Jack) {
    // A coronet of three arches.
    crown.moveTo(-12, 0);
    crown.lineTo(-13.5, -6);
    crown.cubicTo(-13, -12.5, -6, -12.5, -4.5, -6.5);
    crown.cubicTo(-4, -14, 4, -14, 4.5, -6.5);
    crown.cubicTo(6, -12.5, 13, -12.5, 13.5, -6);
    crown.lineTo(12, 0);
    crown.closeSubpath();
    return crown;
  }
  if (rank == Rank::Queen) {
    crown.moveTo(-12, 0);
    crown.lineTo(-14, -9.5);
    crown.quadTo(-9, -5, -6.5, -4.5);
    crown.quadTo(-3, -8, 0, -14.5);
    crown.quadTo(3, -8, 6.5, -4.5);
    crown.quadTo(9, -5, 14, -9.5);
    crown.lineTo(12, 0);
    crown.closeSubpath();
    for (const QPointF pearl : {QPointF(-14, -10.5), QPointF(0, -15), QPointF(14, -10.5)}) {
      QPainterPath bead;
      bead.addEllipse(pearl, 2.1, 2.1);
      crown = crown.united(bead);
    }
    return crown;
  }
  constexpr std::array<QPointF, 9> Points = {QPointF(-14.5, -11), QPointF(-9.5, -6), QPointF(-7.5, -13.5),
                                             QPointF(-4, -6.5),   QPointF(0, -15.5), QPointF(4, -6.5),
                                             QPointF(7.5, -13.5), QPointF(9.5, -6),  QPointF(14.5, -11)};
  crown.moveTo(-12, 0);
  for (const QPointF& point : Points) crown.lineTo(point);
  crown.lineTo(12, 0);
  crown.closeSubpath();
  return crown;
}

void PaintUpperHalf(QPainter& painter, const QRectF& panel, Card card, const PanelColors& colors, const QColor& ink) {
  painter.save();
  painter.translate(panel.center().x(), panel.top() + 26);
  const QPainterPath crown = Crown(card.rank);
  painter.fillPath(crown, colors.gold);
  painter.strokePath(crown, QPen(ink, 1.0, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
  painter.fillRect(QRectF(-12.5, -0.5, 25, 3.4), ink);
  painter.restore();
  for (const qreal side : {-1.0, 1.0}) {
    const QPointF corner(panel.center().x() + side * (panel.width() / 2 - 8.5), panel.top() + 36);
    painter.fillPath(SuitPathAt(card.suit, corner, 10), ink);
  }
}

}  // namespace

void PaintCourtPanel(QPainter& painter, const QRectF& panel, Card card, const QColor& ink) {
  const PanelColors& colors = IsRed(card.suit) ? RedPanel : BlackPanel;
  const QPointF middle = panel.center();
  painter.save();

  QPainterPath frame;
  frame.addRoundedRect(panel, 3, 3);
  painter.fillPath(frame, colors.ground);
  painter.save();
  painter.setClipPath(frame, Qt::IntersectClip);
  painter.fillPath(Rays(middle, panel.height()), colors.ray);
  painter.restore();
  painter.strokePath(frame, QPen(ink, 1.3));
  QPainterPath inner;
  inner.addRoundedRect(panel.adjusted(2.6, 2.6, -2.6, -2.6), 1.6, 1.6);
  painter.strokePath(inner, QPen(colors.gold, 0.9));

  for (int half = 0; half < 2; ++half) {
    PaintUpperHalf(painter, panel, card, colors, ink);
    painter.translate(middle);
    painter.rotate(180);
    painter.translate(-middle);
  }

  constexpr qreal Radius = 22;
  painter.setBrush(MedallionGround);
  painter.setPen(QPen(ink, 1.5));
  painter.drawEllipse(middle, Radius, Radius);
  painter.setBrush(Qt::NoBrush);
  painter.setPen(QPen(colors.gold, 1.0));
  painter.drawEllipse(middle, Radius - 2.4, Radius - 2.4);

  // A heavy letter with a light line along its strokes.
  constexpr qreal LetterHeight = 29;
  const QPointF top(middle.x(), middle.y() - LetterHeight / 2);
  painter.fillPath(RankPathAt(card.rank, top, LetterHeight, RankStroke::Letter), ink);
  painter.fillPath(RankPathAt(card.rank, top, LetterHeight, RankStroke::Inline), MedallionGround);
  painter.restore();
}

}  // namespace trainer::screens
