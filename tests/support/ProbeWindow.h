#pragma once

#include <memory>
#include <string>

#include "tests/support/EventRecorder.h"
#include "tests/support/ProbeControls.h"
#include "tests/support/Robot.h"

namespace tactix::tests {

/// A probe in the window of the front end under test, with all its events in one list.
struct ProbeWindow {
  EventRecorder recorder;
  std::unique_ptr<Robot> robot = Robot::Make();
  std::unique_ptr<OuterProbe> outer = std::make_unique<OuterProbe>(robot->NewSite());

  ProbeWindow() {
    outer->InitProperties();
    robot->Show(*outer);
    recorder.Watch(outer->Events.All());
    recorder.Watch(outer->Children.Inner.Events.All(), "inner");
  }

  void DestroyControl() { outer.reset(); }
  void DestroyWindow() {
    robot->DestroyWindow([this] { outer.reset(); });
  }

  OuterProbe::ChildWidgets& Children() { return outer->Children; }
  InnerProbe::ChildWidgets& InnerChildren() { return outer->Children.Inner.Children; }
};

}  // namespace tactix::tests
