#include "trainer/screens/ToolBarInput.h"

#include <QApplication>
#include <QEvent>
#include <QGridLayout>
#include <QLabel>
#include <QStringList>
#include <array>

namespace trainer::screens {

namespace {

using tactix::DecisionBARResponseObject;

const QString& Word(std::int32_t code) {
  static const std::array<QString, 5> words = {QString(), QStringLiteral("low"), QStringLiteral("mid"),
                                               QStringLiteral("high"), QStringLiteral("unknown")};
  return words.at(static_cast<std::size_t>(code));
}

QString RecordText(const DecisionBARResponseObject& record) {
  QStringList parts;
  const auto add = [&parts](const QString& what, const QString& word) {
    if (!word.isEmpty()) parts << what + QLatin1Char(' ') + word;
  };
  add(QStringLiteral("hit card"), Word(record.HitCardIs.Value()));
  add(QStringLiteral("hole card"), Word(record.HoleCardIs.Value()));
  add(QStringLiteral("tens ratio"), Word(record.TensRatioIs.Value()));
  if (record.DealerHandIs.Value() != 0) {
    const bool weak = record.DealerHandIs == tactix::DecisionBARDealerHandPossibilities::DBDealerHandIsWeak;
    add(QStringLiteral("dealer"), weak ? QStringLiteral("weak") : QStringLiteral("strong"));
  }
  return parts.isEmpty() ? QStringLiteral("No predictions") : QStringLiteral("Predicted: ") + parts.join(", ");
}

}  // namespace

ToolBarInput::ToolBarInput(QWidget* parent)
    : DecisionInput(parent),
      prompt_(new QLabel(this)),
      record_(new QLabel(this)),
      legend_(new tactix::qt::HitStandLegend(this)),
      bar_(new tactix::qt::DecisionBAR2(this)) {
  auto* const grid = new QGridLayout(this);
  grid->setContentsMargins(0, 0, 0, 0);
  grid->addWidget(legend_, 0, 0, 3, 1);
  grid->addWidget(prompt_, 0, 1);
  grid->addWidget(bar_, 1, 1);
  grid->addWidget(record_, 2, 1);
  grid->setColumnStretch(1, 1);
  bar_->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
  legend_->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
  legend_->hide();
  prompt_->setObjectName(QStringLiteral("ToolBarPrompt"));
  prompt_->setAlignment(Qt::AlignCenter);
  record_->setObjectName(QStringLiteral("ToolBarRecord"));
  record_->setAlignment(Qt::AlignCenter);
  setFocusProxy(bar_);

  bar_->ResetPredictionButtons(true);
  ShowRecord();
  Connect();
  // The toolbar tells predictions only when it is asked, so it is asked after each mouse or key event.
  QApplication::instance()->installEventFilter(this);
}

void ToolBarInput::Connect() {
  using tactix::qt::DecisionBAR2;
  using tactix::qt::HitStandLegend;
  const auto plays = [this](auto* sender, auto signal, engine::Decision decision) {
    connect(sender, signal, this, [this, decision] { Q_EMIT Played(decision); });
  };
  plays(bar_, &DecisionBAR2::HitButtonWasPressed, engine::Decision::Hit);
  plays(bar_, &DecisionBAR2::StandButtonWasPressed, engine::Decision::Stand);
  plays(bar_, &DecisionBAR2::SplitButtonWasPressed, engine::Decision::Split);
  plays(bar_, &DecisionBAR2::DoubleButtonWasPressed, engine::Decision::Double);
  plays(bar_, &DecisionBAR2::SurrenderButtonWasPressed, engine::Decision::Surrender);
  plays(legend_, &HitStandLegend::HitWasSelected, engine::Decision::Hit);
  plays(legend_, &HitStandLegend::StandWasSelected, engine::Decision::Stand);
  plays(legend_, &HitStandLegend::SplitWasSelected, engine::Decision::Split);
  plays(legend_, &HitStandLegend::DoubleWasSelected, engine::Decision::Double);
  plays(legend_, &HitStandLegend::SurrenderWasSelected, engine::Decision::Surrender);
  connect(bar_, &DecisionBAR2::StatsButtonWasPressed, this, &DecisionInput::StatisticsAsked);
  connect(bar_, &DecisionBAR2::HereIsThePlayersPromptMessage, this, [this](const QString& prompt) {
    if (!resting_) prompt_->setText(prompt);
  });
}

void ToolBarInput::ShowLegend(bool shown) {
  legend_->setVisible(shown);
  setFocusProxy(shown ? static_cast<QWidget*>(legend_) : bar_);
}

void ToolBarInput::Ask(const tactix::DecisionBlock& block, int /*turn*/) {
  resting_ = false;
  bar_->SetupTheDecisionBAR(block);
}

void ToolBarInput::Rest() {
  resting_ = true;
  bar_->GetReadyForADecision();
  // An empty block enables every play and advises none.
  bar_->SetupTheDecisionBAR(tactix::DecisionBlock());
  prompt_->clear();
  ShowRecord();
}

Guesses ToolBarInput::CollectGuesses() {
  const DecisionBARResponseObject record = bar_->GiveMeYourResponseData();
  bar_->GetReadyForADecision();
  ShowRecord();
  Guesses guesses;
  guesses.hitCard = static_cast<CardGuess>(record.HitCardIs.Value());
  guesses.holeCard = static_cast<CardGuess>(record.HoleCardIs.Value());
  using Ratio = tactix::DecisionBARTensRatioPossibilities;
  if (record.TensRatioIs.Value() != 0) guesses.tensAreHigh = record.TensRatioIs == Ratio::DBTensRatioIsHigh;
  using Dealer = tactix::DecisionBARDealerHandPossibilities;
  if (record.DealerHandIs.Value() != 0) guesses.dealerIsStrong = record.DealerHandIs == Dealer::DBDealerHandIsStrong;
  return guesses;
}

bool ToolBarInput::eventFilter(QObject* object, QEvent* event) {
  const QEvent::Type type = event->type();
  if (isVisible() && (type == QEvent::MouseButtonRelease || type == QEvent::KeyPress || type == QEvent::KeyRelease)) {
    QMetaObject::invokeMethod(
        this, [this] { ShowRecord(); }, Qt::QueuedConnection);
  }
  return DecisionInput::eventFilter(object, event);
}

void ToolBarInput::ShowRecord() { record_->setText(RecordText(bar_->GiveMeYourResponseData())); }

}  // namespace trainer::screens
