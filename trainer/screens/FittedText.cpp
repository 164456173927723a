#include "trainer/screens/FittedText.h"

#include <QFontMetricsF>
#include <algorithm>
#include <cmath>

namespace trainer::screens {

FittedText::FittedText(const QFont& font, const QString& text, QSizeF room, qreal pixelSize, Lines lines)
    : text_(text), font_(font) {
  const int largest = std::max(1, static_cast<int>(std::lround(pixelSize)));
  const auto fits = [&](int pixels, int flags) {
    font_.setPixelSize(pixels);
    flags_ = flags;
    const QRectF bounds = QFontMetricsF(font_).boundingRect(QRectF(0, 0, room.width(), room.height()), flags, text_);
    size_ = QSizeF(std::ceil(bounds.width()), std::ceil(bounds.height()));
    return size_.width() <= room.width() && size_.height() <= room.height();
  };
  // A second line is better than letters of less than two thirds of the size.
  const int smallestOnOneLine = lines == Lines::One ? 1 : largest * 2 / 3;
  for (int pixels = largest; pixels >= std::max(1, smallestOnOneLine); --pixels) {
    if (fits(pixels, Qt::TextSingleLine)) return;
  }
  for (int pixels = largest; pixels >= 1 && lines == Lines::AsNeeded; --pixels) {
    if (fits(pixels, Qt::TextWordWrap)) return;
  }
}

void FittedText::Paint(QPainter& painter, const QRectF& bounds, const QColor& color, Qt::Alignment alignment) const {
  painter.save();
  painter.setFont(font_);
  painter.setPen(color);
  painter.drawText(bounds, flags_ | static_cast<int>(alignment), text_);
  painter.restore();
}

}  // namespace trainer::screens
