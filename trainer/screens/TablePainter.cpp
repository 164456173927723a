#include "trainer/screens/TablePainter.h"

#include <QCoreApplication>
#include <QPainterPath>
#include <QRadialGradient>
#include <algorithm>
#include <cmath>
#include <numbers>
#include <vector>

#include "trainer/screens/CardPainter.h"
#include "trainer/screens/FittedText.h"
#include "trainer/screens/TableProps.h"

namespace trainer::screens {
namespace {

using Verdict = TableModel::Verdict;

constexpr qreal TextToRow = 0.62;  // a line's font size over its row's height

struct Scene {
  QPainter& painter;
  const TableModel& model;
  const TableLayout& layout;
  const TableColors& colors;
  QFont font;
};

void PaintFelt(QPainter& painter, const QRectF& bounds, const TableColors& colors) {
  QRadialGradient light(bounds.center().x(), bounds.top() + bounds.height() * 0.42,
                        std::hypot(bounds.width(), bounds.height()) * 0.58);
  light.setColorAt(0, colors.feltMiddle);
  light.setColorAt(1, colors.feltEdge);
  painter.fillRect(bounds, light);
}

struct PrintedLetter {
  QPainterPath outline;  // on the baseline, centred
  qreal width;
};

// Letters are outlined at this size and then scaled: font sizes are whole pixels, but the print follows the table's
// size.
constexpr int PrintOutlineSize = 256;

std::vector<PrintedLetter> OutlinesOf(const QString& text, QFont font) {
  font.setPixelSize(PrintOutlineSize);
  font.setHintingPreference(QFont::PreferNoHinting);
  std::vector<PrintedLetter> letters;
  for (const QChar character : text) {
    QPainterPath outline;
    outline.addText(QPointF(), font, QString(character));
    // Placed by its outline: where the font lets a letter begin varies a little with what it has drawn before.
    const QRectF bounds = outline.boundingRect();
    outline.translate(-bounds.center().x(), 0);
    letters.push_back({outline, outline.isEmpty() ? PrintOutlineSize * 0.1 : bounds.width()});
  }
  return letters;
}

// Prints the letters along the lower part of a circle, as on a table with the dealer at the circle's centre.
void PaintPrint(const Scene& scene, const QRectF& bounds) {
  const TableLayout& layout = scene.layout;
  if (layout.printHeight < 1) return;
  const std::vector<PrintedLetter> letters = OutlinesOf(scene.model.feltText.toUpper(), scene.font);
  constexpr qreal Spacing = PrintOutlineSize * 0.44;
  qreal length = -Spacing;
  for (const PrintedLetter& letter : letters) length += letter.width + Spacing;
  const qreal scale = std::min(layout.printHeight / PrintOutlineSize, bounds.width() * 0.9 / length);
  const QPointF middle = layout.printCentre - QPointF(0, layout.printRadius);
  QPainter& painter = scene.painter;
  const auto turnFor = [&](qreal along) { return -along / layout.printRadius * 180 / std::numbers::pi; };

  qreal along = -length / 2;
  for (const PrintedLetter& letter : letters) {
    painter.save();
    painter.translate(middle);
    painter.rotate(turnFor((along + letter.width / 2) * scale));
    painter.translate(0, layout.printRadius);
    painter.scale(scale, scale);
    painter.fillPath(letter.outline, scene.colors.print);
    painter.restore();
    along += letter.width + Spacing;
  }

  QColor line = scene.colors.print;
  line.setAlphaF(0.55F);
  const qreal reach = -turnFor(bounds.width() * 0.31);
  for (const qreal off : {layout.printHeight * 0.62, -layout.printHeight * 1.42}) {
    const qreal radius = layout.printRadius + off;
    QPainterPath arc;
    const QRectF circle(middle - QPointF(radius, radius), QSizeF(2 * radius, 2 * radius));
    arc.arcMoveTo(circle, 270 - reach);
    arc.arcTo(circle, 270 - reach, 2 * reach);
    painter.strokePath(arc, QPen(line, 1.3 * layout.unit, Qt::SolidLine, Qt::RoundCap));
  }
}

void PaintShadow(QPainter& painter, const QRectF& card) {
  constexpr int Layers = 4;
  const qreal reach = card.width() * 0.035;
  painter.setPen(Qt::NoPen);
  painter.setBrush(QColor(0, 0, 0, 26));
  for (int layer = 0; layer < Layers; ++layer) {
    const qreal spread = reach * (layer - 1) / Layers;
    const QRectF shadow = card.translated(reach * 0.4, reach * 0.8).adjusted(-spread, -spread, spread, spread);
    painter.drawRoundedRect(shadow, card.width() * 0.07, card.width() * 0.07);
  }
}

void PaintCards(const Scene& scene, const std::vector<engine::Card>& cards, const std::vector<QRectF>& places,
                bool holeHidden) {
  for (std::size_t i = 0; i < places.size(); ++i) {
    PaintShadow(scene.painter, places[i]);
    if (holeHidden && i == 1) {
      PaintCardBack(scene.painter, places[i]);
    } else {
      PaintCard(scene.painter, places[i], cards[i]);
    }
  }
}

// A text on a background with round ends, as wide as the text needs.
class Plate {
 public:
  Plate(const QFont& font, const QString& text, QSizeF room)
      : height_(room.height()),
        text_(font, text, QSizeF(room.width() - 2 * Padding * height_, height_), height_ * TextToRow, Lines::AsNeeded),
        width_(std::max(text_.Size().width() + 2 * Padding * height_, height_)) {}

