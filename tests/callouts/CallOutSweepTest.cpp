// Whatever a control calls of its host's may do anything: every control x everything that is done with it x every call
// that it makes meanwhile x what the host may do in the middle of that call. Sanitizers watch.

#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <map>
#include <set>
#include <string>
#include <vector>

#include "tactix/platform/Error.h"
#include "tactix/platform/PropertyTable.h"
#include "tactix/strategy/StrategyListData.h"
#include "tests/platform/ErrorCode.h"
#include "tests/support/CallOutHost.h"
#include "tests/support/Catalogue.h"
#include "tests/support/RowName.h"

namespace tactix::tests {

namespace {

/// What is thrown that is no Error.
struct SomethingElse {};

constexpr std::int32_t HostsError = 13;

Drive DriveOfProperty(const CataloguedProperty& property, bool isWritten) {
  return {(isWritten ? "set " : "get ") + property.name, [property, isWritten](CallOutHost& host, Control& control) {
            const PropertyTable::Row& row = *control.Properties().Find(property.name);
            if (!isWritten) {
              row.get(control);
            } else if (property.other.Type() != VariantType::Object) {
              row.set(control, property.other);
            } else {
              row.set(control, property.name == "KelvoEdition" ? host.Edition() : host.DataBlock());
            }
          }};
}

/// What containers do with every control.
const std::vector<Drive>& DrivesOfContainers() {
  static const std::vector<Drive> drives = {
      {"InitProperties", [](CallOutHost&, Control& control) { control.InitProperties(); }},
      {"ReadProperties", [](CallOutHost& host, Control& control) { control.ReadProperties(host.Bag()); }},
      {"WriteProperties", [](CallOutHost& host, Control& control) { control.WriteProperties(host.Bag()); }},
      {"Resized", [](CallOutHost&, Control& control) { control.Resized(); }},
      {"another size", [](CallOutHost&, Control& control) { control.Extender().Place(15, 30, 4500, 3000); }},
      {"Displayed", [](CallOutHost&, Control& control) { control.Displayed(); }},
      {"GotFocus", [](CallOutHost&, Control& control) { control.GotFocus(); }},
      {"the focus", [](CallOutHost&, Control& control) { control.Extender().SetFocus(); }},
      {"AmbientChanged", [](CallOutHost&, Control& control) { control.AmbientChanged(); }},
      {"Terminated", [](CallOutHost&, Control& control) { control.Terminated(); }},
      {"its end", [](CallOutHost& host, Control&) { host.DestroyControl(); }},
  };
  return drives;
}

/// What hosts and users do with a control.
std::vector<Drive> DrivesOf(const CatalogueEntry& entry) {
  std::vector<Drive> drives;
  const std::unique_ptr<HeadlessSite> site = std::make_unique<HeadlessSite>();
  const std::unique_ptr<Control> control = entry.make(*site);
  for (const CataloguedProperty& property : entry.properties) {
    const PropertyTable::Row& row = *control->Properties().Find(property.name);
    if (row.get) drives.push_back(DriveOfProperty(property, false));
    if (row.set) drives.push_back(DriveOfProperty(property, true));
  }
  std::map<std::string, int> raisersOf;
  for (const Raiser& raiser : entry.raisers) {
    drives.push_back({"raise " + raiser.event + " " + std::to_string(++raisersOf[raiser.event]),
                      [act = raiser.act](CallOutHost& host, Control& driven) { act(host.Site(), driven); }});
  }
  drives.insert(drives.end(), entry.drives.begin(), entry.drives.end());
  return drives;
}

/// How a drive ended.
struct Ending {
  bool error = false;  // an Error with the host's code, at the caller or at the site
  bool somethingElse = false;
};

Ending EndingOf(CallOutHost& host, const Drive& drive) {
  Ending ending;
  try {
    drive.act(host, *host.ItsControl());
  } catch (const Error& error) {
    ending.error = error.Code() == HostsError;
  } catch (const SomethingElse&) {
    ending.somethingElse = true;
  }
  if (!host.HasWindow()) return ending;
  for (const Error& error : host.Site().Errors()) {
    ending.error |= error.Code() == HostsError;
    ending.somethingElse |= error.Code() == Error::InvalidProcedureCall;
  }
  return ending;
}

/// What a control has gone through before it is driven: what it lets go of, it must have got.
enum class Past { None, TheSame, Everything };

class CallOutSweepTest : public testing::TestWithParam<CatalogueEntry> {
 protected:
  /// One call of the host's during a drive.
  struct Place {
    const Drive& drive;
    Past past;
    CallOut kind;
    int call;

