#pragma once

#include <QString>
#include <optional>
#include <string_view>

#include "trainer/engine/Card.h"
#include "trainer/engine/Decision.h"
#include "trainer/engine/Hand.h"
#include "trainer/engine/Session.h"

namespace trainer::screens {

[[nodiscard]] inline QString ToQt(std::string_view text) {
  return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

/// "Stand on 16 against 10", "Split a pair of 8s against 6", "Hit soft 17 against ace".
[[nodiscard]] QString PlayText(engine::Decision play, const engine::Hand& hand, engine::Rank upCard);

/// What was right about a decision on that hand, and what became of predictions: "Right: Hit 12 against 7. Hit card
/// predicted wrong." A strategy is named unless it is empty.
[[nodiscard]] QString JudgementText(const engine::Judgement& judgement, const engine::Hand& hand, engine::Rank upCard,
                                    const QString& strategy);

/// " Hole card predicted right.", or nothing where nothing was predicted.
[[nodiscard]] QString PredictionText(const QString& what, std::optional<bool> right);

/// How a round went that was over with the deal. Empty where there was something to decide.
[[nodiscard]] QString DealtRoundText(const engine::Round& round, const engine::Rules& rules);

/// "Blackjack pays 3 to 2".
[[nodiscard]] QString PayoutText(const engine::Rules& rules);

}  // namespace trainer::screens
