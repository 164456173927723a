#pragma once

#include <QComboBox>
#include <QStringList>

#include "tactix-qt/FittedText.h"
#include "tactix-qt/peers/Peer.h"
#include "tactix/platform/widgets/ListBox.h"

namespace tactix::qt {

/// A drop-down list. Rows are picked in the open list by mouse or keyboard; keys on the closed one go to the child
/// widget, and the wheel goes to whatever scrolls around it.
class TACTIX_QT_EXPORT ListBoxPeer final : public NativePeer<QComboBox, ListBox> {
 public:
  ListBoxPeer(ListBox& box, QtSite& site, QWidget* parent);

  void RowInserted(ListBox& box, std::int32_t row) override;
  void RowsAppended(ListBox& box, std::int32_t first, std::int32_t count) override;
  void RowsCleared(ListBox& box) override;

  void showPopup() override;
  /// Asks no view into being, unlike view().
  bool IsOpen() const;

  /// What it shows while closed, and where; for tests.
  QString ShownText() const;
  QRect TextRect();

 protected:
  void Update(Aspect aspect) override;
  bool TakesKey(const QKeyEvent& event) const override;
  void keyPressEvent(QKeyEvent* event) override;
  void wheelEvent(QWheelEvent* event) override;
  void paintEvent(QPaintEvent* event) override;

 private:
  void Picked(int row);
  void ShowRow();
  QRect TextRoom() const;
  int TextFlags() const;

  FittedText fitted_;
  QStringList appended_;  // kept empty between fills, for its memory
};

}  // namespace tactix::qt
