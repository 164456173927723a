#pragma once

#include <QColor>
#include <QPalette>

namespace trainer::screens {

/// The table's colours: a fresh green on a light desktop, a deep one on a dark desktop. Every text has a contrast of
/// at least 4.5 to 1 with its ground; the felt's print, which is decoration, at least 3 to 1.
struct TableColors {
  QColor feltMiddle;
  QColor feltEdge;
  QColor print;
  QColor plate;  ///< behind labels
  QColor plateText;
  QColor message;  ///< behind the big line
  QColor messageText;
  QColor messageEdge;
  QColor right;
  QColor wrong;
  QColor sign;    ///< check and cross, on `right` and `wrong`
  QColor active;  ///< the frame and the marker of the hand being played
};

[[nodiscard]] TableColors TableColorsFor(const QPalette& palette);

}  // namespace trainer::screens
