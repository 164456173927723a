#pragma once

#include <QFont>
#include <QPainter>
#include <QRectF>
#include <QString>

namespace trainer::screens {

enum class Lines { One, AsNeeded };

/// A text in the largest font, up to `pixelSize`, in which all of it fits into a room. Nothing is cut off
/// as long as the room has a pixel for every letter.
class FittedText {
 public:
  FittedText(const QFont& font, const QString& text, QSizeF room, qreal pixelSize, Lines lines = Lines::One);

  [[nodiscard]] QSizeF Size() const { return size_; }
  void Paint(QPainter& painter, const QRectF& bounds, const QColor& color,
             Qt::Alignment alignment = Qt::AlignCenter) const;

 private:
  QString text_;
  QFont font_;
  int flags_ = 0;
  QSizeF size_;
};

}  // namespace trainer::screens
