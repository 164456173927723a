#include "tactix/platform/Control.h"

#include "tactix/platform/PropertyTable.h"

namespace tactix {

namespace {

/// Calls `visit` for each control directly inside a widget's control; stops when a visit has destroyed the widget.
template <class Visit>
void ForEachNested(Widget& widget, const Visit& visit) {
  const Weak<Widget> self(widget);
  const std::vector<Widget*> children(widget.Children().begin(), widget.Children().end());
  for (Widget* child : children) {
    if (child->Kind() == WidgetKind::Extender) {
      visit(static_cast<Extender*>(child)->ItsControl());
    } else {
      ForEachNested(*child, visit);
    }
    if (!self) return;
  }
}

}  // namespace

Control::Control(Site& site) : site_(site), extender_(*this, site) { site_.Attach(*this); }

Control::~Control() { site_.Detach(*this); }

void Control::MarkAsGone() {
  Trackable::MarkAsGone();
  extender_.MarkAsGone();
}

void Control::ReadProperties(PropertyBag& bag) {
  const Weak<Control> self(this);
  Properties().Restore(*this, bag);
  if (self) Touched();
}

void Control::WriteProperties(PropertyBag& bag) { Properties().Save(*this, bag); }

void Control::Displayed() {
  ForEachNested(extender_, [](Control& nested) { nested.Displayed(); });
}

void Control::AmbientChanged() {
  ForEachNested(extender_, [](Control& nested) { nested.AmbientChanged(); });
}

void Control::Terminated() {
  ForEachNested(extender_, [](Control& nested) { nested.Terminated(); });
}

const PropertyTable& Control::Properties() const {
  static const PropertyTable none;
  return none;
}

const MethodTable& Control::Methods() const {
  static const MethodTable none;
  return none;
}

}  // namespace tactix
