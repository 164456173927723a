#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <span>
#include <string_view>
#include <utility>

#include "tactix/companion/CounterValue.h"
#include "tactix/counting/CounterValueObject.h"
#include "tactix/platform/Object.h"
#include "tactix/platform/PropertyBag.h"
#include "tactix/platform/Variant.h"
#include "tactix/platform/headless/HeadlessSite.h"
#include "tests/support/CallOuts.h"

// What a host supplies, with each call of it counted. None of them touches itself after it has counted: it may be gone.

namespace tactix::tests {

/// Says when it ends.
class Ender {
 public:
  explicit Ender(CallOuts& calls) : calls_(calls) {}
  Ender(const Ender&) = delete;
  Ender& operator=(const Ender&) = delete;
  ~Ender() { calls_.Happen(CallOut::ObjectEnds); }

 private:
  CallOuts& calls_;
};

/// An object with the members of another one.
class HostObject final : public Object {
 public:
  HostObject(CallOuts& calls, CallOut kind, ObjectRef members)
      : calls_(calls), kind_(kind), members_(std::move(members)), ender_(calls) {}

  Variant Get(std::string_view name) override {
    const ObjectRef members = members_;
    calls_.Happen(kind_);
    return members->Get(name);
  }
  void Put(std::string_view name, const Variant& value) override {
    const ObjectRef members = members_;
    const bool isWhole = name == DefaultPropertyName;  // is taken unread: reading it would be the host's doing
    calls_.Happen(kind_);
    if (!isWhole) members->Put(name, value);
  }
  Variant Call(std::string_view name, std::span<Variant> arguments) override {
    const ObjectRef members = members_;
    calls_.Happen(kind_);
    return members->Call(name, arguments);
  }

 private:
  CallOuts& calls_;
  CallOut kind_;
  ObjectRef members_;
  Ender ender_;
};

class HostBag final : public PropertyBag {
 public:
  explicit HostBag(CallOuts& calls) : calls_(calls) {}

  MemoryPropertyBag Stored;

  Variant Read(std::string_view name, const Variant& defaultValue) override {
    Variant value = Stored.Read(name, defaultValue);
    calls_.Happen(CallOut::BagRead);
    return value;
  }
  void Write(std::string_view name, const Variant& value) override {
    Stored.Write(name, value);
    calls_.Happen(CallOut::BagWrite);
  }
  void Write(std::string_view name, const Variant& value, const Variant& defaultValue) override {
    Stored.Write(name, value, defaultValue);
    calls_.Happen(CallOut::BagWrite);
  }

 private:
  CallOuts& calls_;
};

class HostCounterValue final : public CounterValueObject {
 public:
  explicit HostCounterValue(CallOuts& calls) : calls_(calls), ender_(calls) {}

  std::int16_t Value() const override {
    const std::int16_t value = number_.Value();
    calls_.Happen(CallOut::CounterValue);
    return value;
  }
  void Value(std::int16_t value) override {
    number_.Value(value);
    calls_.Happen(CallOut::CounterValue);
  }
  void StepDownWrapping(std::int16_t limit) override {
    number_.StepDownWrapping(limit);
    calls_.Happen(CallOut::CounterValue);
  }
  void StepDownSigned() override {
    number_.StepDownSigned();
    calls_.Happen(CallOut::CounterValue);
  }
  void StepDownToZero() override {
    number_.StepDownToZero();
    calls_.Happen(CallOut::CounterValue);
  }
  void StepUpToLimit(std::int16_t limit) override {
    number_.StepUpToLimit(limit);
    calls_.Happen(CallOut::CounterValue);
  }

 private:
  CallOuts& calls_;
  companion::CounterValue number_;
  Ender ender_;
};

class HostSite final : public HeadlessSite {
 public:
  explicit HostSite(CallOuts& calls) : calls_(calls) {}

  void PropertyChanged(std::string_view name) override {
    HeadlessSite::PropertyChanged(name);
    calls_.Happen(CallOut::Notice);
  }
  /// Counts in the middle of the wait.
  void RunUntil(const std::function<bool()>& done) override {
    After(1, [&calls = calls_] { calls.Happen(CallOut::Wait); });
    HeadlessSite::RunUntil(done);
  }
  /// Counts before the menu opens; what a script does while it is open is the script's.
  void PopUp(Menu& menu, Widget& within, float x, float y) override {
    const Weak<HeadlessSite> self(this);
    const Weak<Menu> kept(menu);
    calls_.Happen(CallOut::PopUp);
    if (self && kept) HeadlessSite::PopUp(menu, within, x, y);
  }
  void Beep() override {
    HeadlessSite::Beep();
    calls_.Happen(CallOut::Beep);
  }
  void SetFocus(Widget* widget) override {
    const Weak<HeadlessSite> self(this);
    const Weak<Widget> kept(widget);
    calls_.Happen(CallOut::Focus);
    if (self && (!widget || kept)) HeadlessSite::SetFocus(widget);
  }
  void Unhandled(const Error& error) override {
    HeadlessSite::Unhandled(error);
    calls_.Happen(CallOut::Unhandled);
  }

 private:
  CallOuts& calls_;
};

}  // namespace tactix::tests
