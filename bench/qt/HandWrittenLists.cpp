#include "bench/qt/HandWrittenLists.h"

#include <QStringView>
#include <array>

namespace tactix::bench {

namespace {

/// A description's texts and what stands behind its second comma.
struct Parts {
  explicit Parts(const QString& description) {
    const qsizetype first = description.indexOf(QLatin1Char(','));
    const qsizetype second = first < 0 ? -1 : description.indexOf(QLatin1Char(','), first + 1);
    if (second < 0) return;
    note = description.left(first);
    caption = description.mid(first + 1, second - first - 1);
    rest = QStringView(description).mid(second + 1).toString();
    isComplete = true;
  }

  bool isComplete = false;
  QString note;
  QString caption;
  QString rest;
};

bool IsTrue(QStringView text) { return text == QLatin1String("True") || text.toInt() != 0; }

QString Unshifted(const QString& text) {
  QString unshifted;
  for (const QChar c : text) unshifted += QChar(c.unicode() - 10);
  return unshifted;
}

const QString NotPresent = QStringLiteral("Not Present");
const QString EmptySeat = QStringLiteral("Empty Seat");

QString RowOf(int number, bool present, const QString& caption, const QString& seat) {
  if (present && number >= 0) return caption;
  return number == -1 ? seat : NotPresent;
}

void Finish(QComboBox& box) {
  box.setCurrentIndex(-1);
  box.setPlaceholderText(QStringLiteral("Select a Strategy"));
}

void Fill(QComboBox& box, StrategyCatalogue& catalogue, const QString& seat) {
  const StrategyRange range = catalogue.GetStrategyRange();
  box.clear();
  for (std::int16_t i = -1; i <= range.HighestPlayingStrategy; ++i) {
    std::int16_t number = i;
    const QString description = QString::fromStdString(catalogue.DescribeStrategy(number));
    Parts parts(description);
    bool present = false;
    if (parts.isComplete) {
      const auto flags = QStringView(parts.rest).split(QLatin1Char(' '));
      if (IsTrue(flags[0])) parts.caption = Unshifted(parts.caption);
      present = flags.size() > 1 && IsTrue(flags[1]);
    }
    box.addItem(RowOf(i, present, parts.caption, seat));
  }
  Finish(box);
}

}  // namespace

void FillWithStrategies(QComboBox& box, StrategyCatalogue& catalogue) { Fill(box, catalogue, NotPresent); }

void FillCompactly(QComboBox& box, StrategyCatalogue& catalogue) { Fill(box, catalogue, EmptySeat); }

void FillWithBets(QComboBox& box, StrategyCatalogue& catalogue) {
  const StrategyRange range = catalogue.GetStrategyRange();
  box.clear();
  for (std::int16_t i = -1; i <= range.HighestBettingStrategy; ++i) {
    std::int16_t number = i;
    if (catalogue.DescribeStrategy(number).empty()) continue;
    number = i;
    const QString description = QString::fromStdString(catalogue.DescribeBettingStrategy(number));
    Parts parts(description);
    if (parts.rest.contains(QLatin1Char('\\'))) parts.caption = Unshifted(parts.caption);
    box.addItem(RowOf(i, IsTrue(QStringView(parts.rest).left(1)), parts.caption, EmptySeat));
  }
  Finish(box);
}

void FillWithCounts(QComboBox& box, StrategyCatalogue& catalogue) {
  struct Count {
    QString note;
    QString name;
    std::array<int, 4> settings{};
  };
  std::array<Count, 28> counts;
  box.clear();
  for (std::int16_t i = 11; i <= 38; ++i) {
    std::string text;
    catalogue.DescribeStrategy(i, text);
    if (text.empty()) continue;
    const QString description = QString::fromStdString(text);
    Parts parts(description);
    const auto fields = QStringView(parts.rest).split(QLatin1Char(' '));
    Count& count = counts[static_cast<std::size_t>(i - 11)];
    count.note = parts.note;
    count.name = parts.caption;
    if (fields.size() < 6 || !IsTrue(fields[1])) {
      box.addItem(NotPresent);
      continue;
    }
    for (std::size_t k = 0; k < count.settings.size(); ++k) {
      count.settings[k] = fields[static_cast<qsizetype>(k) + 2].toInt();
    }
    box.addItem(count.name, i);
  }
  Finish(box);
}

void FillWithTexts(QComboBox& box, const QStringList& texts) {
  box.clear();
  for (const QString& text : texts) box.addItem(text);
  Finish(box);
}

void FillWithTextsAtOnce(QComboBox& box, const QStringList& texts) {
  box.clear();
  box.addItems(texts);
  Finish(box);
}

}  // namespace tactix::bench
