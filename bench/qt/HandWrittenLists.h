#pragma once

#include <QComboBox>
#include <QStringList>

#include "tactix/strategy/StrategyCatalogue.h"

namespace tactix::bench {

// What one would write without the library: a QComboBox, filled from the same descriptions.

void FillWithStrategies(QComboBox& box, StrategyCatalogue& catalogue);
/// With an empty seat in the first row.
void FillCompactly(QComboBox& box, StrategyCatalogue& catalogue);
void FillWithBets(QComboBox& box, StrategyCatalogue& catalogue);
void FillWithCounts(QComboBox& box, StrategyCatalogue& catalogue);

/// With nothing to take apart.
void FillWithTexts(QComboBox& box, const QStringList& texts);
void FillWithTextsAtOnce(QComboBox& box, const QStringList& texts);

}  // namespace tactix::bench
