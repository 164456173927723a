#include "trainer/screens/TableProps.h"

#include <QPainterPath>
#include <QPolygonF>
#include <algorithm>
#include <cmath>
#include <numbers>

namespace trainer::screens {
namespace {

constexpr QColor ChipRed(0xB8, 0x2A, 0x33);
constexpr QColor ChipEdge(0x6E, 0x12, 0x1A);
constexpr QColor ChipCream(0xF6, 0xEB, 0xD2);
constexpr QColor ShoeBody(0x20, 0x24, 0x2B);
constexpr QColor ShoeEdge(0x8B, 0x93, 0x9E);
constexpr QColor CardEdge(0xF7, 0xF4, 0xEA);
constexpr QColor CardLine(0xA8, 0xA3, 0x96);
constexpr QColor CutCard(0xFF, 0xC9, 0x2E);

void PaintChip(QPainter& painter, const QRectF& top, qreal thickness) {
  QPainterPath side;
  side.addEllipse(top.translated(0, thickness));
  side.addRect(QRectF(top.left(), top.center().y(), top.width(), thickness));
  side.setFillRule(Qt::WindingFill);
  painter.fillPath(side, ChipEdge);

  // The cream spots run over the rim and down the side.
  painter.save();
  painter.setClipPath(side, Qt::IntersectClip);
  for (const qreal place : {-0.62, 0.0, 0.62}) {
    const qreal x = top.center().x() + place * top.width() / 2;
    painter.fillRect(QRectF(x - top.width() * 0.07, top.center().y(), top.width() * 0.14, top.height()), ChipCream);
  }
  painter.restore();

  QPainterPath face;
  face.addEllipse(top);
  painter.fillPath(face, ChipRed);
  QPainterPath spots;
  for (int spot = 0; spot < 6; ++spot) {
    const qreal from = 60.0 * spot + 75;
    QPainterPath wedge;
    wedge.moveTo(top.center());
    wedge.arcTo(top, from, 30);
    wedge.closeSubpath();
    spots.addPath(wedge);
  }
  painter.fillPath(spots, ChipCream);
  const QPointF inner(top.width() * 0.33, top.height() * 0.33);
  painter.setPen(QPen(ChipCream, top.width() * 0.03));
  painter.setBrush(ChipRed);
  painter.drawEllipse(top.center(), inner.x(), inner.y());
  painter.setPen(QPen(ChipEdge, top.width() * 0.02));
  painter.setBrush(Qt::NoBrush);
  painter.drawEllipse(top);
}

}  // namespace

void PaintChips(QPainter& painter, const QRectF& box) {
  constexpr int Count = 3;
  const qreal faceHeight = std::min(box.width() * 0.46, box.height() * 0.5);
  const qreal thickness = (box.height() - faceHeight) / Count;
  painter.save();
  for (int chip = 0; chip < Count; ++chip) {
    const qreal y = box.bottom() - faceHeight - thickness * (chip + 1);
    PaintChip(painter, QRectF(box.left(), y, box.width(), faceHeight), thickness);
  }
  painter.restore();
}

void PaintShoe(QPainter& painter, const QRectF& box, double left, bool cutCardOut, const TableColors& colors) {
  const double part = std::clamp(left, 0.0, 1.0);
  const qreal slope = box.width() * 0.20;
  const qreal nose = box.left() + box.width() * 0.10;
  const QPolygonF body(
      {QPointF(nose, box.bottom()), QPointF(nose + slope, box.top()), box.topRight(), box.bottomRight()});
  painter.save();
  painter.setPen(QPen(ShoeEdge, box.height() * 0.05, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
  painter.setBrush(ShoeBody);
  painter.drawPolygon(body);

  // The cards lean against the front, as they do in the shoe.
  const qreal inset = box.height() * 0.14;
  const qreal lean = slope * (1 - 2 * inset / box.height());
  const qreal bottom = box.bottom() - inset;
  const qreal top = box.top() + inset;
  const qreal front = nose + inset * 1.9;
  const qreal full = box.right() - inset - lean - front;
  const qreal stack = full * part;
  if (stack > 0) {
    const QPolygonF cards({QPointF(front, bottom), QPointF(front + lean, top), QPointF(front + lean + stack, top),
                           QPointF(front + stack, bottom)});
    painter.setPen(Qt::NoPen);
    painter.setBrush(CardEdge);
    painter.drawPolygon(cards);
    painter.setPen(QPen(CardLine, box.width() * 0.008));
    constexpr int Packs = 16;
    for (int pack = 1; pack <= static_cast<int>(Packs * part); ++pack) {
      const qreal x = front + full * pack / Packs;
      painter.drawLine(QPointF(x, bottom), QPointF(x + lean, top));
    }
  }
  if (cutCardOut) {
    painter.setPen(QPen(colors.plate, box.height() * 0.26, Qt::SolidLine, Qt::FlatCap));
    const QPointF foot(nose - box.width() * 0.07, box.bottom());
    const QPointF head = foot + QPointF(slope, -box.height()) * 0.92;
    painter.drawLine(foot, head);
    painter.setPen(QPen(CutCard, box.height() * 0.14, Qt::SolidLine, Qt::FlatCap));
    painter.drawLine(foot, head);
  }
  painter.restore();
}

void PaintVerdictSign(QPainter& painter, const QRectF& box, TableModel::Verdict verdict, const TableColors& colors) {
  if (verdict == TableModel::Verdict::None) return;
  const QPointF middle = box.center();
  const qreal radius = std::min(box.width(), box.height()) / 2;
  const auto at = [&](qreal x, qreal y) { return middle + QPointF(x, y) * radius; };
  QPainterPath ground;
  QPainterPath stroke;
  if (verdict == TableModel::Verdict::Right) {
    ground.addEllipse(middle, radius, radius);
    stroke.moveTo(at(-0.46, 0.04));
    stroke.lineTo(at(-0.12, 0.40));
    stroke.lineTo(at(0.48, -0.36));
  } else {
    QPolygonF octagon;
    for (int corner = 0; corner < 8; ++corner) {
      const double angle = (corner + 0.5) * std::numbers::pi / 4;
      octagon << at(std::cos(angle) * 1.04, std::sin(angle) * 1.04);
    }
    ground.addPolygon(octagon);
    ground.closeSubpath();
    stroke.moveTo(at(-0.38, -0.38));
    stroke.lineTo(at(0.38, 0.38));
    stroke.moveTo(at(-0.38, 0.38));
    stroke.lineTo(at(0.38, -0.38));
  }
  painter.fillPath(ground, verdict == TableModel::Verdict::Right ? colors.right : colors.wrong);
  painter.strokePath(stroke, QPen(colors.sign, radius * 0.24, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
}

}  // namespace trainer::screens
