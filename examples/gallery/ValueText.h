#pragma once

#include <QString>
#include <QVariant>

namespace tactix::gallery {

/// A value of a property or of a signal's argument, for people. What has no text is named by its type.
QString TextOf(const QVariant& value);

}  // namespace tactix::gallery
