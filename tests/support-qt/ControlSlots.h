#pragma once

#include <QVariant>
#include <functional>
#include <map>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "tactix/platform/Control.h"
#include "tactix/platform/Object.h"
#include "tests/support/PropertyObject.h"

namespace tactix::tests {

using Action = std::function<void(Control&)>;
using Question = std::function<std::string(Control&)>;

/// Whether a call changes what can be seen of a control.
enum class Shows { Yes, Nothing };

/// A slot, what it is called with, and the control's own call.
struct SlotRow {
  std::string signature;
  QVariantList arguments;
  /// Returns what the method returns, as a text.
  Question call;
  Shows shows = Shows::Yes;
  /// Before the call.
  Action prepare = nullptr;
  /// After it: brings to light what it has done, and says what cannot be seen otherwise.
  Question reveal = nullptr;
};

/// The slots and invokables of each class, apart from the properties'.
using SlotTable = std::map<std::string, std::vector<SlotRow>>;
SlotTable ControlSlots();

// The tables of the rooms.
SlotTable DecisionSlots();
SlotTable StrategySlots();
SlotTable ScoreAndCountSlots();

// For the tables.

template <class C>
Question CallOf(std::function<void(C&)> call) {
  return [call](Control& control) {
    call(static_cast<C&>(control));
    return std::string();
  };
}

template <class C>
Action ActionOf(std::function<void(C&)> action) {
  return [action](Control& control) { action(static_cast<C&>(control)); };
}

template <class C>
Question QuestionOf(std::function<std::string(C&)> question) {
  return [question](Control& control) { return question(static_cast<C&>(control)); };
}

template <class T>
QVariant Held(T value) {
  return QVariant::fromValue(std::move(value));
}

/// An edition object, and a collection of strategies.
inline ObjectRef TheEdition() {
  static const ObjectRef edition = std::make_shared<PropertyObject>("thisKelvoEdition", 4);
  return edition;
}
inline ObjectRef TheCollection() {
  static const ObjectRef collection = std::make_shared<PropertyObject>("Count", 7);
  return collection;
}

}  // namespace tactix::tests
