#pragma once

#include <QString>

namespace tactix::tests {

/// Announces that the running test provokes a Qt warning that contains the text, once. An unannounced warning fails the
/// test, and so does an announced one that doesn't come.
void ExpectWarning(const QString& text);

/// Installs both checks; for Main.
void WatchWarnings();

}  // namespace tactix::tests
