// A window that comes back as it was left: where its toolbar is docked and which buttons that shows, the scores, and
// the cards in two stacks. The first argument names the file of the settings; without one they are the user's own.
// Afterwards --report says what the window shows and closes it; --play changes everything first.

#include <QApplication>
#include <QLabel>
#include <QMainWindow>
#include <QSettings>
#include <QTimer>
#include <QToolBar>
#include <QVBoxLayout>

#include "tactix-qt/DecisionBAR2.h"
#include "tactix-qt/DecisionBarDock.h"
#include "tactix-qt/DecisionRegister.h"
#include "tactix-qt/QSettingsBag.h"
#include "tactix-qt/SpinCounter.h"
#include "tactix/companion/Companion.h"

using tactix::qt::ControlWidget;
using tactix::qt::DecisionBAR2;
using tactix::qt::DecisionRegister;
using tactix::qt::SpinCounter;

namespace {

class SavedWindow : public QMainWindow {
 public:
  explicit SavedWindow(QSettings& settings) : settings_(settings) {
    auto* const desk = new QWidget;
    auto* const column = new QVBoxLayout(desk);
    for (ControlWidget* each : {static_cast<ControlWidget*>(scores_), static_cast<ControlWidget*>(aces_),
                                static_cast<ControlWidget*>(tens_)}) {
      column->addWidget(each);
    }
    setCentralWidget(desk);
    dock_ = tactix::qt::DockIn(*this, *bar_);
    bar_->setHitcardButtonsVisibility(DecisionBAR2::ButtonsArevisible);
    if (settings_.contains("window")) Restore();
  }

  /// What a user may do.
  void Play() {
    bar_->setAlignment(DecisionBAR2::DBAlignLeft);
    bar_->setHitcardButtonsVisibility(DecisionBAR2::ButtonsAreInvisible);
    scores_->DisplayTheDrillResults(12, 9);
    aces_->setCounterValue(3);
    tens_->setCounterValue(14);
  }

  void Report() const {
    const auto text = [](const QWidget& in, const char* label) { return in.findChild<QLabel*>(label)->text(); };
    qInfo("Toolbar in area %d, hit-card buttons %s. Aces %s, tens %s. %d of %d correct.",
          static_cast<int>(toolBarArea(dock_)),
          bar_->control().Children.DecisionToolBar.Button("HitcardHigh").Visible() ? "shown" : "hidden",
          qPrintable(text(*aces_, "labelCardsInStack")), qPrintable(text(*tens_, "labelCardsInStack")),
          scores_->NumberOfCorrectDecisions(), scores_->NumberOfDecisions());
  }

 protected:
  void closeEvent(QCloseEvent* event) override {
    Save();
    QMainWindow::closeEvent(event);
  }

 private:
  void Save() {
    WithBags([](ControlWidget& control, tactix::PropertyBag& bag) { control.writeProperties(bag); });
    settings_.setValue("window", saveState());
    settings_.setValue("correct", scores_->NumberOfCorrectDecisions());
    settings_.setValue("decisions", scores_->NumberOfDecisions());
  }

  void Restore() {
    WithBags([](ControlWidget& control, tactix::PropertyBag& bag) { control.readProperties(bag); });
    // The lines for what the controls do not restore themselves.
    restoreState(settings_.value("window").toByteArray());
    bar_->setHitcardButtonsVisibility(bar_->HitcardButtonsVisibility());
    scores_->DisplayTheDrillResults(settings_.value("decisions").toInt(), settings_.value("correct").toInt());
    for (SpinCounter* each : {aces_, tens_}) each->setCounterValue(each->CounterValue());
  }

  template <class Action>
  void WithBags(const Action& action) {
    const auto with = [&](ControlWidget& control, const char* group) {
      tactix::qt::QSettingsBag bag(settings_, group);
      action(control, bag);
    };
    with(*bar_, "toolbar");
    with(*scores_, "scores");
    with(*aces_, "aces");
    with(*tens_, "tens");
  }

  QSettings& settings_;
  DecisionBAR2* bar_ = new DecisionBAR2;
  DecisionRegister* scores_ = new DecisionRegister;
  SpinCounter* aces_ = new SpinCounter;
  SpinCounter* tens_ = new SpinCounter;
  QToolBar* dock_ = nullptr;
};

}  // namespace

int main(int argc, char** argv) {
  QApplication application(argc, argv);
  tactix::companion::Install();
  const QStringList arguments = QApplication::arguments();
  QSettings settings =
      arguments.size() > 1 ? QSettings(arguments[1], QSettings::IniFormat) : QSettings("Tactix", "SavedWindow");
  SavedWindow window(settings);
  window.show();
  if (const QString then = arguments.value(2); !then.isEmpty()) {
    QTimer::singleShot(0, &window, [&window, then] {
      if (then == "--play") window.Play();
      window.Report();
      window.close();
    });
  }
  return QApplication::exec();
}
