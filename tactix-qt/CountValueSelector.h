#pragma once

#include <cstdint>

#include "tactix-qt/ControlWidget.h"
#include "tactix-qt/Export.h"
#include "tactix/counting/CountValueSelector.h"

namespace tactix::qt {

/// The point value selector of a card as a widget: tactix::CountValueSelector with its properties and signals.
class TACTIX_QT_EXPORT CountValueSelector : public ControlWidget {
  Q_OBJECT
  Q_PROPERTY(theCardValuePossibilities CardValue READ CardValue WRITE CardValue)
  /// What is written is not what is read: see tactix::CardValueSelector.
  Q_PROPERTY(CardPointValuePossibilities PointValue READ PointValue WRITE PointValue STORED false DESIGNABLE false)

 public:
  /// The rows of tactix::theCardValuePossibilities. A saved control may hold other numbers.
  enum theCardValuePossibilities : std::int32_t {
    theCardValueIsAnAce = 1,
    theCardValueIsATwo = 2,
    theCardValueIsAThree = 3,
    theCardValueIsAFour = 4,
    theCardValueIsAFive = 5,
    theCardValueIsASix = 6,
    theCardValueIsASeven = 7,
    theCardValueIsAnEight = 8,
    theCardValueIsANine = 9,
    theCardValueIsATen = 10,
  };
  Q_ENUM(theCardValuePossibilities)
  /// The rows of tactix::CardPointValuePossibilities. Other numbers are kept, too.
  enum CardPointValuePossibilities : std::int32_t {
    CardIsAMinus10 = -10,
    CardIsAMinus9 = -9,
    CardIsAMinus8 = -8,
    CardIsAMinus7 = -7,
    CardIsAMinus6 = -6,
    CardIsAMinus5 = -5,
    CardIsAMinus4 = -4,
    CardIsAMinus3 = -3,
    CardIsAMinus2 = -2,
    CardIsAMinus1 = -1,
    NeutralPointValue = 0,
    CardIsAPlus1 = 1,
    CardIsAPlus2 = 2,
    CardIsAPlus3 = 3,
    CardIsAPlus4 = 4,
    CardIsAPlus5 = 5,
    CardIsAPlus6 = 6,
    CardIsAPlus7 = 7,
    CardIsAPlus8 = 8,
    CardIsAPlus9 = 9,
    CardIsAPlus10 = 10,
    LowestPointValue = -10,
    HighestPointValue = 10,
    PointListConversion = 10,
  };
  Q_ENUM(CardPointValuePossibilities)

  explicit CountValueSelector(QWidget* parent = nullptr);
  ~CountValueSelector() override;

  tactix::CountValueSelector& control() const { return *selector_; }

  theCardValuePossibilities CardValue() const;
  CardPointValuePossibilities PointValue() const;

 public Q_SLOTS:
  void CardValue(theCardValuePossibilities card);
  void PointValue(CardPointValuePossibilities value);

 Q_SIGNALS:
  void CountValueSelected(int newCountValue);

 private:
  tactix::CountValueSelector* selector_;
};

}  // namespace tactix::qt
