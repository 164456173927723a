#include <QApplication>
#include <cstdio>

#include "tactix-qt/Decision.h"
#include "tactix-qt/PictureIcon.h"

// Connects to a signal by its address, which fails at run time where the front end hides its meta objects, and asks for
// a picture, which a static library may lose.
int main(int argc, char** argv) {
  QApplication application(argc, argv);
  tactix::qt::Decision box;

  int hits = 0;
  QObject::connect(&box, &tactix::qt::Decision::PlayerHits, [&hits] { ++hits; });
  box.SetupTheDecisionBox(tactix::DecisionBlock());
  box.show();
  QApplication::processEvents();
  box.control().Children.HitButton.Click();

  const bool hasPictures = !tactix::qt::PictureIcon("hit", box.palette()).isNull();
  std::printf("%d hit, %s pictures\n", hits, hasPictures ? "with" : "without");
  return hits == 1 && hasPictures ? 0 : 1;
}
