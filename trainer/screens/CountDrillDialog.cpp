#include "trainer/screens/CountDrillDialog.h"

#include <QComboBox>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QTimer>
#include <QVBoxLayout>
#include <cstdlib>

#include "tactix-qt/SpinCounter.h"
#include "trainer/screens/CardView.h"
#include "trainer/screens/Messages.h"

namespace trainer::screens {

namespace {

struct Speed {
  const char* text;
  int milliseconds;
};
constexpr Speed Speeds[] = {
    {"Slow, 2 seconds a card", 2000},
    {"Medium, 1 second a card", 1000},
    {"Fast, half a second a card", 500},
    {"Casino, a quarter of a second", 250},
};
constexpr int FirstSpeed = 1;

constexpr int Lengths[] = {10, 20, 26, 52};
constexpr int FirstLength = 1;

/// What each rank adds: "A -1, 2 0, 3 to 6 +1, 7 to 9 0, 10 -1".
QString PointsText(const engine::CountSystem& system) {
  const auto nameOf = [](int rank) { return rank == 1 ? QStringLiteral("A") : QString::number(rank); };
  const auto pointsOf = [](int halves) {
    const QString sign = halves > 0 ? QStringLiteral("+") : QString();
    return sign + QString::number(halves / static_cast<double>(engine::HalvesPerPoint));
  };
  QStringList parts;
  for (int first = 1; first <= 10;) {
    int last = first;
    while (last < 10 &&
           system.halves[static_cast<std::size_t>(last)] == system.halves[static_cast<std::size_t>(first - 1)])
      ++last;
    const QString ranks = first == last ? nameOf(first) : nameOf(first) + QStringLiteral(" to ") + nameOf(last);
    parts << ranks + QStringLiteral(":") + QChar::Nbsp + pointsOf(system.halves[static_cast<std::size_t>(first - 1)]);
    first = last + 1;
  }
  QString text = parts.join(QStringLiteral(", "));
  if (system.sevens == engine::CountedSevens::Red) text += QStringLiteral(" (only red sevens count)");
  return text;
}

}  // namespace

CountDrillDialog::CountDrillDialog(const engine::CountSystem& system, int decks, std::uint64_t seed, QWidget* parent)
    : QDialog(parent),
      system_(system),
      decks_(decks),
      seed_(seed),
      timer_(new QTimer(this)),
      card_(new CardView(this)),
      progress_(new QLabel(this)),
      result_(new QLabel(this)) {
  setWindowTitle(QStringLiteral("Count Drill"));
  auto* const title =
      new QLabel(QStringLiteral("<b>%1</b><br>%2").arg(ToQt(system.name).toHtmlEscaped(), PointsText(system)), this);
  title->setWordWrap(true);
  title->setAlignment(Qt::AlignCenter);
  progress_->setAlignment(Qt::AlignCenter);
  result_->setAlignment(Qt::AlignCenter);
  result_->setWordWrap(true);
  result_->setObjectName(QStringLiteral("DrillResult"));
  auto* const column = new QVBoxLayout(this);
  column->addWidget(title);
  column->addWidget(card_, 1);
  column->addWidget(progress_);
  column->addWidget(MakeSettings());
  column->addWidget(MakeAnswer());
  column->addWidget(result_);

  result_->setText(QStringLiteral("Count the cards as they come."));
  timer_->setObjectName(QStringLiteral("DrillTimer"));
  connect(timer_, &QTimer::timeout, this, &CountDrillDialog::DealOne);
}

QWidget* CountDrillDialog::MakeSettings() {
  auto* const settings = new QWidget(this);
  auto* const form = new QFormLayout(settings);
  form->setContentsMargins(0, 0, 0, 0);
  speed_ = new QComboBox(settings);
  speed_->setObjectName(QStringLiteral("DrillSpeed"));
  for (const Speed& speed : Speeds) speed_->addItem(QLatin1String(speed.text), speed.milliseconds);
  speed_->setCurrentIndex(FirstSpeed);
  length_ = new QComboBox(settings);
  length_->setObjectName(QStringLiteral("DrillLength"));
  for (const int cards : Lengths) length_->addItem(QStringLiteral("%1 cards").arg(cards), cards);
  length_->setCurrentIndex(FirstLength);
  start_ = new QPushButton(QStringLiteral("&Deal"), settings);
  start_->setObjectName(QStringLiteral("DrillStart"));
  start_->setDefault(true);
  form->addRow(QStringLiteral("&Speed"), speed_);
  form->addRow(QStringLiteral("&Length"), length_);
  form->addRow(start_);
  connect(start_, &QPushButton::clicked, this, &CountDrillDialog::Start);
  // A new speed holds from the next card on.
  connect(speed_, &QComboBox::currentIndexChanged, this,
          [this] { timer_->setInterval(speed_->currentData().toInt()); });
  return settings;
}

QWidget* CountDrillDialog::MakeAnswer() {
  auto* const answer = new QWidget(this);
  auto* const row = new QHBoxLayout(answer);
  row->setContentsMargins(0, 0, 0, 0);
  answer_ = new tactix::qt::SpinCounter(answer);
  answer_->setObjectName(QStringLiteral("DrillAnswer"));
  answer_->AllowNegNumbers(true);
  answer_->setEnabled(false);
  auto* const label = new QLabel(QStringLiteral("&Running count"), answer);
  label->setBuddy(answer_);
  check_ = new QPushButton(QStringLiteral("&Check"), answer);
  check_->setObjectName(QStringLiteral("DrillCheck"));
  check_->setEnabled(false);
  row->addStretch(1);
  row->addWidget(label);
  row->addWidget(answer_);
  row->addWidget(check_);
  row->addStretch(1);
  connect(check_, &QPushButton::clicked, this, &CountDrillDialog::Judge);
  return answer;
}

QString CountDrillDialog::ResultText() const { return result_->text(); }

void CountDrillDialog::Start() {
  drill_.emplace(system_, decks_, length_->currentData().toInt(), seed_++);
  const int begin = drill_->RunningCount();
  answer_->CounterValue(begin);
  answer_->setEnabled(false);
  check_->setEnabled(false);
  length_->setEnabled(false);
  start_->setText(QStringLiteral("&Deal again"));
  result_->setText(begin == 0 ? QStringLiteral("Count from 0.")
                              : QStringLiteral("This system begins at %1.").arg(begin));
  timer_->start(speed_->currentData().toInt());
  DealOne();
}

void CountDrillDialog::DealOne() {
  if (drill_->IsOver()) return AskForTheCount();
  card_->Show(drill_->Next());
  progress_->setText(QStringLiteral("Card %1 of %2").arg(drill_->Shown()).arg(drill_->Cards()));
}

void CountDrillDialog::AskForTheCount() {
  timer_->stop();
  card_->Show(std::nullopt);
  answer_->setEnabled(true);
  check_->setEnabled(true);
  length_->setEnabled(true);
  check_->setDefault(true);
  answer_->setFocus();
  result_->setText(QStringLiteral("What is the running count?"));
}

void CountDrillDialog::Judge() {
  const int answer = answer_->CounterValue();
  const int off = drill_->OffBy(answer);
  const int running = drill_->RunningCount();
  answer_->setEnabled(false);
  check_->setEnabled(false);
  start_->setDefault(true);
  start_->setFocus();
  result_->setText(off == 0 ? QStringLiteral("Right: the running count is %1.").arg(running)
                            : QStringLiteral("The running count is %1; you are off by %2, too %3.")
                                  .arg(running)
                                  .arg(std::abs(off))
                                  .arg(off > 0 ? QStringLiteral("high") : QStringLiteral("low")));
}

}  // namespace trainer::screens
