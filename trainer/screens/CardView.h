#pragma once

#include <QWidget>
#include <optional>

#include "trainer/engine/Card.h"

namespace trainer::screens {

/// One card, face up, or its back while there is none.
class CardView : public QWidget {
  Q_OBJECT

 public:
  explicit CardView(QWidget* parent = nullptr);

  void Show(std::optional<engine::Card> card);
  [[nodiscard]] std::optional<engine::Card> Shown() const { return card_; }

  [[nodiscard]] QSize sizeHint() const override;
  [[nodiscard]] QSize minimumSizeHint() const override;

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  std::optional<engine::Card> card_;
};

}  // namespace trainer::screens
