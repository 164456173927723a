#pragma once

#include <QIcon>
#include <QPalette>
#include <string>

#include "tactix-qt/Export.h"

namespace tactix::qt {

/// A picture of the library as an icon: sharp at every size and scale, its lines in the palette's colour of button
/// texts, all of it grey where it is disabled. Keeps to the palette it was made with. Empty for a name that there is
/// none of.
TACTIX_QT_EXPORT QIcon PictureIcon(const std::string& name, const QPalette& palette);

}  // namespace tactix::qt
