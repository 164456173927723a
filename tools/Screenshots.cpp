// Draws the pictures of the documentation: tactix-screenshots light|dark FOLDER [NAME]...
// The scale is Qt's: QT_SCALE_FACTOR=2 for pictures at 200 %.

#include <QApplication>
#include <QDir>
#include <QFont>
#include <QPainter>
#include <QPalette>
#include <QPixmap>
#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <iostream>

#include "tactix/companion/Companion.h"
#include "tools/Scenes.h"

namespace {

constexpr int UsageError = 2;
constexpr int SmallestFile = 0;  // a quality of 0 makes QPixmap::save compress most

QPalette DarkPalette() {
  struct Row {
    QPalette::ColorRole role;
    QRgb active;
    QRgb disabled;
  };
  constexpr QRgb Text = 0xffe6e6e6;
  constexpr QRgb Faint = 0xff8c8c8c;
  constexpr Row Rows[] = {
      {QPalette::Window, 0xff2b2b2b, 0xff2b2b2b},
      {QPalette::WindowText, Text, Faint},
      {QPalette::Base, 0xff1e1e1e, 0xff262626},
      {QPalette::AlternateBase, 0xff2b2b2b, 0xff2b2b2b},
      {QPalette::ToolTipBase, 0xff3c3c3c, 0xff3c3c3c},
      {QPalette::ToolTipText, Text, Text},
      {QPalette::PlaceholderText, 0xffa0a0a0, Faint},
      {QPalette::Text, Text, Faint},
      {QPalette::Button, 0xff3c3c3c, 0xff333333},
      {QPalette::ButtonText, Text, Faint},
      {QPalette::BrightText, 0xffff6060, 0xffff6060},
      {QPalette::Light, 0xff555555, 0xff555555},
      {QPalette::Midlight, 0xff474747, 0xff474747},
      {QPalette::Mid, 0xff252525, 0xff252525},
      {QPalette::Dark, 0xff181818, 0xff181818},
      {QPalette::Shadow, 0xff000000, 0xff000000},
      {QPalette::Highlight, 0xff2a82da, 0xff505050},
      {QPalette::HighlightedText, 0xffffffff, Faint},
      {QPalette::Link, 0xff5aa9ff, Faint},
  };
  QPalette palette;
  for (const Row& row : Rows) {
    palette.setColor(QPalette::All, row.role, QColor(row.active));
    palette.setColor(QPalette::Disabled, row.role, QColor(row.disabled));
  }
  return palette;
}

/// The widget, and the list or menu that is open over it.
QPixmap PictureOf(QWidget& widget) {
  const QWidget* const popup = QApplication::activePopupWidget();
  if (!popup) return widget.grab();
  const QPoint place = popup->mapToGlobal(QPoint()) - widget.mapToGlobal(QPoint());
  const QRect all = widget.rect().united(QRect(place, popup->size()));
  QPixmap picture(all.size() * widget.devicePixelRatio());
  picture.setDevicePixelRatio(widget.devicePixelRatio());
  picture.fill(Qt::transparent);
  QPainter painter(&picture);
  painter.drawPixmap(-all.topLeft(), widget.grab());
  painter.drawPixmap(place - all.topLeft(), const_cast<QWidget*>(popup)->grab());
  return picture;
}

}  // namespace

int main(int argc, char** argv) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  QApplication application(argc, argv);
  QStringList arguments = QApplication::arguments().mid(1);
  const QString theme = arguments.value(0);
  if (arguments.size() < 2 || (theme != QLatin1String("light") && theme != QLatin1String("dark"))) {
    std::cerr << "usage: tactix-screenshots light|dark FOLDER [NAME]..." << std::endl;
    return UsageError;
  }
  const QDir folder(arguments.at(1));
  const QStringList wanted = arguments.mid(2);

  // The same on every machine.
  QApplication::setStyle(QStringLiteral("Fusion"));
  QApplication::setFont(QFont(QStringLiteral("Liberation Sans"), 10));
  if (theme == QLatin1String("dark")) QApplication::setPalette(DarkPalette());
  tactix::companion::Install();

  for (const tactix::tools::Scene& scene : tactix::tools::Scenes()) {
    if (!wanted.isEmpty() && !wanted.contains(QLatin1String(scene.name))) continue;
    const std::unique_ptr<QWidget> widget = scene.make();
    widget->show();
    QApplication::processEvents();
    const QPixmap picture = PictureOf(*widget);
    const QString file = QStringLiteral("%1-%2-%3x.png")
                             .arg(QLatin1String(scene.name), theme)
                             .arg(std::lround(picture.devicePixelRatio()));
    if (!picture.save(folder.filePath(file), "PNG", SmallestFile)) {
      std::cerr << "cannot write " << folder.filePath(file).toStdString() << std::endl;
      return EXIT_FAILURE;
    }
  }
  return EXIT_SUCCESS;
}
