#include "tests/support/StrategyListModel.h"

#include <map>

#include "tactix/platform/Error.h"
#include "tactix/platform/Variant.h"

namespace tactix::tests {

namespace {

constexpr int HighestReported = 50;

/// Texts of ASCII characters only.
std::string Unshifted(const std::string& text) {
  std::string result;
  for (const char c : text) {
    if (c == '\0') break;
    if (c < 10) throw Error(5);
    result += static_cast<char>(c - 10);
  }
  return result.substr(0, 65);
}

bool Flag(const std::string& text) { return Variant(text).ToBoolean(); }

/// Takes what stands before a separator off a text.
std::string Cut(std::string& text, char separator) {
  const std::size_t at = text.find(separator);
  if (at == std::string::npos) throw Error(5);
  const std::string field = text.substr(0, at);
  text.erase(0, at + 1);
  return field;
}

}  // namespace

StrategyListModel::StrategyListModel(ModelledList list, const ModelCatalogue& catalogue)
    : list_(list), catalogue_(catalogue) {}

std::string StrategyListModel::Ask(const std::string& call, int number) const {
  if (!catalogue_.isThere) throw Error(91);
  if (catalogue_.failingCall == call + " " + std::to_string(number)) throw Error(catalogue_.failingCode);
  const FakeCatalogue& fake = catalogue_.fake;
  const std::map<int, std::string>& texts = call == "Playing"   ? fake.Playing
                                            : call == "Betting" ? fake.Betting
                                                                : fake.Counts;
  const auto found = texts.find(number);
  return found == texts.end() ? "" : found->second;
}

bool StrategyListModel::IsEmpty(const std::string& call, int number) const {
  try {
    return Ask(call, number).empty();
  } catch (const Error& error) {
    if (error.Code() != 91) throw;
    return false;
  }
}

void StrategyListModel::FillRow(int number) {
  if (IsEmpty("Playing", number)) return;
  try {
    StrategyListData::Buffer().Write(Ask(list_ == ModelledList::Betting ? "Betting" : "Playing", number));
  } catch (const Error& error) {
    if (error.Code() != 91) throw;
  }
  std::string rest = StrategyListData::Buffer().Text();
  if (list_ == ModelledList::Betting && rest.find(',') == std::string::npos) return;
  const std::string note = Cut(rest, ',');
  if (rest.find(',') == std::string::npos) return rows.push_back(Unusable(number));
  std::string caption = Cut(rest, ',');
  bool isShifted = rest.find('\\') != std::string::npos;
  std::string presence = rest.substr(0, 1);
  if (list_ == ModelledList::Compact && rest.find(' ') == std::string::npos) {
    std::string whole = StrategyListData::Buffer().Text();
    presence = Cut(whole, ' ');
  } else if (list_ == ModelledList::Compact) {
    isShifted = Flag(Cut(rest, ' '));
    if (isShifted) Unshifted(note);
    if (isShifted) caption = Unshifted(caption);
    presence = Cut(rest, ' ');
  } else if (isShifted) {
    Unshifted(note);
    caption = Unshifted(caption);
  }
  const bool isPresent = Flag(presence);
  rows.push_back(number >= 0 && isPresent ? caption : Unusable(number));
}

void StrategyListModel::FillCountRow(int system) {
  if (IsEmpty("Count", system)) return;
  try {
    description_ = Ask("Count", system);
  } catch (const Error& error) {
    if (error.Code() != 91) throw;
  }
  std::string rest = description_;
  const std::string description = Cut(rest, ',');
  if (rest.find(',') == std::string::npos) return rows.push_back(Unusable(system));
  std::string name = Cut(rest, ',');
  if (rest.find(' ') != std::string::npos && Flag(Cut(rest, ' '))) {
    Unshifted(description.substr(0, 65));
    name = Unshifted(name.substr(0, 65));
  }
  if (!Flag(Cut(rest, ' '))) return rows.push_back("Not Present");
  rows.push_back(name);
  for (int i = 0; i < 4; ++i) Variant(Cut(rest, ' ')).ToInteger();
  if (rest.find(' ') != std::string::npos) throw Error(9);
}

int StrategyListModel::Fill() {
  rows.clear();
  row = -1;
  description_.clear();
  try {
    if (list_ == ModelledList::Count) {
      if (catalogue_.isThere && catalogue_.failingCall == "Store" && catalogue_.failingCode != 91) return 0;
      for (current = 11; current <= 38; ++current) FillCountRow(current);
      current = 38;
      filled = true;
    } else {
      const int highest =
          list_ == ModelledList::Betting ? range_.HighestBettingStrategy : range_.HighestPlayingStrategy;
      for (int i = -1; i <= highest; ++i) {
        current = i;
        FillRow(i);
      }
    }
  } catch (const Error& error) {
    return list_ == ModelledList::Betting ? error.Code() : 0;
  }
  text = "Select a Strategy";
  return 0;
}

int StrategyListModel::Load() {
  if (!catalogue_.isThere) return 91;
  if (catalogue_.failingCall == "Range") return catalogue_.failingCode;
  range_ = catalogue_.fake.Range;
  return Fill();
}

int StrategyListModel::SetRow(int newRow) {
  const int count = static_cast<int>(rows.size());
  if (newRow < -1 || newRow >= count) return 380;
  row = newRow;
  if (row == -1) return 0;
  text = rows[static_cast<std::size_t>(row)];
  if (row > HighestReported) return 0;
  if (text == "Not Present") {
    ++beeps;
    if (lastGood >= count) return 380;
    row = lastGood;
    text = rows[static_cast<std::size_t>(row)];
    return 0;
  }
  lastGood = row;
  const std::string carried =
      list_ == ModelledList::Count ? std::to_string(row + 10) + ", " + text : std::to_string(row - 1);
  if (!quiet) events.push_back("StrategySelectionChanged#1(" + carried + ")");
  quiet = false;
  return 0;
}

int StrategyListModel::SelectThisStrategy(int strategy) {
  if (strategy > static_cast<int>(rows.size())) return 0;
  if (list_ == ModelledList::Betting) quiet = true;
  return SetRow(strategy + 1);
}

int StrategyListModel::CountStrategy(int system) {
  if (!filled) Fill();
  return system < 11 || system > 38 ? 0 : SetRow(system - 11);
}

int StrategyListModel::AddItem(const std::string& item, std::optional<int> index) {
  const int count = static_cast<int>(rows.size());
  const int at = index.value_or(count);
  if (at < 0 || at > count) return 5;
  rows.insert(rows.begin() + at, item);
  if (row >= at) ++row;
  return 0;
}

void StrategyListModel::Text(const std::string& newText) {
  text = newText;
  if (row >= 0 && text != rows[static_cast<std::size_t>(row)]) row = -1;
}

void StrategyListModel::Reload() {
  const std::string saved = text;
  if (list_ == ModelledList::Count) CountStrategy(row - 1);
  if (!saved.empty()) Text(saved);
}

}  // namespace tactix::tests
