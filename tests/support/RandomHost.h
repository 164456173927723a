#pragma once

#include <cstddef>
#include <memory>
#include <string>
#include <tuple>
#include <utility>
#include <vector>

#include "tactix/platform/Error.h"
#include "tactix/platform/Variant.h"
#include "tactix/platform/headless/HeadlessSite.h"
#include "tests/support/PropertyObject.h"
#include "tests/support/RandomSequence.h"

namespace tactix::tests {

/// A host and a user who do random things to one control, also in the middle of its call-outs: from its handlers, its
/// menus, its waits and the host's objects. The control, and its window, may go at any of these points; the next
/// operation makes a new one.
template <class C>
class RandomHost {
 public:
  using ControlType = C;
  struct Operation {
    const char* name;
    std::uint32_t weight;
    void (*run)(RandomHost& host, C& control, SequenceRandom& random);
  };

  RandomHost(std::vector<Operation> operations, void (*prepare)(RandomHost& host, C& control))
      : operations_(std::move(operations)), prepare_(prepare) {}
  virtual ~RandomHost() { DestroyWindow(); }
  RandomHost(const RandomHost&) = delete;
  RandomHost& operator=(const RandomHost&) = delete;

  HeadlessSite& Site() { return *site_; }
  /// Null while there is none.
  C* Control() { return control_.get(); }
  bool IsIdle() const { return depth_ == 0; }
  /// The first thing that was found wrong in the middle of an operation.
  const std::string& Wrong() const { return wrong_; }
  void ReportWrong(std::string what) {
    if (wrong_.empty()) wrong_ = std::move(what);
  }

  void DestroyControl() { control_.reset(); }
  void DestroyWindow() {
    control_.reset();
    site_.reset();
  }

  /// Runs one operation; errors that the control reports to its host end here.
  void Run(const Operation& operation, SequenceRandom& random) {
    if (depth_ >= Deepest) return;
    if (depth_ == 0) chaos_ = SequenceRandom(random.Next());
    Ensure();
    ++depth_;
    try {
      operation.run(*this, *control_, random);
    } catch (const Error&) {
    }
    --depth_;
  }
  /// One time in so many, runs a random operation in the middle of another.
  void MaybeInterfere(std::uint32_t chances) {
    if (depth_ == 0 || !chaos_.OneIn(chances)) return;
    SequenceRandom random(chaos_.Next());
    Run(operations_[random.Below(static_cast<std::uint32_t>(operations_.size()))], random);
  }
  /// Does so when the clock has moved on, and in the next menu.
  void InterfereLater(SequenceRandom& random) {
    site_->After(random.Between(0, 700), [this] { MaybeInterfere(1); });
  }
  void InterfereInMenus() {
    for (int i = 0; i < 2; ++i) {
      site_->ScriptMenu([this](Menu& menu) {
        const Weak<Menu> open(menu);
        MaybeInterfere(2);
        if (open) ChooseSomething(*open.Get());
      });
    }
  }

 private:
  static constexpr int Deepest = 3;

  void Ensure() {
    if (!site_) site_ = std::make_unique<HeadlessSite>();
    if (control_) return;
    control_ = std::make_unique<C>(*site_);
    control_->InitProperties();
    prepare_(*this, *control_);
  }
  void ChooseSomething(MenuEntry& menu) {
    const auto entries = menu.Entries();
    MenuEntry& entry = *entries[chaos_.Below(static_cast<std::uint32_t>(entries.size()))];
    entry.Entries().empty() ? entry.Choose() : ChooseSomething(entry);
  }

  std::vector<Operation> operations_;
  void (*prepare_)(RandomHost& host, C& control);
  std::unique_ptr<HeadlessSite> site_;
  std::unique_ptr<C> control_;
  SequenceRandom chaos_{0};
  std::string wrong_;
  int depth_ = 0;
};

/// Runs 100,000 operations on hosts of one kind; after each, `check` answers what is wrong, if anything.
template <class Host>
testing::AssertionResult RunAtRandom(const std::vector<typename Host::Operation>& operations,
                                     void (*prepare)(RandomHost<typename Host::ControlType>&,
                                                     typename Host::ControlType&),
                                     std::string (*check)(Host&)) {
  RandomSequence<Host> sequence([&] { return std::make_unique<Host>(operations, prepare); });
  for (const auto& operation : operations) {
    sequence.Add(operation.name, operation.weight,
                 [operation](Host& host, SequenceRandom& random) { host.Run(operation, random); });
  }
  sequence.Always(check);
  return sequence.Run(20240501, 100'000);
}

/// Lets handlers of all events of a control run random operations.
template <class C>
void InterfereFromHandlers(RandomHost<C>& host, C& control) {
  const auto interfere = [&host](auto&&...) { host.MaybeInterfere(8); };
  std::apply([&](auto&... each) { (each.Connect(interfere), ...); }, control.Events.All());
}

inline MouseState AnyMouse(SequenceRandom& random) {
  const auto bits = [&] { return static_cast<std::int16_t>(random.Below(8)); };
  return {bits(), bits(), 10, 10};
}

/// A value of a random type: what a late-bound property of a host's may hold.
inline Variant AnyValue(SequenceRandom& random) {
  switch (random.Below(10)) {
    case 0:
      return {};
    case 1:
      return Variant::Null();
    case 2:
      return random.OneIn(2);
    case 3:
      return random.Between(-40000, 40000);
    case 4:
      return "True";
    case 5:
      return "7, 8 or 9";
    case 6:
      return Variant(ObjectRef());
    case 7:
      return static_cast<double>(random.Between(-20, 20)) / 2;
    case 8:
      return std::make_shared<PropertyObject>("", random.Between(-2, 12));
    default:
      return random.Between(-2, 12);
  }
}

/// At most one of the buttons is the default one.
template <class... Buttons>
bool AtMostOneIsDefault(const Buttons&... buttons) {
  return ((buttons.DEFAULT() ? 1 : 0) + ...) <= 1;
}

/// The focus is on nothing, or on what the user can use.
inline bool FocusIsUsable(const HeadlessSite& site) { return !site.Focus() || site.Focus()->Usable(); }

}  // namespace tactix::tests
