#include "examples/gallery/ValueText.h"

#include <QColor>
#include <QFont>

namespace tactix::gallery {

QString TextOf(const QVariant& value) {
  switch (value.typeId()) {
    case QMetaType::QFont: {
      const auto font = value.value<QFont>();
      return QStringLiteral("%1, %2 pt%3%4")
          .arg(font.family())
          .arg(font.pointSizeF())
          .arg(font.bold() ? QStringLiteral(", bold") : QString())
          .arg(font.italic() ? QStringLiteral(", italic") : QString());
    }
    case QMetaType::QColor: {
      const auto color = value.value<QColor>();
      return color.isValid() ? color.name() : QStringLiteral("the system's");
    }
    case QMetaType::QString:
      return QLatin1Char('"') + value.toString() + QLatin1Char('"');
    default:
      break;
  }
  if (value.canConvert<QString>()) return value.toString();
  return QString::fromLatin1(value.typeName());
}

}  // namespace tactix::gallery
