#pragma once

#include <QListWidget>
#include <QMainWindow>
#include <QPlainTextEdit>
#include <QScrollArea>
#include <memory>

#include "examples/gallery/PropertyForm.h"
#include "examples/gallery/SignalLog.h"
#include "tactix-qt/ControlWidget.h"

namespace tactix::gallery {

/// The scenes of the controls at the left, the chosen one in the middle, its properties at the right, and below what
/// its signals say.
class GalleryWindow : public QMainWindow {
  Q_OBJECT

 public:
  explicit GalleryWindow(QWidget* parent = nullptr);
  ~GalleryWindow() override;

  /// The control on show.
  qt::ControlWidget* Shown() const;

 private:
  void Show(int scene);
  void Clear();

  QListWidget* scenes_;
  QScrollArea* stage_;
  QScrollArea* properties_;
  QPlainTextEdit* log_;
  std::unique_ptr<SignalLog> signals_;
};

}  // namespace tactix::gallery
