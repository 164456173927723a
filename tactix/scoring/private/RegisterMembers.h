#pragma once

#include "tactix/platform/MethodTable.h"
#include "tactix/platform/PropertyTable.h"
#include "tactix/shared/EnumerationNames.h"

namespace tactix {

// The late-bound members, which are the same for both registers.

template <class Register>
PropertyTable RegisterProperties() {
  return PropertyTable()
      .Property("NumberOfDecisions", &Register::NumberOfDecisions, &Register::NumberOfDecisions)
      .Property("NumberOfCorrectDecisions", &Register::NumberOfCorrectDecisions, &Register::NumberOfCorrectDecisions)
      .Property("NumberOfBreakDecisions", &Register::NumberOfBreakDecisions, &Register::NumberOfBreakDecisions)
      .Property("TypeOfDecisionRegister", &Register::TypeOfDecisionRegister, &Register::TypeOfDecisionRegister)
      .SetOnly("AfterAdvice", &Register::AfterAdvice);
}

template <class Register>
MethodTable RegisterMethods() {
  return MethodTable()
      .Method("DisplayTheDrillResults", &Register::DisplayTheDrillResults)
      .Method("ResetDecisionData", &Register::ResetDecisionData)
      .Method("SetupStatisticsBox", &Register::SetupStatisticsBox);
}

}  // namespace tactix
