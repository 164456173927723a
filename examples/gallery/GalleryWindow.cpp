#include "examples/gallery/GalleryWindow.h"

#include <QApplication>
#include <QLabel>
#include <QSplitter>
#include <QTimer>
#include <QVBoxLayout>

#include "tools/ControlScenes.h"

namespace tactix::gallery {

namespace {

constexpr int LogLines = 1000;
constexpr QSize StartSize(1240, 760);

/// A part of the window under its heading, which has the letter that leads there.
QWidget* Headed(const QString& heading, QWidget* part) {
  auto* const frame = new QWidget;
  auto* const layout = new QVBoxLayout(frame);
  auto* const label = new QLabel(heading);
  label->setBuddy(part);
  layout->addWidget(label);
  layout->addWidget(part);
  QString name = heading;
  part->setAccessibleName(name.remove(QLatin1Char('&')));
  return frame;
}

QString Readable(const char* sceneName) {
  QString name = QString::fromLatin1(sceneName).replace(QLatin1Char('-'), QLatin1Char(' '));
  name[0] = name[0].toUpper();
  return name;
}

}  // namespace

GalleryWindow::GalleryWindow(QWidget* parent)
    : QMainWindow(parent),
      scenes_(new QListWidget),
      stage_(new QScrollArea),
      properties_(new QScrollArea),
      log_(new QPlainTextEdit) {
  scenes_->setObjectName(QStringLiteral("scenes"));
  log_->setObjectName(QStringLiteral("log"));
  log_->setReadOnly(true);
  log_->setTabChangesFocus(true);
  log_->setMaximumBlockCount(LogLines);
  stage_->setAlignment(Qt::AlignCenter);
  properties_->setWidgetResizable(true);
  for (const tools::Scene& scene : tools::ControlScenes()) scenes_->addItem(Readable(scene.name));
  scenes_->setMinimumWidth(scenes_->sizeHintForColumn(0) + 2 * scenes_->frameWidth() + 40);

  auto* const middle = new QSplitter(Qt::Vertical);
  middle->addWidget(Headed(tr("The &control"), stage_));
  middle->addWidget(Headed(tr("Its &events"), log_));
  middle->setStretchFactor(0, 3);
  middle->setStretchFactor(1, 1);
  auto* const all = new QSplitter;
  all->addWidget(Headed(tr("&Scenes"), scenes_));
  all->addWidget(middle);
  all->addWidget(Headed(tr("Its &properties"), properties_));
  all->setStretchFactor(1, 1);
  all->setSizes({220, 580, 420});
  setCentralWidget(all);
  resize(StartSize);

  connect(scenes_, &QListWidget::currentRowChanged, this, &GalleryWindow::Show);
  scenes_->setCurrentRow(0);
}

GalleryWindow::~GalleryWindow() { Clear(); }

qt::ControlWidget* GalleryWindow::Shown() const { return qobject_cast<qt::ControlWidget*>(stage_->widget()); }

void GalleryWindow::Clear() {
  signals_.reset();
  delete properties_->takeWidget();
  delete stage_->takeWidget();
}

void GalleryWindow::Show(int scene) {
  Clear();
  log_->clear();
  if (scene < 0) return;
  stage_->setWidget(tools::ControlScenes()[static_cast<std::size_t>(scene)].make().release());
  stage_->widget()->show();
  auto* const form = new PropertyForm(*Shown());
  properties_->setWidget(form);
  form->show();
  signals_ = std::make_unique<SignalLog>(*Shown(), [this](const QString& line) { log_->appendPlainText(line); });
  // What an event brings with it is to be seen in the properties, too, once it is over.
  signals_->AfterEach([form] { QTimer::singleShot(0, form, &PropertyForm::Read); });
  setWindowTitle(tr("%1 - Tactix gallery").arg(QLatin1String(Shown()->metaObject()->className())));
}

}  // namespace tactix::gallery
