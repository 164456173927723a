#include "tactix-qt/Convert.h"

#include <QFontInfo>

namespace tactix::qt {

namespace {

/// The fonts that saved forms name are seldom installed; these have the same feel.
void SubstituteFonts() {
  static const bool done = [] {
    QFont::insertSubstitutions(QStringLiteral("Comic Sans MS"), {QStringLiteral("Comic Neue")});
    QFont::insertSubstitutions(QStringLiteral("MS Sans Serif"), {QStringLiteral("Liberation Sans")});
    return true;
  }();
  static_cast<void>(done);
}

}  // namespace

QFont ToQt(const Font& font) {
  QFont result;
  if (font == Font{}) return result;
  SubstituteFonts();
  if (!font.Name.empty()) result.setFamily(ToQt(font.Name));
  if (font.Size > 0) result.setPointSizeF(static_cast<qreal>(font.Size));
  result.setBold(font.Bold);
  result.setItalic(font.Italic);
  return result;
}

Font FromQt(const QFont& font) {
  const qreal size = font.pointSizeF() > 0 ? font.pointSizeF() : QFontInfo(font).pointSizeF();
  return {FromQt(font.family()), static_cast<float>(size), font.bold(), font.italic()};
}

}  // namespace tactix::qt
