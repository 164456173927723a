#include "tactix-qt/FittedText.h"

#include <QFontInfo>
#include <QFontMetrics>
#include <cmath>

namespace tactix::qt {

namespace {

constexpr qreal SmallestSize = 2;
constexpr qreal Step = 0.5;

// Of a text that is surely narrow enough: kerning may move letters apart.
constexpr qreal SpareWidth = 1.05;

}  // namespace

QRect FittedText::Measure(const QString& text, const QFont& font, const QRect& room, int flags,
                          const QPaintDevice* device) {
  const QFontMetrics metrics = device ? QFontMetrics(font, device) : QFontMetrics(font);
  return metrics.boundingRect(room, flags, text);
}

bool FittedText::FitsWithEase(const QPaintDevice* device) {
  const QFontMetricsF metrics = device ? QFontMetricsF(asked_, device) : QFontMetricsF(asked_);
  if (std::ceil(metrics.lineSpacing()) > room_.height()) return false;
  qreal width = 0;
  for (const QChar c : text_) {
    if (c < QLatin1Char(' ') || c.unicode() >= widths_.size()) return false;
    float& letter = widths_[c.unicode()];
    if (letter < 0) letter = static_cast<float>(metrics.horizontalAdvance(c));
    width += static_cast<qreal>(letter);
  }
  return width * SpareWidth <= room_.width();
}

const QFont& FittedText::Fit(const QString& text, const QFont& font, const QSize& room, int flags,
                             const QPaintDevice* device) {
  if (text == text_ && room == room_ && flags == flags_ && font == asked_) return fitted_;
  if (font != asked_ || flags_ < 0) widths_.fill(-1);
  text_ = text;
  room_ = room;
  flags_ = flags;
  asked_ = fitted_ = font;
  const auto fits = [&] {
    const QRect taken = Measure(text, fitted_, QRect(QPoint(), room), flags, device);
    return taken.width() <= room.width() && taken.height() <= room.height();
  };
  if (text.isEmpty() || room.isEmpty()) return fitted_;
  if (FitsWithEase(device) || fits()) return fitted_;
  const qreal size = font.pointSizeF() > 0 ? font.pointSizeF() : QFontInfo(font).pointSizeF();
  // Halving instead of stepping down: a long caption in a small button is many sizes away. It finds the largest size
  // that fits, which need not be the first that does, since wrapping jumps.
  int fitting = 0;
  int tooLarge = static_cast<int>((size - SmallestSize) / Step) + 1;
  while (tooLarge - fitting > 1) {
    const int middle = (fitting + tooLarge) / 2;
    fitted_.setPointSizeF(SmallestSize + middle * Step);
    (fits() ? fitting : tooLarge) = middle;
  }
  fitted_.setPointSizeF(SmallestSize + fitting * Step);
  return fitted_;
}

}  // namespace tactix::qt
