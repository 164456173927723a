#include "tactix-qt/peers/Keys.h"

#include "tactix-qt/QtSite.h"
#include "tactix-qt/Retirement.h"

namespace tactix::qt {

bool IsEnter(const QKeyEvent& event) {
  return (event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter) &&
         (event.modifiers() & ~Qt::KeypadModifier) == Qt::NoModifier;
}

bool IsLetter(const QKeyEvent& event) {
  return event.key() >= Qt::Key_A && event.key() <= Qt::Key_Z &&
         !(event.modifiers() & (Qt::KeypadModifier | Qt::MetaModifier));
}

bool PressDefaultButton(QKeyEvent& event, const QtSite& site) {
  PushButton* const button = IsEnter(event) ? site.DefaultButton() : nullptr;
  if (!button) return false;
  const HandlerScope scope;
  event.accept();
  button->Click();
  return true;
}

}  // namespace tactix::qt
