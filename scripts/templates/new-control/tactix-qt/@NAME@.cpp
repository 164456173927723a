#include "tactix-qt/@NAME@.h"

#include "tactix-qt/Forwarding.h"

namespace tactix::qt {

@NAME@::@NAME@(QWidget* parent) : WidgetOf(parent) { Relay(&Core::EventSet::ValueChanged, &@NAME@::ValueChanged); }

@NAME@::~@NAME@() { EndControl(); }

int @NAME@::Value() const { return Get<int>(&Core::Value); }

void @NAME@::setValue(int value) { Call(&Core::Value, value); }

}  // namespace tactix::qt
