#pragma once

#include <map>
#include <string>
#include <vector>

#include "tactix/platform/Control.h"

namespace tactix::tests {

/// What can be seen of a control, by name: its readable properties (except those that act when they are read), and its
/// child widgets' captions, places, colours, rows and so on; of the controls inside it the same.
using Sketch = std::map<std::string, std::string>;
Sketch SketchOf(Control& control);

/// What differs, as "name: before -> after".
std::vector<std::string> Differences(const Sketch& before, const Sketch& after);

}  // namespace tactix::tests
