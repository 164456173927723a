#pragma once

#include <QEvent>
#include <QWidget>
#include <utility>

#include "tactix-qt/Export.h"
#include "tactix/platform/widgets/Widget.h"

class QContextMenuEvent;
class QKeyEvent;
class QMouseEvent;

namespace tactix::qt {

class QtSite;

/// The front end's side of one child widget: carries its changes over to a native widget, and the user's doings back.
/// Decides nothing. Every peer is its native widget at the same time, see NativePeer; it may outlive the child widget
/// and the site, and is without effect from then on.
class TACTIX_QT_EXPORT Peer : public WidgetObserver {
 public:
  Peer(Widget& widget, QtSite& site, QWidget& native);
  ~Peer() override;
  Peer(const Peer&) = delete;
  Peer& operator=(const Peer&) = delete;

  /// The peer of a child widget, or null when it has none.
  static Peer* Of(const Widget& widget) { return static_cast<Peer*>(widget.Observer()); }

  /// Null once the child widget is gone.
  Widget* ItsWidget() const { return widget_; }
  QWidget& Native() const { return native_; }

  /// Carries everything over; for a new peer.
  void ShowAll();
  /// Cuts the tie to the child widget.
  void Release();
  /// The mouse has moved over the native widget, or past something that had grabbed it.
  void MouseMoved(const QMouseEvent& event);

  /// Whether Tab stops at the native widget, where a user can reach it.
  virtual bool IsTabStop() const;

  void Changed(Widget& widget, Aspect aspect) final;
  void Gone(Widget& widget) final;

 protected:
  virtual void Update(Aspect aspect);
  /// Keys beyond the letters that the child widget understands; the native widget then does not get them.
  virtual bool TakesKey(const QKeyEvent&) const { return false; }
  /// Whether a press on the native widget's own area gives it the focus.
  virtual bool TakesClickFocus() const { return false; }
  /// Whether it keeps what the mouse does on it from its parent.
  virtual bool TakesMouse() const { return true; }

  /// To call before the native widget handles an event: true when it must not.
  bool Before(QEvent& event);
  /// To call when it has.
  void After(QEvent& event);

  /// A press or a move of the mouse at a place on the native widget.
  MouseState StateAt(const QPointF& place, Qt::MouseButtons buttons, Qt::KeyboardModifiers modifiers) const;
  /// Hands a press over once Qt is done with it.
  void Post(const MouseState& state);

  QtSite& ItsSite() const { return site_; }
  /// The part of the native widget that lies inside its parent; all of it where none does.
  QRect InSight() const;
  /// What a screen reader says: the caption, or else the tool tip, or else the caption of the box around it, or else
  /// the name.
  void ShowAccessibleName();

 private:
  bool KeyPressed(QKeyEvent& event);
  void MousePressed(const QMouseEvent& event);
  void MenuKeyPressed();

  Widget* widget_;
  QtSite& site_;
  QWidget& native_;
};

/// A native widget of class NativeBase that is the peer of a child widget of class W.
template <class NativeBase, class W>
class NativePeer : public NativeBase, public Peer {
 public:
  NativePeer(W& widget, QtSite& site, QWidget* parent)
      : NativeBase(parent), Peer(widget, site, static_cast<QWidget&>(*this)) {}

 protected:
  W* Model() const { return static_cast<W*>(ItsWidget()); }

  bool event(QEvent* event) override {
    if (Before(*event)) return true;
    // Nothing of the peer is left after that one.
    if (event->type() == QEvent::DeferredDelete) return NativeBase::event(event);
    const bool handled = NativeBase::event(event);
    After(*event);
    return handled;
  }
};

}  // namespace tactix::qt