    std::string Name() const {
      constexpr std::string_view pasts[] = {": ", ", again: ", ", after everything else: "};
      return drive.name + std::string(pasts[static_cast<std::size_t>(past)]) + std::string(NameOf(kind)) + " " +
             std::to_string(call);
    }
  };

  static void Destroy(CallOutHost& host, bool withWindow) {
    if (withWindow) {
      host.DestroyWindow();
    } else {
      host.DestroyControl();
    }
  }

  static void DriveQuietly(CallOutHost& host, const Drive& drive) {
    if (!host.ItsControl()) return;
    drive.act(host, *host.ItsControl());
    if (host.HasWindow()) host.RenewTheObjects();
  }

  void Prepare(CallOutHost& host, const Drive& drive, Past past) {
    if (past == Past::TheSame) DriveQuietly(host, drive);
    if (past == Past::Everything) {
      for (const Drive& each : drives_) DriveQuietly(host, each);
    }
    host.Calls.Take();
  }

  /// The calls of a drive in which nothing happens, the last one of so many.
  CallOuts::Counts CallsOf(const Drive& drive, Past past, int times = 1) {
    CallOutHost host(GetParam());
    Prepare(host, drive, past);
    for (int time = 1; time < times; ++time) DriveQuietly(host, drive);
    host.Calls.Take();
    if (host.ItsControl()) drive.act(host, *host.ItsControl());
    return host.Calls.Take();
  }

  template <class Visit>
  void ForEachPlace(const Visit& visit) {
    const auto visitAll = [&](const Drive& drive, Past past) {
      for (const auto& [kind, count] : CallsOf(drive, past)) {
        for (int call = 1; call <= count; ++call) visit(Place{drive, past, kind, call});
      }
    };
    for (const Drive& drive : drives_) {
      for (const Past past : {Past::None, Past::TheSame}) visitAll(drive, past);
    }
    for (const Drive& drive : DrivesOfContainers()) {
      for (const Past past : {Past::None, Past::TheSame, Past::Everything}) visitAll(drive, past);
    }
  }

  /// Drives a new control and has the host act at the place. `check` sees how that ended.
  template <class Act, class Check>
  void ActAt(const Place& place, const Act& act, const Check& check) {
    SCOPED_TRACE(place.Name());
    CallOutHost host(GetParam());
    Prepare(host, place.drive, place.past);
    host.Calls.Arm(place.kind, place.call, [&] { act(host); });
    const Ending ending = EndingOf(host, place.drive);
    EXPECT_EQ(host.Calls.Actions(), 1) << "the drive went another way";
    check(host, ending);
    host.Calls.Disarm();
    if (host.HasWindow()) host.Site().Advance(2000);  // no timer of a dead control ticks
    EXPECT_EQ(host.Calls.Late(), std::vector<std::string>{}) << "asked by a control that is gone";
  }

