#pragma once

#include <QMenu>
#include <QObject>
#include <QPointer>

#include "tactix-qt/Export.h"
#include "tactix/platform/Weak.h"
#include "tactix/platform/widgets/Menu.h"

namespace tactix::qt {

class ControlWidget;
class QtSite;

/// One menu while it is popped up: draws it as a QMenu. The chosen entry's handlers run after the QMenu has closed and
/// its own handlers have returned, and before Run returns.
class TACTIX_QT_EXPORT MenuPopUp final : public QObject {
 public:
  MenuPopUp(Menu& menu, QtSite& site);
  ~MenuPopUp() override;

  void Run(const QPoint& global, ControlWidget& within);

  /// Closes what is popped up on the site.
  static void SiteEnds(const QtSite& site);

  /// What is popped up on the site, or null.
  static QMenu* OpenOn(const QtSite& site);

  /// The menu or entry that a QMenu of this class or one of its actions stands for.
  static Menu* MenuOf(const QMenu& native);
  static MenuEntry* EntryOf(const QAction& action);

 protected:
  bool eventFilter(QObject* object, QEvent* event) override;

 private:
  void Fill(QMenu& native, const MenuEntry& entry);
  void Dismiss();
  void MoveBeyond(const QMouseEvent& event);

  Weak<Menu> menu_;
  Weak<Site> site_;
  QMenu native_;
  QPointer<QWidget> window_;
  Weak<MenuEntry> chosen_;
  MenuPopUp* outer_;
};

}  // namespace tactix::qt
