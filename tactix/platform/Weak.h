#pragma once

#include <utility>

namespace tactix {

class Trackable;

/// A watch on a Trackable, which clears it when it is destroyed. Never allocates.
class Tracker {
 public:
  Tracker() = default;
  explicit Tracker(const Trackable* target) { Watch(target); }
  Tracker(const Tracker& other) { Watch(other.target_); }
  Tracker& operator=(const Tracker& other) {
    if (this != &other) Watch(other.target_);
    return *this;
  }
  ~Tracker() { Watch(nullptr); }

  /// True as long as the target lives; false for a tracker without a target.
  bool Alive() const { return target_ != nullptr; }

 private:
  friend class Trackable;
  inline void Watch(const Trackable* target);

  const Trackable* target_ = nullptr;
  Tracker* previous_ = nullptr;
  Tracker* next_ = nullptr;
};

/// Base of objects that may be destroyed by a handler which they are calling: controls, widgets, sites.
class Trackable {
 public:
  Trackable() = default;
  Trackable(const Trackable&) = delete;
  Trackable& operator=(const Trackable&) = delete;

 protected:
  ~Trackable() { MarkAsGone(); }
  /// From now on weak pointers read null. For a derived class whose destructor runs foreign code before this class's
  /// own.
  void MarkAsGone() {
    while (first_) first_->Watch(nullptr);
  }

 private:
  friend class Tracker;
  mutable Tracker* first_ = nullptr;
};

inline void Tracker::Watch(const Trackable* target) {
  if (target == target_) return;
  if (target_) {
    (previous_ ? previous_->next_ : target_->first_) = next_;
    if (next_) next_->previous_ = previous_;
    previous_ = next_ = nullptr;
  }
  target_ = target;
  if (target_) {
    next_ = target_->first_;
    if (next_) next_->previous_ = this;
    target_->first_ = this;
  }
}

/// A pointer that does not keep its object alive and reads null once it is gone.
template <class T>
class Weak {
 public:
  Weak() = default;
  explicit Weak(T* object) : tracker_(object), object_(object) {}
  explicit Weak(T& object) : Weak(&object) {}

  T* Get() const { return tracker_.Alive() ? object_ : nullptr; }
  explicit operator bool() const { return tracker_.Alive(); }
  T* operator->() const { return Get(); }

 private:
  Tracker tracker_;
  T* object_ = nullptr;
};

}  // namespace tactix
