#pragma once

#include <QAction>
#include <QPointer>
#include <QToolBar>
#include <QToolButton>
#include <vector>

#include "tactix-qt/Export.h"
#include "tactix-qt/peers/Peer.h"
#include "tactix/platform/widgets/ToolBar.h"

namespace tactix::qt {

/// A toolbar: an action for each of its buttons, captions below the pictures, or beside them in a column. Pictures and
/// letters shrink where the bar is too thin for them; buttons beyond its length go to a menu at its end.
///
/// Tab enters and leaves it, the arrow keys, Home and End move inside, Space and Enter press. For its control, the
/// toolbar as a whole has the focus.
class TACTIX_QT_EXPORT ToolBarPeer final : public NativePeer<QToolBar, ToolBar> {
 public:
  ToolBarPeer(ToolBar& bar, QtSite& site, QWidget* parent);

  void ButtonChanged(ToolBar& bar, ToolButton& button) override;

  /// The action and the native button that show a button; null where none does. A native button without room is hidden.
  static QAction* ActionOf(const ToolButton& button);
  static QToolButton* NativeOf(const ToolButton& button);

  /// Also while one of its buttons has the focus, and it stops nothing itself.
  bool IsTabStop() const override { return true; }

 protected:
  void Update(Aspect aspect) override;
  bool eventFilter(QObject* object, QEvent* event) override;
  void changeEvent(QEvent* event) override;
  void contextMenuEvent(QContextMenuEvent* event) override;
  void focusInEvent(QFocusEvent* event) override;
  bool focusNextPrevChild(bool next) override;
  void hideEvent(QHideEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;

 private:
  void Add(const ToolButton& button);
  void ShowState(QAction& action, const ToolButton& button);
  void ShowPictures();
  void ShowMore();
  void ShowOrientation();
  void Fit();
  bool FitsWith(const QFont& letters);
  void Click(std::size_t index);
  bool KeyPressed(QToolButton& native, QKeyEvent& event);
  QToolButton* NativeOf(QAction& action) const;
  /// The native buttons that the arrow keys go through, in order.
  std::vector<QToolButton*> Stops() const;
  /// The stop after a native button, or the one before it where it is the last; null when it is alone.
  QToolButton* Neighbour(const QToolButton& native) const;

  std::vector<QAction*> actions_;
  QToolButton* more_;
  QPointer<QToolButton> lastFocused_;
  bool fitting_ = false;
  bool leaving_ = false;
};

}  // namespace tactix::qt
