#include <cstdio>

#include "tactix/companion/Companion.h"
#include "tactix/decision/Decision.h"
#include "tactix/platform/Error.h"
#include "tactix/platform/headless/HeadlessSite.h"

// Plays one hand and provokes one error: calls, events and exceptions all have to get across the library's border.
int main() {
  tactix::HeadlessSite site;
  tactix::Decision box(site);
  box.InitProperties();

  int hits = 0;
  box.Events.PlayerHits.Connect([&hits] { ++hits; });
  box.SetupTheDecisionBox(tactix::DecisionBlock());
  box.Children.HitButton.Click();

  std::int32_t code = 0;
  try {
    box.SetupTheDecisionBox(tactix::Variant());
  } catch (const tactix::Error& error) {
    code = error.Code();
  }

  const bool embedded = !tactix::companion::DefaultStrategies().empty();
  std::printf("%d hit, error %d, %s strategies\n", hits, static_cast<int>(code), embedded ? "embedded" : "no");
  return hits == 1 && code == tactix::Error::ObjectRequired && embedded ? 0 : 1;
}
