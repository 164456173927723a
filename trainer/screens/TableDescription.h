#pragma once

#include <QString>

#include "trainer/screens/TableModel.h"

namespace trainer::screens {

/// "ten of spades".
[[nodiscard]] QString CardInWords(engine::Card card);

/// The whole table in sentences, for a reader who cannot see it. A hidden hole card is not given away.
[[nodiscard]] QString DescribeTable(const TableModel& model);

}  // namespace trainer::screens
