#pragma once

#include <QSettings>
#include <QString>

#include "tactix-qt/Export.h"
#include "tactix/platform/PropertyBag.h"

namespace tactix::qt {

/// A property bag in a group of a QSettings store. Every value comes back with the type it was written with, also from
/// an INI file, where all is text: "Single:0.5". A value without such a mark, put there by hand, is read as text.
///
/// Names compare without case. A value that equals its default is not stored, and takes an older one away. Objects
/// can't be stored: they fail with 13, and so does a marked value that is none of its type.
class TACTIX_QT_EXPORT QSettingsBag final : public PropertyBag {
 public:
  /// The settings must outlive the bag. An empty group is the settings' current one.
  explicit QSettingsBag(QSettings& settings, const QString& group = {});

  Variant Read(std::string_view name, const Variant& defaultValue = {}) override;
  void Write(std::string_view name, const Variant& value) override;
  void Write(std::string_view name, const Variant& value, const Variant& defaultValue) override;

 private:
  /// The key under which a value of the name is stored, or empty.
  QString KeyOf(std::string_view name);
  QString Path(const QString& key) const;

  QSettings& settings_;
  QString group_;
};

}  // namespace tactix::qt
