#pragma once

#include <cstdint>
#include <functional>

#include "tactix/platform/Export.h"
#include "tactix/platform/TableObject.h"

namespace tactix::companion {

/// The application's edition, which decision controls ask for by name: property `thisKelvoEdition`, method `Show`.
class TACTIX_EXPORT Edition : public TableObject {
 public:
  /// What it writes to the flag is handed back to the caller of Show.
  using ShowFunction = std::function<void(std::int16_t& modalFlag)>;

  Edition() = default;
  explicit Edition(std::int16_t edition) : thisKelvoEdition_(edition) {}

  /// The edition's number, 0 by default. Nothing in the library depends on it.
  std::int16_t thisKelvoEdition() const { return thisKelvoEdition_; }
  void thisKelvoEdition(std::int16_t edition) { thisKelvoEdition_ = edition; }

  /// What Show does; nothing by default.
  void WhenShown(ShowFunction show);
  /// Shows what the host has for it: an About box, say. The meaning of the flag is the host's.
  void Show(std::int16_t& modalFlag);

 protected:
  const ObjectProperties& Properties() const override;
  const ObjectMethods& Methods() const override;

 private:
  std::int16_t thisKelvoEdition_ = 0;
  ShowFunction show_;
};

}  // namespace tactix::companion
