// The rows of the widget classes' enumerations against those that the header of the controls' enumerations declares.

#include <gtest/gtest.h>

#include <QFile>
#include <QMetaEnum>
#include <QRegularExpression>
#include <map>
#include <memory>
#include <set>
#include <string>

#include "tests/support-qt/ControlClasses.h"

namespace tactix::tests {
namespace {

using Rows = std::map<std::string, int>;

/// The enumerations by their names.
std::map<std::string, Rows> DeclaredRows() {
  QFile header(QStringLiteral(TACTIX_SOURCE_DIR "/tactix/shared/Enumerations.h"));
  if (!header.open(QIODevice::ReadOnly)) return {};
  const QString text = QString::fromUtf8(header.readAll());
  static const QRegularExpression enumeration(QStringLiteral("enum class (\\w+) : std::int32_t \\{([^}]*)\\}"));
  static const QRegularExpression row(QStringLiteral("(\\w+) = (-?\\d+),"));
  std::map<std::string, Rows> declared;
  for (auto found = enumeration.globalMatch(text); found.hasNext();) {
    const QRegularExpressionMatch each = found.next();
    Rows& rows = declared[each.captured(1).toStdString()];
    for (auto inside = row.globalMatch(each.captured(2)); inside.hasNext();) {
      const QRegularExpressionMatch line = inside.next();
      rows[line.captured(1).toStdString()] = line.captured(2).toInt();
    }
  }
  return declared;
}

TEST(QtControlEnumerationsTest, HaveTheControlsRowsAndNoOthers) {
  const std::map<std::string, Rows> declared = DeclaredRows();
  std::set<std::string> seen;
  for (const ControlClass& each : ControlClasses()) {
    const QMetaObject& meta = *each.Make()->metaObject();
    for (int i = QWidget::staticMetaObject.enumeratorCount(); i < meta.enumeratorCount(); ++i) {
      const QMetaEnum enumerator = meta.enumerator(i);
      SCOPED_TRACE(each.name + "::" + enumerator.enumName());
      ASSERT_TRUE(declared.contains(enumerator.enumName()));
      seen.insert(enumerator.enumName());
      Rows expected = declared.at(enumerator.enumName());
      // A visibility is no pressed button.
      for (const char* name : {"ButtonIsPressed", "ButtonIsUnPressed"}) expected.erase(name);
      Rows rows;
      for (int key = 0; key < enumerator.keyCount(); ++key) rows[enumerator.key(key)] = enumerator.value(key);
      EXPECT_EQ(rows, expected);
    }
  }
  EXPECT_EQ(seen.size(), 18U);
}

TEST(QtControlEnumerationsTest, EveryEnumerationOfAPropertyShowsItsRowsByName) {
  for (const ControlClass& each : ControlClasses()) {
    for (const QMetaProperty& property : PropertiesOf(*each.Make()->metaObject())) {
      if (!property.isEnumType()) continue;
      EXPECT_GT(property.enumerator().keyCount(), 0) << each.name << "::" << property.name();
    }
  }
}

}  // namespace
}  // namespace tactix::tests
