#pragma once

#include <QWidget>

#include "trainer/screens/TableModel.h"

namespace trainer::screens {

/// A blackjack table to look at: the dealer's hand, one to four player hands, bets, shoe and verdict. It shows a model
/// and decides nothing. For a reader who cannot see it, its accessible description says the same in words.
class TableView : public QWidget {
  Q_OBJECT

 public:
  explicit TableView(QWidget* parent = nullptr);

  [[nodiscard]] const TableModel& Model() const { return model_; }
  void SetModel(TableModel model);

  [[nodiscard]] QSize sizeHint() const override;
  [[nodiscard]] QSize minimumSizeHint() const override;

 protected:
  void paintEvent(QPaintEvent* event) override;
  void changeEvent(QEvent* event) override;

 private:
  void Describe();

  TableModel model_;
};

}  // namespace trainer::screens
