// All controls to look at and to click: what there is, in which states, with which properties and events.

#include <QApplication>

#include "examples/gallery/GalleryWindow.h"
#include "tactix/companion/Companion.h"

int main(int argc, char** argv) {
  QApplication application(argc, argv);
  tactix::companion::Install();
  tactix::gallery::GalleryWindow window;
  window.show();
  return QApplication::exec();
}
