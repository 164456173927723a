#pragma once

#include <string>

#include "tests/support/RandomSequence.h"

namespace tactix::tests {

/// The descriptions that strategies have, good ones and all kinds of bad ones.
std::string AnyPlayingDescription(SequenceRandom& random);
std::string AnyBettingDescription(SequenceRandom& random);
std::string AnyCountDescription(SequenceRandom& random);

/// A real description of any of the three kinds with up to four places changed: characters, fields and separators put
/// in, taken out, repeated or replaced.
std::string MutatedDescription(SequenceRandom& random);

}  // namespace tactix::tests
