#include "trainer/screens/Demo.h"

#include <QApplication>
#include <QDir>
#include <QKeyEvent>
#include <QMenu>
#include <QMouseEvent>
#include <QPixmap>
#include <QTimer>
#include <algorithm>
#include <array>
#include <iomanip>
#include <ostream>
#include <stdexcept>
#include <string>
#include <vector>

#include "trainer/engine/Words.h"

namespace trainer::screens {

namespace {

constexpr int WrongInHundred = 15;
constexpr int AdviceEvery = 9;    // decisions
constexpr int MostAdvice = 5;     // how often it asks: each time takes as long as the button flashes
constexpr int HitCardEvery = 4;   // decisions, if it is a hit
constexpr int HoleCardEvery = 6;  // decisions
constexpr int MenuPause = 10;     // ms between looks for the open menu

struct PlayInput {
  engine::Decision decision;
  Qt::Key key;
  const char* button;
};
constexpr std::array<PlayInput, 5> PlayInputs = {{
    {engine::Decision::Hit, Qt::Key_H, "HitButton"},
    {engine::Decision::Stand, Qt::Key_S, "StandButton"},
    {engine::Decision::Split, Qt::Key_P, "SplitButton"},
    {engine::Decision::Double, Qt::Key_D, "DoubleButton"},
    {engine::Decision::Surrender, Qt::Key_G, "SurrenderButton"},
}};

const PlayInput& InputOf(engine::Decision decision) {
  return *std::find_if(PlayInputs.begin(), PlayInputs.end(),
                       [decision](const PlayInput& input) { return input.decision == decision; });
}

void SendMouse(QWidget& widget, QEvent::Type type, Qt::KeyboardModifiers modifiers) {
  const QPointF at = QRectF(widget.rect()).center();
  const Qt::MouseButtons held = type == QEvent::MouseButtonRelease ? Qt::NoButton : Qt::LeftButton;
  QMouseEvent event(type, at, widget.mapToGlobal(at), Qt::LeftButton, held, modifiers);
  QApplication::sendEvent(&widget, &event);
}

void Click(QWidget& widget, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
  SendMouse(widget, QEvent::MouseButtonPress, modifiers);
  SendMouse(widget, QEvent::MouseButtonRelease, modifiers);
}

/// Sends a key where a player's would go, to whatever has the focus.
void PressKey(QWidget& window, Qt::Key key) {
  QWidget* const focused = window.focusWidget();
  QWidget& widget = focused ? *focused : window;
  const QString text(QChar::fromLatin1(static_cast<char>(key)));
  QKeyEvent press(QEvent::KeyPress, key, Qt::NoModifier, text.toLower());
  QApplication::sendEvent(&widget, &press);
  QKeyEvent release(QEvent::KeyRelease, key, Qt::NoModifier, text.toLower());
  QApplication::sendEvent(&widget, &release);
}

std::string CardNames(const engine::Hand& hand) {
  std::string names;
  for (const engine::Card card : hand.Cards()) names += (names.empty() ? "" : " ") + engine::NameOf(card);
  return names;
}

/// "hard 14" or, with both of its totals, "hard 5 soft 15".
std::string Totals(const engine::Hand& hand) {
  std::string totals = "hard " + std::to_string(hand.HardTotal());
  if (hand.IsSoft()) totals += " soft " + std::to_string(hand.Total());
  return totals;
}

/// Opening a menu waits until it is answered, so the key is sent off before the menu opens.
void AnswerNextMenu(QObject* context, Qt::Key key) {
  QTimer::singleShot(MenuPause, context, [context, key] {
    auto* const menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
    menu ? PressKey(*menu, key) : AnswerNextMenu(context, key);
  });
}

}  // namespace

Demo::Demo(TrainerWindow& window, DemoOptions options, std::ostream& out)
    : window_(window), options_(std::move(options)), out_(out), random_(options_.seed ^ 0x7261636bU) {
  connect(&window_, &TrainerWindow::Judged, this, &Demo::Print);
}

bool Demo::Run() {
  const engine::Session& session = window_.CurrentSession();
  window_.show();
  window_.Deal();
  QApplication::processEvents();
  Snapshot(QStringLiteral("start"));
  while (session.CurrentTally().hands < options_.hands) {
    if (session.IsOver()) {
      PressKey(window_, Qt::Key_H);
    } else {
      PlayOneDecision();
    }
    QApplication::processEvents();
  }
  Snapshot(QStringLiteral("end"));
  const engine::Tally& tally = session.CurrentTally();
  out_ << "hands " << tally.hands << ", decisions " << tally.decisions << ", correct " << tally.correct << ", "
       << std::fixed << std::setprecision(1) << tally.CorrectPercent() << " %" << std::endl;
  return picturesWritten_;
}

void Demo::PlayOneDecision() {
  ++decisions_;
  if (decisions_ % HoleCardEvery == 3) PredictTheHoleCard();
  if (decisions_ % AdviceEvery == 2 && decisions_ < AdviceEvery * MostAdvice) AskForAdvice();
  Press(Choose());
}

void Demo::AskForAdvice() {
  QWidget& advised = Find(InputOf(window_.CurrentSession().Advised()).button);
  advised.installEventFilter(this);
  Click(Find("cmdAdviceButton"));
  advised.removeEventFilter(this);
  Snapshot(QStringLiteral("advice"));
}

bool Demo::eventFilter(QObject* object, QEvent* event) {
  if (event->type() == QEvent::Hide) {
    // Later: the window is still busy with hiding it.
    QMetaObject::invokeMethod(
        this, [this] { Snapshot(QStringLiteral("flash")); }, Qt::QueuedConnection);
  }
  return QObject::eventFilter(object, event);
}

void Demo::PredictTheHoleCard() {
  AnswerNextMenu(this, random_.Below(2) == 0 ? Qt::Key_H : Qt::Key_L);
  Click(Find("cmdHoleCard"));
  Snapshot(QStringLiteral("prediction"));
}

engine::Decision Demo::Choose() {
  const engine::Session& session = window_.CurrentSession();
  const engine::Decision advised = session.Advised();
  if (random_.Below(100) >= WrongInHundred) return advised;
  const engine::LegalPlays legal = session.CurrentRound().Legal();
  // Whenever it errs with a pair, it splits it.
  if (advised != engine::Decision::Split && legal.Allows(engine::Decision::Split)) return engine::Decision::Split;
  std::vector<engine::Decision> others;
  for (const PlayInput& input : PlayInputs) {
    if (input.decision != advised && legal.Allows(input.decision)) others.push_back(input.decision);
  }
  return others.empty() ? advised : others[random_.Below(others.size())];
}

void Demo::Press(engine::Decision decision) {
  const PlayInput& input = InputOf(decision);
  const bool predicts = decision == engine::Decision::Hit && decisions_ % HitCardEvery == 0;
  if (predicts || decisions_ % 2 == 0) {
    Click(Find(input.button), predicts ? Qt::ShiftModifier : Qt::NoModifier);
  } else {
    PressKey(window_, input.key);
  }
}

void Demo::Print(const DecisionRecord& record) {
  const engine::Judgement& judgement = record.judgement;
  out_ << "hand " << record.round;
  if (record.splitHand != 0) out_ << '.' << record.splitHand;
  out_ << ": " << CardNames(record.cards) << ", " << Totals(record.cards) << ", against "
       << engine::WordFor(record.upCard) << ", advised " << engine::WordFor(judgement.advised) << ", chosen "
       << engine::WordFor(judgement.chosen) << ", " << (judgement.IsRight() ? "right" : "wrong") << std::endl;
  QApplication::processEvents();
  if (judgement.chosen == engine::Decision::Split) {
    Snapshot(QStringLiteral("split"));
  } else if (!judgement.IsRight()) {
    Snapshot(QStringLiteral("wrong"));
  }
  if (window_.CurrentSession().IsOver()) {
    Snapshot(record.splitHand == 0 ? QStringLiteral("result") : QStringLiteral("split-result"));
  }
}

void Demo::Snapshot(const QString& moment) {
  if (options_.snapshotFolder.isEmpty() || taken_.contains(moment)) return;
  taken_.append(moment);
  const QString name = QStringLiteral("%1-%2.png").arg(++pictures_, 2, 10, QLatin1Char('0')).arg(moment);
  if (!window_.grab().save(QDir(options_.snapshotFolder).filePath(name))) picturesWritten_ = false;
}

QWidget& Demo::Find(const char* name) const {
  if (auto* const widget = window_.findChild<QWidget*>(QLatin1String(name))) return *widget;
  throw std::logic_error(std::string("the window has no ") + name);
}

}  // namespace trainer::screens
