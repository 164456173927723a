#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <memory>
#include <string_view>
#include <utility>
#include <vector>

#include "tactix/platform/Export.h"

namespace tactix {

namespace detail {

/// The handlers of one event. Shared by the event, its connections and the raises under way, so that each of
/// them may outlive the others; counted by hand because everything runs on one thread.
class TACTIX_EXPORT HandlerList {
 public:
  virtual ~HandlerList() = default;
  virtual void Disconnect(std::uint64_t id) = 0;
  virtual bool IsConnected(std::uint64_t id) const = 0;

  void Acquire() { ++references_; }
  void Release() {
    if (--references_ == 0) delete this;
  }

 private:
  std::size_t references_ = 1;
};

class ListReference {
 public:
  ListReference() = default;
  explicit ListReference(HandlerList* list) : list_(list) {
    if (list_) list_->Acquire();
  }
  ListReference(const ListReference& other) : ListReference(other.list_) {}
  ListReference(ListReference&& other) noexcept : list_(std::exchange(other.list_, nullptr)) {}
  ListReference& operator=(ListReference other) noexcept {
    std::swap(list_, other.list_);
    return *this;
  }
  ~ListReference() {
    if (list_) list_->Release();
  }
  HandlerList* Get() const { return list_; }

 private:
  HandlerList* list_ = nullptr;
};

}  // namespace detail

/// What Event::Connect returns. Copyable; dropping it leaves the handler connected.
class Connection {
 public:
  Connection() = default;
  Connection(detail::HandlerList* list, std::uint64_t id) : list_(list), id_(id) {}

  /// Disconnects the handler. Does nothing if it is disconnected already or the event is gone. A handler may disconnect
  /// itself.
  void Disconnect() {
    // Disconnecting destroys the handler, and that may destroy the owner of this connection: list_ is not touched after
    // it.
    const detail::ListReference list = std::exchange(list_, {});
    if (list.Get()) list.Get()->Disconnect(id_);
  }
  bool IsConnected() const { return list_.Get() && list_.Get()->IsConnected(id_); }

 private:
  detail::ListReference list_;
  std::uint64_t id_ = 0;
};

/// A connection that disconnects its handler when it goes out of scope.
class ScopedConnection {
 public:
  ScopedConnection() = default;
  ScopedConnection(Connection connection) : connection_(std::move(connection)) {}
  ScopedConnection(ScopedConnection&& other) noexcept : connection_(std::exchange(other.connection_, {})) {}
  ScopedConnection& operator=(ScopedConnection&& other) noexcept {
    if (this != &other) {
      connection_.Disconnect();
      connection_ = std::exchange(other.connection_, {});
    }
    return *this;
  }
  ~ScopedConnection() { connection_.Disconnect(); }

  bool IsConnected() const { return connection_.IsConnected(); }

 private:
  Connection connection_;
};

/// A numbered, named event. Handlers run in order of connection. A handler may connect (the new one runs from the next
/// raise on), disconnect, raise again, or destroy the event together with the control that owns it: the handlers after
/// it are then not run. An error that a handler throws ends the raise and reaches the caller of Raise.
template <class... Args>
class Event {
 public:
  using Handler = std::function<void(Args...)>;

  constexpr Event(std::int32_t number, const char* name) : number_(number), name_(name) {}
  Event(const Event&) = delete;
  Event& operator=(const Event&) = delete;
  ~Event() {
    if (!list_) return;
    list_->EventIsGone();
    list_->Release();
  }

  /// The number under which hosts know the event; 0 for notifications of child widgets.
  std::int32_t Number() const { return number_; }
  std::string_view Name() const { return name_; }

  Connection Connect(Handler handler) {
    if (!list_) list_ = new List;
    return Connection(list_, list_->Add(std::move(handler)));
  }

  bool HasHandlers() const { return list_ && list_->IsHeard(); }

  /// For the control that owns the event. Check afterwards that the control still exists.
  void Raise(Args... args) {
    if (!list_) return;
    typename List::Run run(*list_);
    for (std::size_t i = 0, count = run.Count(); i < count && run.Goes(); ++i) run.Call(i, args...);
  }

 private:
  class List final : public detail::HandlerList {
   public:
    std::uint64_t Add(Handler handler) {
      entries_.push_back(std::make_unique<Entry>(Entry{std::move(handler), ++lastId_}));
      return lastId_;
    }
    void Disconnect(std::uint64_t id) override {
      for (auto& entry : entries_) {
        if (entry->id != id) continue;
        entry->id = 0;
        Sweep();
        return;
      }
    }
    bool IsConnected(std::uint64_t id) const override {
      if (gone_) return false;
      for (const auto& entry : entries_) {
        if (entry->id == id) return true;
      }
      return false;
    }
    bool IsHeard() const {
      for (const auto& entry : entries_) {
        if (entry->id != 0) return true;
      }
      return false;
    }
    void EventIsGone() {
      gone_ = true;
      if (depth_ == 0) DropAll();
    }

    /// One raise under way; keeps the list, and so the handler that is running, until it has returned.
    class Run {
     public:
      explicit Run(List& list) : list_(list) {
        list_.Acquire();
        ++list_.depth_;
      }
      Run(const Run&) = delete;
      Run& operator=(const Run&) = delete;
      ~Run() {
        --list_.depth_;
        if (list_.gone_ && list_.depth_ == 0) list_.DropAll();
        if (list_.swept_) list_.Sweep();
        list_.Release();
      }
      std::size_t Count() const { return list_.entries_.size(); }
      bool Goes() const { return !list_.gone_; }
      void Call(std::size_t index, Args&... args) {
        Entry& entry = *list_.entries_[index];
        if (entry.id != 0) entry.handler(args...);
      }

     private:
      List& list_;
    };

   private:
    friend class Run;
    struct Entry {
      Handler handler;
      std::uint64_t id;  // 0: disconnected
    };

    // Destroying a handler may run code that uses this list again, so the list is put in order first.
    void DropAll() { const auto dead = std::exchange(entries_, {}); }
    void Sweep() {
      swept_ = depth_ != 0;
      if (swept_) return;
      std::vector<std::unique_ptr<Entry>> dead;
      for (auto& entry : entries_) {
        if (entry->id == 0) dead.push_back(std::move(entry));
      }
      std::erase(entries_, nullptr);
    }

    std::vector<std::unique_ptr<Entry>> entries_;
    std::uint64_t lastId_ = 0;
    std::uint32_t depth_ = 0;
    bool gone_ = false;
    bool swept_ = false;
  };

  List* list_ = nullptr;
  std::int32_t number_;
  const char* name_;
};

}  // namespace tactix
