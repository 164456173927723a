#pragma once

#include <QString>
#include <QStringList>
#include <cstdint>
#include <optional>
#include <stdexcept>

#include "trainer/engine/Rules.h"
#include "trainer/screens/Demo.h"

namespace trainer::screens {

/// A command line that can't be understood; what() says why, for the user.
class UsageError : public std::runtime_error {
 public:
  explicit UsageError(const QString& text) : std::runtime_error(text.toStdString()) {}
};

/// What the trainer's command line asks for.
struct CommandLine {
  engine::Rules rules;
  std::uint64_t seed = 0;  ///< a random one unless given
  std::optional<DemoOptions> demo;
  /// Not empty: print this and end.
  QString help;
};

/// Reads the arguments, the program's name first. Needs no application object, so it can be asked before there is a
/// display. Throws UsageError.
[[nodiscard]] CommandLine ParseCommandLine(const QStringList& arguments);

}  // namespace trainer::screens
