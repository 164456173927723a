#include "tactix/companion/private/StrategySection.h"

#include <algorithm>

#include "tactix/companion/ShiftedText.h"
#include "tactix/companion/private/Words.h"
#include "tactix/platform/Error.h"
#include "tactix/platform/Object.h"
#include "tactix/platform/private/Utf8.h"
#include "tactix/strategy/StrategyListData.h"

namespace tactix::companion {

namespace {

constexpr std::string_view CommonKeys[] = {"caption", "note", "present", "shifted"};

void RefuseUnknownKeys(const IniFile& file, const IniSection& section,
                       std::initializer_list<std::string_view> ownKeys) {
  for (const IniEntry& entry : section.entries) {
    const auto isKey = [&](std::string_view key) { return SameName(key, entry.key); };
    if (std::any_of(std::begin(CommonKeys), std::end(CommonKeys), isKey)) continue;
    if (std::any_of(ownKeys.begin(), ownKeys.end(), isKey)) continue;
    file.Fail(entry.line, "unknown key " + Quoted(entry.key));
  }
}

struct FlagWord {
  std::string_view text;
  bool flag;
};

constexpr FlagWord FlagWords[] = {{"yes", true}, {"no", false}, {"true", true}, {"false", false}};

/// Leaves the flag as it is where there is no such entry.
void ReadFlag(const IniFile& file, const IniEntry* entry, bool& flag) {
  if (!entry) return;
  const auto* const found = std::find_if(std::begin(FlagWords), std::end(FlagWords),
                                         [&](const FlagWord& each) { return SameName(each.text, entry->value); });
  if (found == std::end(FlagWords)) file.Fail(entry->line, "expected 'yes' or 'no', found " + Quoted(entry->value));
  flag = found->flag;
}

/// One of the two texts of a description, and the comma that ends it.
std::string DescribedText(const IniFile& file, const IniEntry* entry, bool shifted) {
  if (!entry) return ",";
  if (entry->value.find(',') != std::string::npos) file.Fail(entry->line, entry->key + " holds a ','");
  if (entry->value.find('\t') != std::string::npos) file.Fail(entry->line, entry->key + " holds a tab");
  if (!shifted) return entry->value + ",";
  try {
    return ShiftStrategyText(entry->value) + ",";
  } catch (const Error& error) {
    file.Fail(entry->line, entry->key + ": " + error.Description());
  }
}

}  // namespace

StrategySection ReadStrategySection(const IniFile& file, const IniSection& section,
                                    std::initializer_list<std::string_view> ownKeys) {
  RefuseUnknownKeys(file, section, ownKeys);
  const IniEntry* const caption = section.Find("caption");
  if (!caption) file.Fail(section.line, Quoted(section.name) + " has no caption");
  if (caption->value.empty()) file.Fail(caption->line, "the caption is empty");
  StrategySection read;
  read.caption = caption->value;
  read.captionLine = caption->line;
  ReadFlag(file, section.Find("shifted"), read.shifted);
  ReadFlag(file, section.Find("present"), read.present);
  read.texts = DescribedText(file, section.Find("note"), read.shifted);
  read.texts += DescribedText(file, caption, read.shifted);
  return read;
}

std::string DescriptionOf(const IniFile& file, const StrategySection& section, std::string_view ending) {
  std::string description = section.texts + std::string(ending);
  // At least one blank of padding must remain in the lists' buffer: it ends the last flag.
  if (CountUtf8(description) >= DescriptionBuffer::Width) {
    file.Fail(section.captionLine, "caption and note are too long together");
  }
  return description;
}

}  // namespace tactix::companion
