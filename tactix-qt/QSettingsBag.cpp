#include "tactix-qt/QSettingsBag.h"

#include <QStringList>
#include <limits>

#include "tactix-qt/Convert.h"
#include "tactix/platform/Error.h"

namespace tactix::qt {

namespace {

struct TypeMark {
  VariantType type;
  QLatin1String mark;
};

constexpr TypeMark Marks[] = {
    {VariantType::Empty, QLatin1String("Empty:")},     {VariantType::Null, QLatin1String("Null:")},
    {VariantType::Boolean, QLatin1String("Boolean:")}, {VariantType::Integer, QLatin1String("Integer:")},
    {VariantType::Long, QLatin1String("Long:")},       {VariantType::Single, QLatin1String("Single:")},
    {VariantType::Double, QLatin1String("Double:")},   {VariantType::Text, QLatin1String("Text:")},
    {VariantType::Font, QLatin1String("Font:")},
};

constexpr QLatin1String True("true");
constexpr QLatin1String False("false");
constexpr int FontParts = 4;

QString FlagText(bool flag) { return flag ? True : False; }

QString NumberText(double value) { return QString::number(value, 'g', std::numeric_limits<double>::max_digits10); }
// As a double, because Qt reads the largest singles back as too large.
QString NumberText(float value) { return NumberText(static_cast<double>(value)); }

QString FontText(const Font& font) {
  // The name last: it may hold the separator.
  return QStringList{NumberText(font.Size), FlagText(font.Bold), FlagText(font.Italic), ToQt(font.Name)}.join(
      QLatin1Char(';'));
}

QString PlainText(const Variant& value) {
  switch (value.Type()) {
    case VariantType::Boolean:
      return FlagText(value.ToBoolean());
    case VariantType::Integer:
    case VariantType::Long:
      return QString::number(value.ToLong());
    case VariantType::Single:
      return NumberText(value.ToSingle());
    case VariantType::Double:
      return NumberText(value.ToDouble());
    case VariantType::Text:
      return ToQt(value.ToText());
    case VariantType::Font:
      return FontText(value.ToFont());
    case VariantType::Empty:
    case VariantType::Null:
    case VariantType::Object:
      break;
  }
  return {};
}

bool Flag(const QString& text) {
  if (text != True && text != False) throw Error(Error::TypeMismatch);
  return text == True;
}

double Double(const QString& text) {
  bool ok = false;
  const double number = text.toDouble(&ok);
  if (!ok) throw Error(Error::TypeMismatch);
  return number;
}

float Single(const QString& text) { return Variant(Double(text)).ToSingle(); }

Font FontOf(const QString& text) {
  const QStringList parts = text.split(QLatin1Char(';'));
  if (parts.size() < FontParts) throw Error(Error::TypeMismatch);
  return {FromQt(parts.sliced(FontParts - 1).join(QLatin1Char(';'))), Single(parts[0]), Flag(parts[1]), Flag(parts[2])};
}

Variant ValueOf(VariantType type, const QString& text) {
  bool ok = true;
  Variant value;
  switch (type) {
    case VariantType::Null:
      return Variant::Null();
    case VariantType::Boolean:
      return Flag(text);
    case VariantType::Integer:
      value = std::int16_t{text.toShort(&ok)};
      break;
    case VariantType::Long:
      value = std::int32_t{text.toInt(&ok)};
      break;
    case VariantType::Single:
      return Single(text);
    case VariantType::Double:
      return Double(text);
    case VariantType::Text:
      return FromQt(text);
    case VariantType::Font:
      return FontOf(text);
    case VariantType::Empty:
    case VariantType::Object:
      break;
  }
  if (!ok) throw Error(Error::TypeMismatch);
  return value;
}

}  // namespace

QSettingsBag::QSettingsBag(QSettings& settings, const QString& group) : settings_(settings), group_(group) {}

QString QSettingsBag::Path(const QString& key) const {
  return group_.isEmpty() ? key : group_ + QLatin1Char('/') + key;
}

QString QSettingsBag::KeyOf(std::string_view name) {
  if (!group_.isEmpty()) settings_.beginGroup(group_);
  const QStringList keys = settings_.childKeys();
  if (!group_.isEmpty()) settings_.endGroup();
  for (const QString& key : keys) {
    if (SameName(FromQt(key), name)) return Path(key);
  }
  return {};
}

Variant QSettingsBag::Read(std::string_view name, const Variant& defaultValue) {
  const QString key = KeyOf(name);
  if (key.isEmpty()) return defaultValue;
  const QString stored = settings_.value(key).toString();
  for (const TypeMark& row : Marks) {
    if (stored.startsWith(row.mark)) return ValueOf(row.type, stored.sliced(row.mark.size()));
  }
  return FromQt(stored);
}

void QSettingsBag::Write(std::string_view name, const Variant& value) {
  for (const TypeMark& row : Marks) {
    if (row.type != value.Type()) continue;
    if (const QString older = KeyOf(name); !older.isEmpty()) settings_.remove(older);
    settings_.setValue(Path(ToQt(name)), row.mark + PlainText(value));
    return;
  }
  throw Error(Error::TypeMismatch);
}

void QSettingsBag::Write(std::string_view name, const Variant& value, const Variant& defaultValue) {
  if (!(value == defaultValue)) return Write(name, value);
  if (const QString older = KeyOf(name); !older.isEmpty()) settings_.remove(older);
}

}  // namespace tactix::qt
