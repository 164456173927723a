#include <QApplication>
#include <QToolButton>
#include <cstdio>

#include "tactix-qt/Decision.h"
#include "tactix-qt/DecisionBAR2.h"

// Connects to a signal by its address, which fails at run time where the front end hides its meta objects, and looks
// for the pictures of a toolbar, which a static library may lose.
int main(int argc, char** argv) {
  QApplication application(argc, argv);
  tactix::qt::Decision box;

  int hits = 0;
  QObject::connect(&box, &tactix::qt::Decision::PlayerHits, [&hits] { ++hits; });
  box.SetupTheDecisionBox(tactix::DecisionBlock());
  box.show();
  QApplication::processEvents();
  box.control().Children.HitButton.Click();

  tactix::qt::DecisionBAR2 bar;
  bar.show();
  QApplication::processEvents();
  bool hasPictures = false;
  for (const QToolButton* button : bar.findChildren<QToolButton*>()) hasPictures |= !button->icon().isNull();
  std::printf("%d hit, %s pictures\n", hits, hasPictures ? "with" : "without");
  return hits == 1 && hasPictures ? 0 : 1;
}
