#include "tactix/companion/private/Words.h"

#include <charconv>
#include <system_error>

#include "tactix/platform/private/Utf8.h"

namespace tactix::companion {

namespace {

constexpr std::string_view Blanks = " \t";
constexpr std::size_t LongestQuoted = 40;

}  // namespace

std::string_view Trimmed(std::string_view text) {
  const std::size_t first = text.find_first_not_of(Blanks);
  if (first == std::string_view::npos) return {};
  return text.substr(first, text.find_last_not_of(Blanks) - first + 1);
}

std::vector<std::string_view> WordsOf(std::string_view text) {
  std::vector<std::string_view> words;
  for (text = Trimmed(text); !text.empty(); text = Trimmed(text)) {
    const std::string_view word = text.substr(0, text.find_first_of(Blanks));
    words.push_back(word);
    text.remove_prefix(word.size());
  }
  return words;
}

std::optional<int> ToNumber(std::string_view word) {
  int number = 0;
  const char* const end = word.data() + word.size();
  const std::from_chars_result result = std::from_chars(word.data(), end, number);
  if (result.ec != std::errc() || result.ptr != end) return std::nullopt;
  return number;
}

std::string Quoted(std::string_view text) {
  std::string quoted = "'";
  std::size_t count = 0;
  for (; count < LongestQuoted && !text.empty(); ++count) {
    const Utf8Character character = DecodeUtf8(text);
    AppendUtf8(quoted, character.code);
    text.remove_prefix(character.length);
  }
  return quoted + (text.empty() ? "'" : "...'");
}

}  // namespace tactix::companion
