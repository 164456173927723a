#pragma once

#include <cstdint>

#include "tactix-qt/ControlWidget.h"
#include "tactix-qt/Export.h"
#include "tactix/counting/ClumpCardList.h"

namespace tactix::qt {

/// The clump value list of a card as a widget: tactix::ClumpCardList with its properties and signals.
class TACTIX_QT_EXPORT ClumpCardList : public ControlWidget {
  Q_OBJECT
  Q_PROPERTY(theClumpCardValuePossibilities CardValue READ CardValue WRITE CardValue)
  /// What is written is not what is read: see tactix::CardValueSelector.
  Q_PROPERTY(CardClumpValuePossibilities ClumpValue READ ClumpValue WRITE ClumpValue STORED false DESIGNABLE false)

 public:
  /// The rows of tactix::theClumpCardValuePossibilities. A saved control may hold other numbers.
  enum theClumpCardValuePossibilities : std::int32_t {
    theClumpCardValueIsAnAce = 1,
    theClumpCardValueIsATwo = 2,
    theClumpCardValueIsAThree = 3,
    theClumpCardValueIsAFour = 4,
    theClumpCardValueIsAFive = 5,
    theClumpCardValueIsASix = 6,
    theClumpCardValueIsASeven = 7,
    theClumpCardValueIsAnEight = 8,
    theClumpCardValueIsANine = 9,
    theClumpCardValueIsATen = 10,
  };
  Q_ENUM(theClumpCardValuePossibilities)
  /// The rows of tactix::CardClumpValuePossibilities. Other numbers are kept, too.
  enum CardClumpValuePossibilities : std::int32_t {
    NeutralClumpValue = 0,
  };
  Q_ENUM(CardClumpValuePossibilities)

  explicit ClumpCardList(QWidget* parent = nullptr);
  ~ClumpCardList() override;

  tactix::ClumpCardList& control() const { return *list_; }

  theClumpCardValuePossibilities CardValue() const;
  CardClumpValuePossibilities ClumpValue() const;

 public Q_SLOTS:
  void CardValue(theClumpCardValuePossibilities card);
  void ClumpValue(CardClumpValuePossibilities value);

 Q_SIGNALS:
  void ClumpValueSelected(int newClumpValue);

 private:
  tactix::ClumpCardList* list_;
};

}  // namespace tactix::qt
