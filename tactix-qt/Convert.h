#pragma once

#include <QColor>
#include <QFont>
#include <QString>
#include <QWidget>
#include <algorithm>
#include <cmath>
#include <string>
#include <string_view>

#include "tactix-qt/Export.h"
#include "tactix/platform/Color.h"
#include "tactix/platform/Font.h"

namespace tactix::qt {

inline QString ToQt(std::string_view text) {
  return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}
inline std::string FromQt(const QString& text) { return text.toStdString(); }

/// For colours that are no system colours.
inline QColor ToQt(Color color) { return {Red(color), Green(color), Blue(color)}; }
inline Color FromQt(const QColor& color) { return color.red() | color.green() << 8 | color.blue() << 16; }

/// The same for properties: a system colour is a colour that is not valid.
inline QColor OwnColor(Color color) { return IsSystemColor(color) ? QColor() : ToQt(color); }
inline Color ColorOr(const QColor& color, Color system) { return color.isValid() ? FromQt(color) : system; }

/// Leaves what the font does not say to the widget it is set on.
TACTIX_QT_EXPORT QFont ToQt(const Font& font);
TACTIX_QT_EXPORT Font FromQt(const QFont& font);

inline constexpr float TwipsPerPixel = 15.0F;
/// Lengths past Qt's own limit, some sixteen million pixels, end there.
inline int ToPixels(float twips) {
  constexpr float Limit = QWIDGETSIZE_MAX;
  return static_cast<int>(std::lround(std::clamp(twips / TwipsPerPixel, -Limit, Limit)));
}
inline float ToTwips(double pixels) { return static_cast<float>(pixels) * TwipsPerPixel; }

}  // namespace tactix::qt
