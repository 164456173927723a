#pragma once

#include <QRectF>
#include <QSizeF>
#include <vector>

#include "trainer/screens/TableModel.h"

namespace trainer::screens {

/// Where everything lies on a table of a given size, in its coordinates. All cards are of one size; hands with many
/// cards are fanned more closely, and only when that is not enough do the cards get smaller.
struct TableLayout {
  struct Hand {
    QRectF area;  ///< all of the hand's; no two hands' areas touch
    QRectF label;
    QRectF frame;  ///< around the cards; glows when the hand is active
    std::vector<QRectF> cards;
    QRectF wager;  ///< the row of bet and outcome under the cards
  };

  qreal unit = 1;  ///< one pixel of the table at its preferred size
  QRectF dealerArea;
  QRectF dealerLabel;
  std::vector<QRectF> dealerCards;  ///< a hidden hole card has its place even if the model leaves it out
  QRectF message;
  QPointF printCentre;  ///< the felt text's arc: the lowest point of its baseline
  qreal printRadius = 0;
  qreal printHeight = 0;  ///< of its letters; 0 where there is no room for it
  QRectF shoe;
  QRectF banner;
  std::vector<Hand> hands;
};

/// Lays the table out. Depends on its arguments only.
[[nodiscard]] TableLayout LayOut(const TableModel& model, QSizeF size);

}  // namespace trainer::screens
