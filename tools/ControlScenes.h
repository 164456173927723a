#pragma once

#include <QWidget>
#include <memory>
#include <span>

namespace tactix::tools {

/// Something to show: its name, which is its picture's, and how to make it.
struct Scene {
  const char* name;
  std::unique_ptr<QWidget> (*make)();
};

/// The controls, each in one state or several. Each scene is a widget of a control's class. Call companion::Install()
/// before one is made.
std::span<const Scene> ControlScenes();

}  // namespace tactix::tools
