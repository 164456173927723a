#pragma once

#include <QWidget>
#include <memory>
#include <span>

namespace tactix::tools {

/// A picture of the documentation: its file's name and what is on it.
struct Scene {
  const char* name;
  std::unique_ptr<QWidget> (*make)();
};

std::span<const Scene> Scenes();

}  // namespace tactix::tools
