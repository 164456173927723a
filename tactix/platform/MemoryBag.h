#pragma once

#include "tactix/platform/PropertyBag.h"

namespace tactix {

/// The short name for hosts: what a program keeps of its controls while it runs.
using MemoryBag = MemoryPropertyBag;

}  // namespace tactix
