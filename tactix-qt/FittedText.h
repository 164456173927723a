#pragma once

#include <QFont>
#include <QRect>
#include <QString>
#include <array>

#include "tactix-qt/Export.h"

class QPainter;
class QPaintDevice;

namespace tactix::qt {

/// Text that is never cut off: it wraps at words, and where that does not do, its font shrinks until it fits. Keeps the
/// last result, since widgets repaint far more often than their text or size changes.
class TACTIX_QT_EXPORT FittedText {
 public:
  /// The largest font up to `font` with which the text fits. `flags` are Qt's alignment and text flags.
  const QFont& Fit(const QString& text, const QFont& font, const QSize& room, int flags, const QPaintDevice* device);

  /// The place that the text takes inside `room` with a font.
  static QRect Measure(const QString& text, const QFont& font, const QRect& room, int flags,
                       const QPaintDevice* device);

 private:
  /// Whether the text surely fits on one line. Laying it out costs many times as much, and a prompt is another one with
  /// every hand.
  bool FitsWithEase(const QPaintDevice* device);

  QString text_;
  QFont asked_;
  QSize room_;
  int flags_ = -1;
  QFont fitted_;
  std::array<float, 127> widths_;  // of the ASCII letters in the font asked for; negative: not known yet
};

}  // namespace tactix::qt
