#pragma once

#include <cstdint>

#include "tactix-qt/Export.h"
#include "tactix-qt/WidgetOf.h"
#include "tactix/counting/CountValueSelector.h"

namespace tactix::qt {

/// The point value selector of a card as a widget, see WidgetOf and tactix::CountValueSelector.
class TACTIX_QT_EXPORT CountValueSelector : public WidgetOf<tactix::CountValueSelector> {
  Q_OBJECT
  Q_PROPERTY(theCardValuePossibilities CardValue READ CardValue WRITE setCardValue RESET resetCardValue NOTIFY
                 CardValueChanged)
  Q_PROPERTY(CardPointValuePossibilities PointValue READ PointValue WRITE setPointValue RESET resetPointValue NOTIFY
                 PointValueChanged STORED false DESIGNABLE false)

 public:
  /// The rows of tactix::theCardValuePossibilities. A saved control may hold other numbers.
  enum theCardValuePossibilities : std::int32_t {
    theCardValueIsAnAce = int(tactix::theCardValuePossibilities::theCardValueIsAnAce),
    theCardValueIsATwo = int(tactix::theCardValuePossibilities::theCardValueIsATwo),
    theCardValueIsAThree = int(tactix::theCardValuePossibilities::theCardValueIsAThree),
    theCardValueIsAFour = int(tactix::theCardValuePossibilities::theCardValueIsAFour),
    theCardValueIsAFive = int(tactix::theCardValuePossibilities::theCardValueIsAFive),
    theCardValueIsASix = int(tactix::theCardValuePossibilities::theCardValueIsASix),
    theCardValueIsASeven = int(tactix::theCardValuePossibilities::theCardValueIsASeven),
    theCardValueIsAnEight = int(tactix::theCardValuePossibilities::theCardValueIsAnEight),
    theCardValueIsANine = int(tactix::theCardValuePossibilities::theCardValueIsANine),
    theCardValueIsATen = int(tactix::theCardValuePossibilities::theCardValueIsATen),
  };
  Q_ENUM(theCardValuePossibilities)
  /// The rows of tactix::CardPointValuePossibilities. Other numbers are kept, too.
  enum CardPointValuePossibilities : std::int32_t {
    CardIsAMinus10 = int(tactix::CardPointValuePossibilities::CardIsAMinus10),
    CardIsAMinus9 = int(tactix::CardPointValuePossibilities::CardIsAMinus9),
    CardIsAMinus8 = int(tactix::CardPointValuePossibilities::CardIsAMinus8),
    CardIsAMinus7 = int(tactix::CardPointValuePossibilities::CardIsAMinus7),
    CardIsAMinus6 = int(tactix::CardPointValuePossibilities::CardIsAMinus6),
    CardIsAMinus5 = int(tactix::CardPointValuePossibilities::CardIsAMinus5),
    CardIsAMinus4 = int(tactix::CardPointValuePossibilities::CardIsAMinus4),
    CardIsAMinus3 = int(tactix::CardPointValuePossibilities::CardIsAMinus3),
    CardIsAMinus2 = int(tactix::CardPointValuePossibilities::CardIsAMinus2),
    CardIsAMinus1 = int(tactix::CardPointValuePossibilities::CardIsAMinus1),
    NeutralPointValue = int(tactix::CardPointValuePossibilities::NeutralPointValue),
    CardIsAPlus1 = int(tactix::CardPointValuePossibilities::CardIsAPlus1),
    CardIsAPlus2 = int(tactix::CardPointValuePossibilities::CardIsAPlus2),
    CardIsAPlus3 = int(tactix::CardPointValuePossibilities::CardIsAPlus3),
    CardIsAPlus4 = int(tactix::CardPointValuePossibilities::CardIsAPlus4),
    CardIsAPlus5 = int(tactix::CardPointValuePossibilities::CardIsAPlus5),
    CardIsAPlus6 = int(tactix::CardPointValuePossibilities::CardIsAPlus6),
    CardIsAPlus7 = int(tactix::CardPointValuePossibilities::CardIsAPlus7),
    CardIsAPlus8 = int(tactix::CardPointValuePossibilities::CardIsAPlus8),
    CardIsAPlus9 = int(tactix::CardPointValuePossibilities::CardIsAPlus9),
    CardIsAPlus10 = int(tactix::CardPointValuePossibilities::CardIsAPlus10),
    LowestPointValue = int(tactix::CardPointValuePossibilities::LowestPointValue),
    HighestPointValue = int(tactix::CardPointValuePossibilities::HighestPointValue),
    PointListConversion = int(tactix::CardPointValuePossibilities::PointListConversion),
  };
  Q_ENUM(CardPointValuePossibilities)

  explicit CountValueSelector(QWidget* parent = nullptr);
  ~CountValueSelector() override;

  /// The card, the ace by default. Writing another number than its rows does nothing.
  theCardValuePossibilities CardValue() const;
  /// The value that was picked, 0 by default. What is written is not what is read: see tactix::CardValueSelector.
  CardPointValuePossibilities PointValue() const;

 public Q_SLOTS:
  void setCardValue(theCardValuePossibilities card);
  void setPointValue(CardPointValuePossibilities value);
  void resetCardValue();
  void resetPointValue();
  void CardValue(theCardValuePossibilities card) { setCardValue(card); }
  void PointValue(CardPointValuePossibilities value) { setPointValue(value); }

 Q_SIGNALS:
  /// Carries the value of the selected row, -11 where a value was set and no row is selected.
  void CountValueSelected(int newCountValue);
  /// The same where a row is selected.
  void countValuePicked(CardPointValuePossibilities value);

  /// A property has another value now, see WidgetOf.
  void CardValueChanged(theCardValuePossibilities value);
  void PointValueChanged(CardPointValuePossibilities value);
};

}  // namespace tactix::qt
