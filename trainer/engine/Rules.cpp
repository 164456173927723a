#include "trainer/engine/Rules.h"

#include <array>
#include <stdexcept>
#include <string>

#include "trainer/engine/Shoe.h"

namespace trainer::engine {

void Validate(const Rules& rules) {
  struct Field {
    const char* name;
    int value;
    int minimum;
    int maximum;
  };
  const std::array fields = {
      Field{"decks", rules.decks, Shoe::MinimumDecks, Shoe::MaximumDecks},
      Field{"maximumHands", rules.maximumHands, 1, 4},
      Field{"blackjackPays.numerator", rules.blackjackPays.numerator, 1, 100},
      Field{"blackjackPays.denominator", rules.blackjackPays.denominator, 1, 100},
  };
  for (const Field& field : fields) {
    if (field.value >= field.minimum && field.value <= field.maximum) continue;
    throw std::invalid_argument(std::string(field.name) + " must be " + std::to_string(field.minimum) + " to " +
                                std::to_string(field.maximum) + ", not " + std::to_string(field.value));
  }
}

}  // namespace trainer::engine
