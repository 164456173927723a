#include "tactix/platform/widgets/Extender.h"

#include "tactix/platform/Control.h"
#include "tactix/platform/PropertyTable.h"

namespace tactix {

namespace {

/// For these names the extender's own property is meant, even where the control has one of the same name.
bool IsContainersName(std::string_view name) {
  for (const std::string_view own : {"Left", "Top", "Width", "Height", "Visible"}) {
    if (SameName(name, own)) return true;
  }
  return false;
}

}  // namespace

float Extender::ScaleWidth() const { return Width() * TwipsPerUnit() / TwipsPerInnerUnit(); }

float Extender::ScaleHeight() const { return Height() * TwipsPerUnit() / TwipsPerInnerUnit(); }

float Extender::TwipsPerUnit() const { return Owner() ? Widget::TwipsPerUnit() : 1.0F; }

void Extender::DesignSize(float width, float height) {
  width_ = width;
  height_ = height;
}

void Extender::PlaceChanged(bool sizeChanged) {
  if (sizeChanged) control_.Resized();
}

bool Extender::ReadMember(std::string_view name, Variant& value) const {
  const PropertyTable::Row* const row = IsContainersName(name) ? nullptr : control_.Properties().Find(name);
  if (!row) return Widget::ReadMember(name, value);
  if (!row->get) return false;
  value = row->get(control_);
  return true;
}

bool Extender::WriteMember(std::string_view name, const Variant& value) {
  const PropertyTable::Row* const row = IsContainersName(name) ? nullptr : control_.Properties().Find(name);
  if (!row) {
    const Weak<Extender> self(this);
    const Variant plain = value.Plain();
    return !self || Widget::WriteMember(name, plain);
  }
  if (!row->set) return false;
  row->set(control_, value);
  return true;
}

bool Extender::CallMember(std::string_view name, std::span<Variant> arguments, Variant& result) {
  const MethodTable::Row* const row = control_.Methods().Find(name);
  if (!row) return false;
  result = row->call(control_, arguments);
  return true;
}

}  // namespace tactix
