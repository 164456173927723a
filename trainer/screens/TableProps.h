#pragma once

#include <QPainter>
#include <QRectF>

#include "trainer/screens/TableColors.h"
#include "trainer/screens/TableModel.h"

namespace trainer::screens {

/// A stack of chips that fills the box's width and stands on its lower edge.
void PaintChips(QPainter& painter, const QRectF& box);

/// The shoe from its side, filled with what is left to deal; the cut card in front of it once it is out.
void PaintShoe(QPainter& painter, const QRectF& box, double left, bool cutCardOut, const TableColors& colors);

/// A disc with a check or an octagon with a cross: the shape tells them apart as much as the colour does.
void PaintVerdictSign(QPainter& painter, const QRectF& box, TableModel::Verdict verdict, const TableColors& colors);

}  // namespace trainer::screens
