#pragma once

#include <cstddef>
#include <functional>
#include <memory>
#include <string>
#include <string_view>

#include "tactix/platform/Export.h"
#include "tactix/strategy/StrategyCatalogue.h"

namespace tactix {

/// A text buffer of a fixed width in characters: what is written is padded with blanks, or cut.
class TACTIX_EXPORT DescriptionBuffer {
 public:
  static constexpr std::size_t Width = 1024;

  DescriptionBuffer() : text_(Width, ' ') {}
  void Write(std::string_view text);
  /// Exactly Width characters, UTF-8.
  const std::string& Text() const { return text_; }

 private:
  std::string text_;
  std::size_t filled_ = 0;  // bytes; blanks from there on
};

/// What all strategy lists of the process share.
class TACTIX_EXPORT StrategyListData {
 public:
  using CatalogueFactory = std::function<std::shared_ptr<StrategyCatalogue>()>;

  /// The strategy catalogue, made by the factory on first use and then kept for the life of the process. Fails with 91
  /// when there is none and the factory is empty or makes none. A call on it may set another one, so callers keep the
  /// pointer during the call. The factory may do whatever a catalogue may do.
  static std::shared_ptr<StrategyCatalogue> Catalogue();
  /// Sets the catalogue; null makes the next use create one again.
  static void UseCatalogue(std::shared_ptr<StrategyCatalogue> catalogue);
  /// How the catalogue is created on first use. Empty by default.
  static void CreateCatalogueWith(CatalogueFactory factory);

  static tactix::DescriptionBuffer& Buffer();
};

/// By how much the code of a character is raised in a text that is stored shifted.
inline constexpr char32_t ShiftDistance = 10;
/// How many characters of a shifted text are unshifted; the rest is dropped.
inline constexpr std::size_t ShiftedWidth = 65;

/// Each character's code lowered by 10, up to the end or a character of code 0; at most 65 characters come back. A code
/// below 10 fails with 5.
TACTIX_EXPORT std::string UnshiftStrategyText(std::string_view text);
/// The same without leading and trailing blanks.
TACTIX_EXPORT std::string UnshiftAndTrimStrategyText(std::string_view text);

}  // namespace tactix
