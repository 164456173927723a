#pragma once

#include <QObject>
#include <QString>
#include <QStringList>
#include <cstdint>
#include <iosfwd>

#include "trainer/engine/Random.h"
#include "trainer/screens/TrainerWindow.h"

namespace trainer::screens {

struct DemoOptions {
  int hands = 20;
  std::uint64_t seed = 1;
  /// Where pictures of the window go; empty for none. The folder must exist.
  QString snapshotFolder;
};

/// Plays hands through a trainer window with key and mouse events on its widgets, mostly right and sometimes wrong; it
/// asks for advice and predicts cards now and then. It prints a line for each decision and a closing one;
/// docs/trainer.md says what is in them. The same seed gives the same lines.
class Demo : public QObject {
  Q_OBJECT

 public:
  Demo(TrainerWindow& window, DemoOptions options, std::ostream& out);

  /// False when a picture could not be written.
  bool Run();

 protected:
  bool eventFilter(QObject* object, QEvent* event) override;

 private:
  void PlayOneDecision();
  void AskForAdvice();
  void PredictTheHoleCard();
  [[nodiscard]] engine::Decision Choose();
  void Press(engine::Decision decision);
  void Print(const DecisionRecord& record);
  void Snapshot(const QString& moment);
  QWidget& Find(const char* name) const;

  TrainerWindow& window_;
  DemoOptions options_;
  std::ostream& out_;
  engine::Random random_;
  int decisions_ = 0;
  int pictures_ = 0;
  QStringList taken_;
  bool picturesWritten_ = true;
};

}  // namespace trainer::screens
