#pragma once

#include <memory>
#include <optional>
#include <string>

#include "tactix/platform/headless/HeadlessSite.h"
#include "tests/support/EventRecorder.h"
#include "tests/support/ProbeControls.h"

namespace tactix::tests {

/// A probe on a headless site, with everything that happens to it in one list.
struct HeadlessProbe {
  EventRecorder recorder;
  std::optional<HeadlessSite> site{std::in_place};
  std::unique_ptr<OuterProbe> outer;

  HeadlessProbe() {
    outer = std::make_unique<OuterProbe>(*site);
    recorder.Watch(outer->Events.All());
    recorder.Watch(outer->Children.Inner.Events.All(), "inner");
    site->OnPropertyChanged([this](std::string_view name) { recorder.Note("notice: " + std::string(name)); });
  }

  /// Adds the container's notifications of both probes to the list.
  void NoteNotifications() {
    const auto note = [this](std::string text) { recorder.Note(std::move(text)); };
    outer->OnNote = note;
    outer->Children.Inner.OnNote = note;
  }
  void DestroyControl() { outer.reset(); }
  void DestroyWindow() {
    outer.reset();
    site.reset();
  }

  OuterProbe::ChildWidgets& Children() { return outer->Children; }
  InnerProbe::ChildWidgets& InnerChildren() { return outer->Children.Inner.Children; }
};

}  // namespace tactix::tests
