#include "trainer/screens/TableView.h"

#include <QEvent>
#include <QPainter>
#include <utility>

#include "trainer/screens/TableDescription.h"
#include "trainer/screens/TablePainter.h"

namespace trainer::screens {

TableView::TableView(QWidget* parent) : QWidget(parent) {
  setMinimumSize(minimumSizeHint());
  setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
  setAttribute(Qt::WA_OpaquePaintEvent);
  setAccessibleName(tr("Blackjack table"));
  Describe();
}

void TableView::SetModel(TableModel model) {
  model_ = std::move(model);
  Describe();
  update();
}

QSize TableView::sizeHint() const { return {900, 480}; }

QSize TableView::minimumSizeHint() const { return {560, 240}; }

void TableView::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  PaintTable(painter, rect(), model_, TableColorsFor(palette()));
}

void TableView::changeEvent(QEvent* event) {
  QWidget::changeEvent(event);
  if (event->type() == QEvent::LanguageChange) {
    setAccessibleName(tr("Blackjack table"));
    Describe();
  }
  // Palette, font and style changes repaint a widget by themselves.
}

void TableView::Describe() { setAccessibleDescription(DescribeTable(model_)); }

}  // namespace trainer::screens
