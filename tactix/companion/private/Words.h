#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace tactix::companion {

/// The text without the blanks and tabs around it.
std::string_view Trimmed(std::string_view text);
/// The words of a text, separated by blanks and tabs.
std::vector<std::string_view> WordsOf(std::string_view text);
/// A whole number in decimal digits, with "-" where it is negative; nothing where the word is anything else.
std::optional<int> ToNumber(std::string_view word);
/// The text in single quotes for a message, shortened where it is long.
std::string Quoted(std::string_view text);

}  // namespace tactix::companion