  [[nodiscard]] qreal Width() const { return width_; }

  void Paint(QPainter& painter, QPointF topLeft, const QPen& edge, const QColor& ground, const QColor& ink) const {
    const QRectF bounds(topLeft, QSizeF(width_, height_));
    const qreal inset = edge.style() == Qt::NoPen ? 0 : edge.widthF() / 2;
    const QRectF line = bounds.adjusted(inset, inset, -inset, -inset);
    painter.setPen(edge);
    painter.setBrush(ground);
    painter.drawRoundedRect(line, line.height() / 2, line.height() / 2);
    text_.Paint(painter, bounds, ink);
  }

 private:
  static constexpr qreal Padding = 0.42;  // of the height

  qreal height_;
  FittedText text_;
  qreal width_;
};

// Returns the left edge of the label's background.
qreal PaintLabel(const Scene& scene, const QRectF& room, const QString& text) {
  if (text.isEmpty()) return room.center().x();
  const Plate plate(scene.font, text, room.size());
  const qreal left = room.center().x() - plate.Width() / 2;
  plate.Paint(scene.painter, QPointF(left, room.top()), Qt::NoPen, scene.colors.plate, scene.colors.plateText);
  return left;
}

void PaintActiveFrame(const Scene& scene, const QRectF& frame) {
  const qreal unit = scene.layout.unit;
  const qreal radius = 9 * unit;
  QPainter& painter = scene.painter;
  painter.setBrush(Qt::NoBrush);
  constexpr int Layers = 5;
  for (int layer = Layers; layer >= 1; --layer) {
    QColor glow = scene.colors.active;
    glow.setAlphaF(0.09F);
    painter.setPen(QPen(glow, (2.0 + 2.2 * layer) * unit));
    painter.drawRoundedRect(frame, radius, radius);
  }
  painter.setPen(QPen(scene.colors.active, 2.4 * unit));
  painter.drawRoundedRect(frame, radius, radius);
}

// Points down at the cards of the active hand, for players who can't tell the frame's colour.
void PaintMarker(const Scene& scene, QPointF middle, qreal size) {
  QPainterPath marker;
  marker.moveTo(middle + QPointF(-0.5, -0.42) * size);
  marker.lineTo(middle + QPointF(0.5, -0.42) * size);
  marker.lineTo(middle + QPointF(0, 0.5) * size);
  marker.closeSubpath();
  scene.painter.strokePath(marker,
                           QPen(scene.colors.plate, 3 * scene.layout.unit, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
  scene.painter.fillPath(marker, scene.colors.active);
}

// Chips, bet and outcome side by side, in the middle of the row together.
void PaintWager(const Scene& scene, const TableModel::HandView& hand, const QRectF& row) {
  const TableColors& colors = scene.colors;
  const qreal unit = scene.layout.unit;
  const bool hasBet = !hand.bet.isEmpty();
  const bool hasOutcome = !hand.outcome.isEmpty();
  const qreal gap = 5 * unit;
  const qreal chipWidth = row.height() * 1.1;
  const qreal plateHeight = row.height() - 6 * unit;
  const qreal betPart = hasOutcome ? 0.45 : 1.0;
  const Plate bet(scene.font, hand.bet, QSizeF(row.width() * betPart - chipWidth - 2 * gap, plateHeight));
  const qreal betWidth = hasBet ? chipWidth + gap + bet.Width() : 0;
  const qreal between = hasBet && hasOutcome ? gap : 0;
  const Plate outcome(scene.font, hand.outcome, QSizeF(row.width() - betWidth - between, plateHeight));

  qreal left = row.center().x() - (betWidth + between + (hasOutcome ? outcome.Width() : 0)) / 2;
  const qreal top = row.center().y() - plateHeight / 2;
  if (hasBet) {
    PaintChips(scene.painter, QRectF(left, row.top(), chipWidth, row.height()));
    bet.Paint(scene.painter, QPointF(left + chipWidth + gap, top), Qt::NoPen, colors.plate, colors.plateText);
    left += betWidth + between;
  }
  if (hasOutcome) {
    const QPen edge(colors.messageEdge, 1.6 * unit);
    outcome.Paint(scene.painter, QPointF(left, top), edge, colors.message, colors.messageText);
  }
}

void PaintHand(const Scene& scene, const TableModel::HandView& hand, const TableLayout::Hand& place) {
  const TableColors& colors = scene.colors;
  const qreal unit = scene.layout.unit;
  QPainter& painter = scene.painter;
  if (hand.active) PaintActiveFrame(scene, place.frame);
  if (hand.cards.empty()) {
    const qreal inset = 6 * unit;
    painter.setPen(QPen(colors.print, 1.3 * unit, Qt::DashLine));
    painter.setBrush(Qt::NoBrush);
    painter.drawRoundedRect(place.frame.adjusted(inset, inset, -inset, -inset), 6 * unit, 6 * unit);
  }
  PaintCards(scene, hand.cards, place.cards, false);

  const qreal markerSize = place.label.height() * 0.62;
  const qreal markerRoom = markerSize * 1.4;
  const qreal labelLeft = PaintLabel(scene, place.label.adjusted(markerRoom, 0, -markerRoom, 0), hand.label);
  if (hand.active) PaintMarker(scene, QPointF(labelLeft - markerRoom * 0.6, place.label.center().y()), markerSize);
  PaintWager(scene, hand, place.wager);
}

void PaintMessage(const Scene& scene) {
  if (scene.model.message.isEmpty()) return;
  const TableColors& colors = scene.colors;
  const QRectF& room = scene.layout.message;
  const Verdict verdict = scene.model.verdict;
  const qreal padding = room.height() * 0.5;
  const qreal signSize = verdict == Verdict::None ? 0 : room.height() * 0.66;
  const qreal signRoom = verdict == Verdict::None ? 0 : signSize + room.height() * 0.26;
  const FittedText text(scene.font, scene.model.message,
                        QSizeF(room.width() - 2 * padding - signRoom, room.height() * 0.94), room.height() * 0.5,
                        Lines::AsNeeded);
  const qreal width = text.Size().width() + 2 * padding + signRoom;
  const QRectF plate(room.center().x() - width / 2, room.top(), width, room.height());
  QColor edge = colors.messageEdge;
  if (verdict == Verdict::Right) edge = colors.right;
  if (verdict == Verdict::Wrong) edge = colors.wrong;
  QPainter& painter = scene.painter;
  const qreal edgeWidth = 2.2 * scene.layout.unit;
  painter.setPen(QPen(edge, edgeWidth));
  painter.setBrush(colors.message);
  const qreal inset = edgeWidth / 2;
  painter.drawRoundedRect(plate.adjusted(inset, inset, -inset, -inset), room.height() * 0.3, room.height() * 0.3);
  const QRectF sign(plate.left() + padding * 0.75, plate.center().y() - signSize / 2, signSize, signSize);
  PaintVerdictSign(painter, sign, verdict, colors);
  text.Paint(painter, plate.adjusted(padding * 0.75 + signRoom, 0, -padding, 0), colors.messageText);
}

QPainterPath SidePanel(const QRectF& bounds, qreal unit) {
  QPainterPath path;
  path.addRoundedRect(bounds, 10 * unit, 10 * unit);
  return path;
}

void PaintShoePanel(const Scene& scene) {
  if (scene.model.shoeLeft < 0) return;
  const qreal unit = scene.layout.unit;
  const QRectF& panel = scene.layout.shoe;
  QPainter& painter = scene.painter;
  painter.fillPath(SidePanel(panel, unit), scene.colors.plate);
  const QRectF inside = panel.adjusted(9 * unit, 8 * unit, -9 * unit, -8 * unit);
  const qreal shoeWidth = inside.width() * 0.54;
  const qreal shoeHeight = inside.height() * 0.82;
  PaintShoe(painter, QRectF(inside.left(), inside.center().y() - shoeHeight / 2, shoeWidth, shoeHeight),
            scene.model.shoeLeft, scene.model.cutCardOut, scene.colors);
  const auto translate = [](const char* text) { return QCoreApplication::translate("Table", text); };
  const long percent = std::lround(std::clamp(scene.model.shoeLeft, 0.0, 1.0) * 100);
  QRectF texts = inside.adjusted(shoeWidth + 8 * unit, 0, 0, 0);
  const QRectF upper(texts.topLeft(), QSizeF(texts.width(), texts.height() * 0.5));
  FittedText(scene.font, translate("%1 %").arg(percent), upper.size(), 18 * unit)
      .Paint(painter, upper, scene.colors.plateText);
  const QRectF lower(upper.bottomLeft(), QSizeF(texts.width(), texts.height() * 0.5));
  const QString rest = scene.model.cutCardOut ? translate("cut card") : translate("left");
  FittedText(scene.font, rest, lower.size(), 14 * unit).Paint(painter, lower, scene.colors.plateText);
}

void PaintBanner(const Scene& scene) {
  if (scene.model.banner.isEmpty()) return;
  const qreal unit = scene.layout.unit;
  const QRectF& room = scene.layout.banner;
  const qreal padding = 10 * unit;
  const FittedText text(scene.font, scene.model.banner, QSizeF(room.width() - 2 * padding, room.height() - padding),
                        16 * unit, Lines::AsNeeded);
  const QRectF panel(room.topLeft(), text.Size() + QSizeF(2 * padding, padding));
  scene.painter.fillPath(SidePanel(panel, unit), scene.colors.plate);
  text.Paint(scene.painter, panel, scene.colors.plateText);
}

}  // namespace

void PaintTable(QPainter& painter, const QRectF& bounds, const TableModel& model, const TableColors& colors) {
  painter.save();
  painter.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing);
  const TableLayout layout = LayOut(model, bounds.size());
  QFont font = painter.font();
  font.setWeight(QFont::DemiBold);
  const Scene scene{painter, model, layout, colors, font};
  painter.translate(bounds.topLeft());
  const QRectF table(QPointF(), bounds.size());
  PaintFelt(painter, table, colors);
  PaintPrint(scene, table);
  PaintBanner(scene);
  PaintShoePanel(scene);
  PaintLabel(scene, layout.dealerLabel, model.dealerLabel);
  PaintCards(scene, model.dealer, layout.dealerCards, model.holeHidden);
  for (std::size_t i = 0; i < layout.hands.size(); ++i) PaintHand(scene, model.hands[i], layout.hands[i]);
  PaintMessage(scene);
  painter.restore();
}

}  // namespace trainer::screens
