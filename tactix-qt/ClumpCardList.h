#pragma once

#include <cstdint>

#include "tactix-qt/Export.h"
#include "tactix-qt/WidgetOf.h"
#include "tactix/counting/ClumpCardList.h"

namespace tactix::qt {

/// The clump value list of a card as a widget, see WidgetOf and tactix::ClumpCardList.
class TACTIX_QT_EXPORT ClumpCardList : public WidgetOf<tactix::ClumpCardList> {
  Q_OBJECT
  Q_PROPERTY(theClumpCardValuePossibilities CardValue READ CardValue WRITE setCardValue RESET resetCardValue NOTIFY
                 CardValueChanged)
  Q_PROPERTY(CardClumpValuePossibilities ClumpValue READ ClumpValue WRITE setClumpValue RESET resetClumpValue NOTIFY
                 ClumpValueChanged STORED false DESIGNABLE false)

 public:
  /// The rows of tactix::theClumpCardValuePossibilities. A saved control may hold other numbers.
  enum theClumpCardValuePossibilities : std::int32_t {
    theClumpCardValueIsAnAce = int(tactix::theClumpCardValuePossibilities::theClumpCardValueIsAnAce),
    theClumpCardValueIsATwo = int(tactix::theClumpCardValuePossibilities::theClumpCardValueIsATwo),
    theClumpCardValueIsAThree = int(tactix::theClumpCardValuePossibilities::theClumpCardValueIsAThree),
    theClumpCardValueIsAFour = int(tactix::theClumpCardValuePossibilities::theClumpCardValueIsAFour),
    theClumpCardValueIsAFive = int(tactix::theClumpCardValuePossibilities::theClumpCardValueIsAFive),
    theClumpCardValueIsASix = int(tactix::theClumpCardValuePossibilities::theClumpCardValueIsASix),
    theClumpCardValueIsASeven = int(tactix::theClumpCardValuePossibilities::theClumpCardValueIsASeven),
    theClumpCardValueIsAnEight = int(tactix::theClumpCardValuePossibilities::theClumpCardValueIsAnEight),
    theClumpCardValueIsANine = int(tactix::theClumpCardValuePossibilities::theClumpCardValueIsANine),
    theClumpCardValueIsATen = int(tactix::theClumpCardValuePossibilities::theClumpCardValueIsATen),
  };
  Q_ENUM(theClumpCardValuePossibilities)
  /// The rows of tactix::CardClumpValuePossibilities. Other numbers are kept, too.
  enum CardClumpValuePossibilities : std::int32_t {
    NeutralClumpValue = int(tactix::CardClumpValuePossibilities::NeutralClumpValue),
  };
  Q_ENUM(CardClumpValuePossibilities)

  explicit ClumpCardList(QWidget* parent = nullptr);
  ~ClumpCardList() override;

  /// The card, the ace by default. Writing another number than its rows does nothing.
  theClumpCardValuePossibilities CardValue() const;
  /// The value that was picked, 0 by default. What is written is not what is read: see tactix::CardValueSelector.
  CardClumpValuePossibilities ClumpValue() const;

 public Q_SLOTS:
  void setCardValue(theClumpCardValuePossibilities card);
  void setClumpValue(CardClumpValuePossibilities value);
  void resetCardValue();
  void resetClumpValue();
  void CardValue(theClumpCardValuePossibilities card) { setCardValue(card); }
  void ClumpValue(CardClumpValuePossibilities value) { setClumpValue(value); }

 Q_SIGNALS:
  /// Carries the value of the row that was picked.
  void ClumpValueSelected(int newClumpValue);

  /// A property has another value now, see WidgetOf.
  void CardValueChanged(theClumpCardValuePossibilities value);
  void ClumpValueChanged(CardClumpValuePossibilities value);
};

}  // namespace tactix::qt
