#include "tactix-qt/ClumpCardList.h"

#include "tactix-qt/Forwarding.h"

namespace tactix::qt {

ClumpCardList::ClumpCardList(QWidget* parent) : WidgetOf(parent) {
  setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
  Relay(&Core::EventSet::ClumpValueSelected, &ClumpCardList::ClumpValueSelected);
}

ClumpCardList::~ClumpCardList() { EndControl(); }

ClumpCardList::theClumpCardValuePossibilities ClumpCardList::CardValue() const {
  return Get<theClumpCardValuePossibilities>(&Core::CardValue);
}
ClumpCardList::CardClumpValuePossibilities ClumpCardList::ClumpValue() const {
  return Get<CardClumpValuePossibilities>(&Core::ClumpValue);
}

void ClumpCardList::setCardValue(theClumpCardValuePossibilities card) { Call(&Core::CardValue, card); }
void ClumpCardList::setClumpValue(CardClumpValuePossibilities value) { Call(&Core::ClumpValue, value); }

void ClumpCardList::resetCardValue() { Reset("CardValue"); }
void ClumpCardList::resetClumpValue() { Reset("ClumpValue", ResetBy::Restoring); }

}  // namespace tactix::qt
