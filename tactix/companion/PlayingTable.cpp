#include "tactix/companion/PlayingTable.h"

#include <string>
#include <vector>

#include "tactix/companion/private/Words.h"
#include "tactix/platform/Error.h"
#include "tactix/platform/Object.h"

namespace tactix::companion {

namespace {

struct CodeText {
  PlayCode code;
  std::string_view text;
  bool splits;
};

constexpr CodeText CodeTexts[] = {
    {PlayCode::Hit, "H", false},
    {PlayCode::Stand, "S", false},
    {PlayCode::DoubleOrHit, "D", false},
    {PlayCode::DoubleOrStand, "Ds", false},
    {PlayCode::Split, "P", true},
    {PlayCode::SplitOrHit, "Ph", true},
    {PlayCode::SplitOrDouble, "Pd", true},
    {PlayCode::SplitOrStand, "Ps", true},
    {PlayCode::SurrenderOrHit, "R", false},
    {PlayCode::SurrenderOrStand, "Rs", false},
    {PlayCode::SurrenderOrSplit, "Rp", true},
};

struct KindText {
  std::string_view text;
  int lowest;
  int highest;
};

constexpr int LowestUpCard = 2;
/// In the order of HandKind.
constexpr KindText KindTexts[] = {{"hard", 4, 21}, {"soft", 12, 21}, {"pair", 2, PlayingTable::Ace}};

constexpr std::size_t IndexOf(HandKind kind) { return static_cast<std::size_t>(kind); }

bool Splits(PlayCode code) { return CodeTexts[static_cast<std::size_t>(code)].splits; }

std::string NameOf(HandKind kind, int rank) {
  const bool ace = kind == HandKind::Pair && rank == PlayingTable::Ace;
  return std::string(KindTexts[IndexOf(kind)].text) + " " + (ace ? "A" : std::to_string(rank));
}

/// The rows that one line stands for.
struct RowRange {
  HandKind kind;
  int first;
  int last;
};

std::optional<int> ToRank(HandKind kind, std::string_view text) {
  if (kind == HandKind::Pair && SameName(text, "A")) return PlayingTable::Ace;
  const std::optional<int> rank = ToNumber(text);
  const KindText& limits = KindTexts[IndexOf(kind)];
  if (!rank || *rank < limits.lowest || *rank > limits.highest) return std::nullopt;
  if (kind == HandKind::Pair && *rank == PlayingTable::Ace) return std::nullopt;  // aces are written A, not as a number
  return rank;
}

std::optional<RowRange> ToRows(std::string_view key) {
  const std::vector<std::string_view> words = WordsOf(key);
  if (words.size() != 2) return std::nullopt;
  for (const HandKind kind : {HandKind::Hard, HandKind::Soft, HandKind::Pair}) {
    if (!SameName(words[0], KindTexts[IndexOf(kind)].text)) continue;
    const std::size_t dash = words[1].find('-');
    const std::optional<int> first = ToRank(kind, words[1].substr(0, dash));
    const std::optional<int> last = dash == std::string_view::npos ? first : ToRank(kind, words[1].substr(dash + 1));
    if (!first || !last || *first > *last) return std::nullopt;
    return RowRange{kind, *first, *last};
  }
  return std::nullopt;
}

}  // namespace

std::string_view TextOf(PlayCode code) { return CodeTexts[static_cast<std::size_t>(code)].text; }

std::optional<PlayCode> ToPlayCode(std::string_view text) {
  for (const CodeText& each : CodeTexts) {
    if (SameName(each.text, text)) return each.code;
  }
  return std::nullopt;
}

PlayingTable::PlayingTable(const IniFile& file, const IniSection& section) {
  std::array<std::array<int, Ranks>, 3> lines{};  // 0: not given yet
  for (const IniEntry& entry : section.entries) {
    const std::optional<RowRange> range = ToRows(entry.key);
    if (!range) {
      file.Fail(entry.line,
                "expected 'hard 4' ... 'hard 21', 'soft 12' ... 'soft 21' or 'pair 2' ... 'pair A', found " +
                    Quoted(entry.key));
    }
    const std::vector<std::string_view> words = WordsOf(entry.value);
    if (words.size() != UpCards) {
      file.Fail(entry.line, "expected 10 plays, against 2 ... 10 and A, found " + std::to_string(words.size()));
    }
    Row row{};
    for (std::size_t i = 0; i < UpCards; ++i) {
      const std::optional<PlayCode> code = ToPlayCode(words[i]);
      if (!code) file.Fail(entry.line, Quoted(words[i]) + " is no play");
      if (Splits(*code) && range->kind != HandKind::Pair) {
        file.Fail(entry.line, Quoted(words[i]) + " splits a hand that is no pair");
      }
      row[i] = *code;
    }
    for (int rank = range->first; rank <= range->last; ++rank) {
      int& line = lines[IndexOf(range->kind)][static_cast<std::size_t>(rank)];
      if (line != 0) {
        file.Fail(entry.line, "'" + NameOf(range->kind, rank) + "' was given in line " + std::to_string(line));
      }
      line = entry.line;
      rows_[IndexOf(range->kind)][static_cast<std::size_t>(rank)] = row;
    }
  }

  for (const HandKind kind : {HandKind::Hard, HandKind::Soft, HandKind::Pair}) {
    const KindText& limits = KindTexts[IndexOf(kind)];
    for (int rank = limits.lowest; rank <= limits.highest; ++rank) {
      const auto index = static_cast<std::size_t>(rank);
      if (lines[IndexOf(kind)][index] != 0) continue;
      if (kind != HandKind::Pair) {
        file.Fail(section.line, Quoted(section.name) + " has no row '" + NameOf(kind, rank) + "'");
      }
      // A pair that the table does not name is played as its total.
      rows_[IndexOf(kind)][index] =
          rank == Ace ? rows_[IndexOf(HandKind::Soft)][12] : rows_[IndexOf(HandKind::Hard)][2 * index];
    }
  }
}

PlayCode PlayingTable::Find(HandKind kind, int totalOrCard, int upCard) const {
  const KindText& limits = KindTexts[IndexOf(kind)];
  if (totalOrCard < limits.lowest || totalOrCard > limits.highest || upCard < LowestUpCard || upCard > Ace) {
    throw Error(Error::SubscriptOutOfRange);
  }
  const Row& row = rows_[IndexOf(kind)][static_cast<std::size_t>(totalOrCard)];
  return row[static_cast<std::size_t>(upCard - LowestUpCard)];
}

}  // namespace tactix::companion
