#include "tactix-qt/FittedText.h"

#include <QFontInfo>
#include <QFontMetrics>

namespace tactix::qt {

namespace {

constexpr qreal SmallestSize = 2;
constexpr qreal Step = 0.5;

}  // namespace

QRect FittedText::Measure(const QString& text, const QFont& font, const QRect& room, int flags,
                          const QPaintDevice* device) {
  const QFontMetrics metrics = device ? QFontMetrics(font, device) : QFontMetrics(font);
  return metrics.boundingRect(room, flags, text);
}

const QFont& FittedText::Fit(const QString& text, const QFont& font, const QSize& room, int flags,
                             const QPaintDevice* device) {
  if (text == text_ && room == room_ && flags == flags_ && font == asked_) return fitted_;
  text_ = text;
  room_ = room;
  flags_ = flags;
  asked_ = fitted_ = font;
  const auto fits = [&] {
    const QRect taken = Measure(text, fitted_, QRect(QPoint(), room), flags, device);
    return taken.width() <= room.width() && taken.height() <= room.height();
  };
  if (text.isEmpty() || room.isEmpty() || fits()) return fitted_;
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
