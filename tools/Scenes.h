#pragma once

#include <vector>

#include "tools/ControlScenes.h"

namespace tactix::tools {

/// The pictures of the documentation: the controls, open lists, the trainer.
std::vector<Scene> Scenes();

}  // namespace tactix::tools
