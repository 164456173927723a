#pragma once

#include <QPainter>
#include <QRectF>

#include "trainer/screens/TableColors.h"
#include "trainer/screens/TableLayout.h"
#include "trainer/screens/TableModel.h"

namespace trainer::screens {

/// Paints the table with the painter's font. The same arguments give the same picture.
void PaintTable(QPainter& painter, const QRectF& bounds, const TableModel& model, const TableColors& colors);

}  // namespace trainer::screens
