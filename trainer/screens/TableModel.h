#pragma once

#include <QString>
#include <vector>

#include "trainer/engine/Card.h"

namespace trainer::screens {

/// Everything a blackjack table shows, as a value. The texts are shown as they stand and never cut off.
struct TableModel {
  struct HandView {
    std::vector<engine::Card> cards;
    QString label;    ///< what the hand counts: "16", "soft 17"
    QString bet;      ///< beside the chips; empty: no chips
    QString outcome;  ///< "Bust", "Blackjack"; empty while the hand is being played
    bool active = false;
  };

  enum class Verdict { None, Right, Wrong };

  /// The up card first; the second is the hole card.
  std::vector<engine::Card> dealer;
  /// Shows the hole card's back. The hole card itself need not be there: one card is enough.
  bool holeHidden = false;
  QString dealerLabel;
  /// From left to right, one to four after splits.
  std::vector<HandView> hands;
  /// The big line between the dealer and the player, with a sign for the verdict.
  QString message;
  Verdict verdict = Verdict::None;
  /// The part of the shoe still to be dealt, 0 to 1; below 0 there is no shoe to show.
  double shoeLeft = 1.0;
  bool cutCardOut = false;
  /// A small line in the table's corner: the drill's name, the round.
  QString banner;
  /// Printed on the felt.
  QString feltText = QStringLiteral("Blackjack pays 3 to 2");
};

}  // namespace trainer::screens
