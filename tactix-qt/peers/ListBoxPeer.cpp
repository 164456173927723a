#include "tactix-qt/peers/ListBoxPeer.h"

#include <QAbstractItemView>
#include <QKeyEvent>
#include <QPainter>
#include <QScrollBar>
#include <QStyle>
#include <QStyleOptionComboBox>
#include <QWheelEvent>
#include <algorithm>

#include "tactix-qt/Convert.h"
#include "tactix-qt/Retirement.h"
#include "tactix-qt/peers/AccessibleNames.h"

namespace tactix::qt {

ListBoxPeer::ListBoxPeer(ListBox& box, QtSite& site, QWidget* parent) : NativePeer(box, site, parent) {
  setFocusPolicy(Qt::StrongFocus);
  for (std::int32_t row = 0; row < box.ListCount(); ++row) addItem(ToQt(box.List(row)));
  ShowRow();
  connect(this, &QComboBox::activated, this, [this](int row) { Picked(row); });
}

void ListBoxPeer::Picked(int row) {
  // Queued: QComboBox goes on emitting after this slot, and the pick may destroy the window.
  const auto pick = [this, row] {
    const HandlerScope scope;
    if (Model()) Model()->PickRow(row);
    if (Model()) ShowRow();
  };
  QMetaObject::invokeMethod(this, pick, Qt::QueuedConnection);
}

void ListBoxPeer::RowInserted(ListBox& box, std::int32_t row) {
  insertItem(row, ToQt(box.List(row)));
  // Not ShowRow(), which would slow down every fill. Only undoes that Qt selects the first row of a list by itself.
  if (currentIndex() != box.ListIndex()) setCurrentIndex(box.ListIndex());
}

void ListBoxPeer::RowsAppended(ListBox& box, std::int32_t first, std::int32_t rows) {
  // A peer that was made while the rows were added has some of them already.
  for (std::int32_t row = std::max(first, count()); row < first + rows; ++row) appended_ += ToQt(box.List(row));
  insertItems(count(), appended_);
  appended_.clear();
  if (currentIndex() != box.ListIndex()) setCurrentIndex(box.ListIndex());
}

void ListBoxPeer::RowsCleared(ListBox&) {
  clear();
  ShowRow();
}

void ListBoxPeer::ShowRow() {
  setPlaceholderText(ToQt(Model()->Text()));
  setCurrentIndex(Model()->ListIndex());
  update();
}

void ListBoxPeer::Update(Aspect aspect) {
  switch (aspect) {
    case Aspect::Row:
    case Aspect::Text:
      ShowRow();
      break;
    case Aspect::Colors: {
      QPalette own;
      if (const Color color = Model()->ForeColor(); !IsSystemColor(color)) {
        own.setColor(QPalette::Text, ToQt(color));
        own.setColor(QPalette::ButtonText, ToQt(color));
      }
      if (const Color color = Model()->BackColor(); !IsSystemColor(color)) {
        own.setColor(QPalette::Base, ToQt(color));
        own.setColor(QPalette::Button, ToQt(color));
      }
      setPalette(own);
      break;
    }
    default:
      break;
  }
  Peer::Update(aspect);
}

bool ListBoxPeer::TakesKey(const QKeyEvent& event) const {
  if ((event.modifiers() & ~(Qt::ShiftModifier | Qt::KeypadModifier)) != Qt::NoModifier) return false;
  return event.key() == Qt::Key_Up || event.key() == Qt::Key_Down || event.key() == Qt::Key_Home ||
         event.key() == Qt::Key_End;
}

void ListBoxPeer::keyPressEvent(QKeyEvent* event) {
  const bool opens = event->key() == Qt::Key_F4 || event->key() == Qt::Key_Space ||
                     (event->key() == Qt::Key_Down && (event->modifiers() & Qt::AltModifier));
  if (opens) {
    showPopup();
  } else {
    // Kept from QComboBox, which would change the row by itself.
    event->ignore();
  }
}

void ListBoxPeer::wheelEvent(QWheelEvent* event) { event->ignore(); }

void ListBoxPeer::showPopup() {
  // Only now, because view() creates the view: it slows down every fill and, with its gestures, every event of the
  // process.
  view()->setTextElideMode(Qt::ElideNone);
  const int scrollBar = count() > maxVisibleItems() ? style()->pixelMetric(QStyle::PM_ScrollBarExtent) : 0;
  view()->setAccessibleName(accessibleName().isEmpty() ? SpokenNameOf(*this) : accessibleName());
  view()->setMinimumWidth(view()->sizeHintForColumn(0) + scrollBar + 2 * view()->frameWidth());
  QComboBox::showPopup();
}

bool ListBoxPeer::IsOpen() const {
  const auto* const list = findChild<QAbstractItemView*>();
  return list && list->isVisible();
}

QString ListBoxPeer::ShownText() const { return currentIndex() < 0 ? placeholderText() : currentText(); }

int ListBoxPeer::TextFlags() const { return Qt::AlignLeft | Qt::AlignVCenter | Qt::TextWordWrap; }

QRect ListBoxPeer::TextRoom() const {
  QStyleOptionComboBox option;
  initStyleOption(&option);
  return style()
      ->subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxEditField, this)
      .adjusted(1, 0, -1, 0);
}

QRect ListBoxPeer::TextRect() {
  const QRect room = TextRoom();
  const QFont& fitted = fitted_.Fit(ShownText(), font(), room.size(), TextFlags(), this);
  return FittedText::Measure(ShownText(), fitted, room, TextFlags(), this);
}

void ListBoxPeer::paintEvent(QPaintEvent*) {
  QStyleOptionComboBox option;
  initStyleOption(&option);
  option.currentText.clear();
  QPainter painter(this);
  style()->drawComplexControl(QStyle::CC_ComboBox, &option, &painter, this);
  const QRect room = TextRoom();
  painter.setFont(fitted_.Fit(ShownText(), font(), room.size(), TextFlags(), this));
  style()->drawItemText(&painter, room, TextFlags(), palette(), isEnabled(), ShownText(), QPalette::ButtonText);
}

}  // namespace tactix::qt
