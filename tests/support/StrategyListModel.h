#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

#include "tests/support/FakeCatalogue.h"

namespace tactix::tests {

/// What the lists and their model are filled from: the fake's descriptions, unless it is away or a call fails.
struct ModelCatalogue {
  FakeCatalogue& fake;
  bool isThere = true;
  /// As the fake logs it.
  std::string failingCall;
  int failingCode = 0;
};

enum class ModelledList { Compact, Betting, Count };

/// How a strategy list behaves towards its host and its user, in as few words as possible. The operations answer the
/// code of the error that the host or the site gets, or 0.
class StrategyListModel {
 public:
  StrategyListModel(ModelledList list, const ModelCatalogue& catalogue);

  int Fill();
  int Load();
  int SetRow(int row);
  int SelectThisStrategy(int strategy);
  int CountStrategy(int system);
  int AddItem(const std::string& item, std::optional<int> index);
  void Text(const std::string& text);
  /// A save and a load of what was saved.
  void Reload();

  std::vector<std::string> rows;
  std::string text;
  int row = -1;
  int lastGood = 0;
  int current = 0;
  bool quiet = false;
  bool filled = false;
  int beeps = 0;
  /// As an EventRecorder has them.
  std::vector<std::string> events;

 private:
  struct Failure {
    int code;
  };

  std::string Ask(const std::string& call, int number) const;
  /// Whether a description that is tested is empty.
  bool IsEmpty(const std::string& call, int number) const;
  void FillRow(int number);
  void FillCountRow(int system);
  std::string Unusable(int number) const { return number == -1 ? "Empty Seat" : "Not Present"; }

  ModelledList list_;
  const ModelCatalogue& catalogue_;
  StrategyRange range_;
  std::string description_;
};

}  // namespace tactix::tests
