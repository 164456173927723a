#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "tactix/platform/Event.h"
#include "tactix/platform/Export.h"
#include "tactix/platform/Weak.h"

namespace tactix {

class Site;

/// An entry of a menu, with sub-entries if it opens a menu of its own. The caption "-" makes a separator.
class TACTIX_EXPORT MenuEntry : public Trackable {
 public:
  MenuEntry() = default;
  explicit MenuEntry(std::string_view caption) : caption_(caption) {}
  virtual ~MenuEntry() = default;

  const std::string& Caption() const { return caption_; }
  void Caption(std::string_view caption) { caption_.assign(caption); }
  bool IsSeparator() const { return caption_ == "-"; }
  /// False by default. Choosing an entry does not check it: its control does.
  bool Checked() const { return checked_; }
  void Checked(bool checked) { checked_ = checked; }
  /// True by default; a disabled or hidden entry, or one under such an entry, can't be chosen.
  bool Enabled() const { return enabled_; }
  void Enabled(bool enabled) { enabled_ = enabled; }
  bool Visible() const { return visible_; }
  void Visible(bool visible) { visible_ = visible; }
  /// The place in a group of entries that share a handler; 0 by default.
  std::int16_t Index() const { return index_; }
  void Index(std::int16_t index) { index_ = index; }

  void Add(MenuEntry& entry);
  std::span<MenuEntry* const> Entries() const { return entries_; }
  MenuEntry* Parent() const { return parent_; }

  /// The user chooses the entry, which closes the menu. Does nothing while the menu is closed.
  void Choose();

  /// The site on which the menu is open; null while it is closed, and for an entry that is not itself a menu.
  virtual Site* OpenOn() const { return nullptr; }
  virtual void Close() {}

  Event<> Chosen{0, "Click"};

 private:
  std::string caption_;
  std::vector<MenuEntry*> entries_;
  MenuEntry* parent_ = nullptr;
  std::int16_t index_ = 0;
  bool checked_ = false;
  bool enabled_ = true;
  bool visible_ = true;
};

/// A menu that a site can pop up.
class TACTIX_EXPORT Menu final : public MenuEntry {
 public:
  using MenuEntry::MenuEntry;

  /// True from the pop-up on until the menu has closed.
  bool IsOpen() const { return site_ != nullptr; }

  /// For sites.
  void Opened(Site& site) { site_ = &site; }
  void Close() override { site_ = nullptr; }
  Site* OpenOn() const override { return site_; }

 private:
  Site* site_ = nullptr;
};

}  // namespace tactix
