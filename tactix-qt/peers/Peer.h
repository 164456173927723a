#pragma once

#include <QEvent>
#include <QFont>
#include <QWidget>
#include <utility>

#include "tactix-qt/Export.h"
#include "tactix/platform/Font.h"
#include "tactix/platform/widgets/Widget.h"

class QContextMenuEvent;
class QKeyEvent;
class QMouseEvent;

namespace tactix::qt {

class QtSite;

/// The front end's side of one child widget: it shows the widget's changes in a native widget and passes on what the
/// user does. It decides nothing. Every peer is also its native widget, see NativePeer. It may outlive the child widget
/// and the site; it then does nothing.
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

  /// Shows the child widget's whole state; for a new peer.
  void ShowAll();
  /// Detaches the peer from its child widget.
  void Release();
  /// The mouse has moved over the native widget, perhaps while an open menu has grabbed the mouse.
  void MouseMoved(const QMouseEvent& event);

  /// Shows the child widget's font, or what the host has set instead: of a font that the control is designed with, what
  /// the host has set of a font on the ControlWidget or around it takes the place. A font that a property has set
  /// stays.
  void ShowFont();
  /// The font for which the child widget's room is designed.
  QFont DesignedFont() const;

  /// Whether Tab stops at the native widget, where a user can reach it.
  virtual bool IsTabStop() const;

  void Changed(Widget& widget, Aspect aspect) final;
  void Gone(Widget& widget) final;

 protected:
  virtual void Update(Aspect aspect);
  /// Keys other than letters that the child widget handles and the native widget must not get.
  virtual bool TakesKey(const QKeyEvent&) const { return false; }
  /// Whether a press on the native widget's own area gives it the focus.
  virtual bool TakesClickFocus() const { return false; }
  /// Whether it handles the mouse on it, or leaves it to its parent.
  virtual bool TakesMouse() const { return true; }

  /// To be called before the native widget handles an event. True: the native widget must not handle it.
  bool Before(QEvent& event);
  /// To be called when the native widget has handled an event.
  void After(QEvent& event);

  /// A press or a move of the mouse at a place on the native widget.
  MouseState StateAt(const QPointF& place, Qt::MouseButtons buttons, Qt::KeyboardModifiers modifiers) const;
  /// Passes a press on to the child widget once Qt is done with the event.
  void Post(const MouseState& state);

  QtSite& ItsSite() const { return site_; }
  /// The part of the native widget that lies inside its parent; all of it where none does.
  QRect InSight() const;

 private:
  /// Whose font the child widget has. One that equals the container's when it is set, as a saved one does by default,
  /// is the container's.
  enum class FontSource { Container, Design, Property };
  FontSource SourceOfFont() const;
  bool KeyPressed(QKeyEvent& event);
  void MousePressed(const QMouseEvent& event);
  void MenuKeyPressed();

  Widget* widget_;
  QtSite& site_;
  QWidget& native_;
  Font designed_;
  FontSource fontSource_;
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
    // This event deletes the widget, which is this peer, so nothing may follow it.
    if (event->type() == QEvent::DeferredDelete) return NativeBase::event(event);
    const bool handled = NativeBase::event(event);
    After(*event);
    return handled;
  }
};

}  // namespace tactix::qt
