#pragma once

#include <cstdint>
#include <functional>
#include <iosfwd>
#include <map>
#include <memory>
#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <tuple>
#include <type_traits>
#include <utility>
#include <vector>

#include "tactix/platform/Control.h"
#include "tactix/platform/Event.h"
#include "tactix/platform/Variant.h"
#include "tactix/platform/headless/HeadlessSite.h"
#include "tests/support/CallOutHost.h"
#include "tests/support/CallOuts.h"

namespace tactix::tests {

/// Whether a property goes into the container's property bag, and comes back from it.
enum class Saved { No, Yes, WrittenOnly };

/// What becomes of a property that its bag fails to write: the next one is written, or the host gets the error.
enum class FailedWrite { PassedOver, Reported };

/// The same for one that its bag fails to read.
enum class FailedRead { PassedOver, Reported };

/// A property of a control as documented. Whether it can be read and written, the control's property table says.
struct CataloguedProperty {
  std::string name;
  /// In a new control; not used for a set-only property.
  Variant initial;
  /// Another value, to be written; not used for a get-only property.
  Variant other;
  Saved saved = Saved::No;
  /// What it reads after the other value was written, where that is something else.
  std::optional<Variant> reads = std::nullopt;
  /// Its name in saved forms and notices, where that is another one.
  std::optional<std::string> savedAs = std::nullopt;
  /// What is saved after the other value was written, where that is not what it reads.
  std::optional<Variant> saves = std::nullopt;

  const Variant& ReadsAfterWriting() const { return reads ? *reads : other; }
  const std::string& SavedName() const { return savedAs ? *savedAs : name; }
  const Variant& SavedAfterWriting() const { return saves ? *saves : ReadsAfterWriting(); }
};

/// One event of a control that exists.
struct CataloguedEvent {
  std::int32_t number;
  std::string_view name;
  std::function<void(std::function<void()> handler)> connect;
  /// Raises it with arguments of no meaning.
  std::function<void()> raise;
};

/// Something that users or hosts do, and the event that this raises.
struct Raiser {
  std::string event;
  std::function<void(HeadlessSite&, Control&)> act;
};

/// Something that a host or a user does with a control and what a host supplies.
struct Drive {
  std::string name;
  /// Checks after each statement that may call out whether the control still exists, as a host does.
  std::function<void(CallOutHost&, Control&)> act;
};

/// A control of the library, for tests that sweep over all of them.
struct CatalogueEntry {
  std::string name;
  std::function<std::unique_ptr<Control>(Site&)> make;
  std::function<std::vector<CataloguedEvent>(Control&)> events;
  std::vector<CataloguedProperty> properties;
  /// Names that it saves besides: of what is no property of its own.
  std::vector<std::string> alsoSaved = {};
  /// What a new control announces while it takes its initial properties.
  std::vector<std::string> announcedAtFirst = {};
  /// One for each event at least, except those that the control declares and never raises.
  std::vector<Raiser> raisers;
  std::vector<std::string> neverRaised;
  FailedWrite failedWrite = FailedWrite::PassedOver;
  /// Names that a group of elements shares.
  std::vector<std::string> groupNames;
  FailedRead failedRead = FailedRead::PassedOver;
  /// Its methods, each called once at least, and what raisers do not cover.
  std::vector<Drive> drives = {};
  /// What of its host's it calls, whatever is done with it.
  std::set<CallOut> callsOut = {};
  /// By drive, the call-outs whose errors it passes over there: those of all calls of the kind, or of some.
  std::map<std::string, std::set<CallOut>> passesOver = {};
};

/// Named by its name in reports.
void PrintTo(const CatalogueEntry& entry, std::ostream* out);

/// All controls. A new one gets an entry function, and a line in Controls.inc.
const std::vector<CatalogueEntry>& Catalogue();

// The entry functions.
#define CONTROL(name) CatalogueEntry name##Entry();
#include "tests/support/Controls.inc"
#undef CONTROL

// For the entry functions.

template <class... Args>
CataloguedEvent ToCatalogued(Event<Args...>& event) {
  return {event.Number(), event.Name(),
          [&event](std::function<void()> handler) { event.Connect([handler](Args...) { handler(); }); },
          [&event] {
            std::tuple<std::remove_cvref_t<Args>...> values{};
            std::apply([&event](auto&... each) { event.Raise(static_cast<Args>(each)...); }, values);
          }};
}

template <class C>
CatalogueEntry EntryOf(std::string name) {
  CatalogueEntry entry;
  entry.name = std::move(name);
  entry.make = [](Site& site) { return std::make_unique<C>(site); };
  entry.events = [](Control& control) {
    const auto list = [](auto&... each) { return std::vector<CataloguedEvent>{ToCatalogued(each)...}; };
    return std::apply(list, static_cast<C&>(control).Events.All());
  };
  return entry;
}

template <class C>
Drive DriveOf(std::string name, void (*act)(CallOutHost&, C&)) {
  return {std::move(name), [act](CallOutHost& host, Control& control) { act(host, static_cast<C&>(control)); }};
}

template <class C>
Raiser RaiserOf(std::string event, void (*act)(HeadlessSite&, C&)) {
  return {std::move(event), [act](HeadlessSite& site, Control& control) { act(site, static_cast<C&>(control)); }};
}

}  // namespace tactix::tests