  // Made before any host: a control of its own sets hooks of its own.
  const std::vector<Drive> drives_ = DrivesOf(GetParam());
};

TEST_P(CallOutSweepTest, AnyCallOutMayDestroyTheControlOrItsWindow) {
  for (const bool withWindow : {false, true}) {
    ForEachPlace([&](const Place& place) {
      ActAt(
          place, [&](CallOutHost& host) { Destroy(host, withWindow); },
          [&](CallOutHost& host, const Ending& ending) {
            EXPECT_EQ(host.ItsControl(), nullptr);
            EXPECT_FALSE(ending.error || ending.somethingElse);
            EXPECT_TRUE(!host.HasWindow() || host.Site().Errors().empty());
          });
    });
  }
}

TEST_P(CallOutSweepTest, AnyCallOutMayDestroyAndFail) {
  // "Object not set" too, which some routines pass over.
  for (const std::int32_t code : {HostsError, std::int32_t{Error::ObjectNotSet}}) {
    ForEachPlace([&](const Place& place) {
      if (place.kind == CallOut::ObjectEnds) return;
      const auto act = [&](CallOutHost& host) {
        Destroy(host, code == HostsError);
        throw Error(code);
      };
      ActAt(place, act, [](CallOutHost& host, const Ending&) { EXPECT_EQ(host.ItsControl(), nullptr); });
    });
  }
}

TEST_P(CallOutSweepTest, AnyCallOutMayFail) {
  std::map<std::string, std::set<CallOut>> passedOver;
  ForEachPlace([&](const Place& place) {
    if (place.kind == CallOut::ObjectEnds) return;  // destructors do not throw
    ActAt(
        place, [](CallOutHost&) { throw Error(HostsError); },
        [&](CallOutHost&, const Ending& ending) {
          if (!ending.error) passedOver[place.drive.name].insert(place.kind);
        });
    ActAt(
        place, [](CallOutHost&) { throw SomethingElse(); },
        [&](CallOutHost&, const Ending& ending) { EXPECT_TRUE(ending.somethingElse) << "nobody has heard of it"; });
  });
  EXPECT_EQ(passedOver, GetParam().passesOver);
}

TEST_P(CallOutSweepTest, GoesOnWorkingAfterAFailure) {
  CallOuts::Counts expected;
  ForEachPlace([&](const Place& place) {
    if (place.kind == CallOut::ObjectEnds) return;
    if (place.call == 1) expected = CallsOf(place.drive, place.past, 3);
    for (const bool isError : {true, false}) {
      SCOPED_TRACE(place.Name());
      CallOutHost host(GetParam());
      Prepare(host, place.drive, place.past);
      host.Calls.Arm(place.kind, place.call, [isError] {
        if (isError) throw Error(HostsError);
        throw SomethingElse();
      });
      EndingOf(host, place.drive);
      host.RenewTheObjects();
      DriveQuietly(host, place.drive);
      host.Calls.Take();
      place.drive.act(host, *host.ItsControl());
      EXPECT_EQ(host.Calls.Take(), expected);
    }
  });
}

TEST_P(CallOutSweepTest, TheSiteMayDestroyWhatHasFailed) {
  ForEachPlace([&](const Place& place) {
    if (place.kind == CallOut::ObjectEnds) return;
    CallOutHost host(GetParam());
    Prepare(host, place.drive, place.past);
    host.Calls.Arm(place.kind, place.call, [] { throw Error(HostsError); });
    host.Calls.Arm(CallOut::Unhandled, 1, [&host] { host.DestroyWindow(); });
    EndingOf(host, place.drive);
    EXPECT_EQ(host.Calls.Late(), std::vector<std::string>{}) << place.Name();
  });
}

TEST_P(CallOutSweepTest, AnyCallOutMayCallBack) {
  ForEachPlace([&](const Place& place) {
    const auto callBack = [&](CallOutHost& host) {
      StrategyListData::UseCatalogue(nullptr);
      const bool isGone = !host.ItsControl();
      for (const CataloguedProperty& property : GetParam().properties) {
        const std::int32_t code = ErrorCodeOf([&] {
          host.Handle()->Put(property.name, property.other);
          return host.Handle()->Get(property.name);
        });
        EXPECT_TRUE(!isGone || code == Error::ObjectNotSet) << "a handle of a control that is gone";
      }
      const std::int32_t code = ErrorCodeOf([&] { return host.Handle()->Get("Width"); });
      EXPECT_EQ(code == Error::ObjectNotSet, isGone);
      if (!host.HasWindow()) return;
      host.RenewTheObjects();
      if (host.ItsControl()) place.drive.act(host, *host.ItsControl());
    };
    ActAt(place, callBack, [](CallOutHost&, const Ending& ending) { EXPECT_FALSE(ending.somethingElse); });
  });
}

TEST_P(CallOutSweepTest, ACallBackMayDestroyIt) {
  ForEachPlace([&](const Place& place) {
    const auto act = [&](CallOutHost& host) {
      if (!host.ItsControl()) return;
      host.RenewTheObjects();
      host.Calls.Arm(place.kind, 1, [&host] { host.DestroyWindow(); });
      place.drive.act(host, *host.ItsControl());
    };
    CallOutHost host(GetParam());
    Prepare(host, place.drive, place.past);
    host.Calls.Arm(place.kind, place.call, [&] { act(host); });
    const Ending ending = EndingOf(host, place.drive);
    EXPECT_FALSE(ending.error || ending.somethingElse) << place.Name();
    EXPECT_EQ(host.Calls.Late(), std::vector<std::string>{}) << place.Name();
  });
}

TEST_P(CallOutSweepTest, ItsCallOutsAreInTheCatalogue) {
  std::set<CallOut> found;
  ForEachPlace([&](const Place& place) { found.insert(place.kind); });
  EXPECT_EQ(found, GetParam().callsOut);
}

INSTANTIATE_TEST_SUITE_P(Controls, CallOutSweepTest, testing::ValuesIn(Catalogue()), RowName());

}  // namespace
}  // namespace tactix::tests
