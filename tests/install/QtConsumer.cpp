#include <QApplication>
#include <cstdio>

#include "tactix-qt/Decision.h"

// Connects to a signal by its address, which fails at run time where the front end hides its meta objects.
int main(int argc, char** argv) {
  QApplication application(argc, argv);
  tactix::qt::Decision box;

  int hits = 0;
  QObject::connect(&box, &tactix::qt::Decision::PlayerHits, [&hits] { ++hits; });
  box.SetupTheDecisionBox(tactix::DecisionBlock());
  box.show();
  QApplication::processEvents();
  box.control().Children.HitButton.Click();

  std::printf("%d hit\n", hits);
  return hits == 1 ? 0 : 1;
}
