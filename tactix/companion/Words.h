#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace tactix::companion {

/// Without the blanks and tabs around it.
std::string_view Trimmed(std::string_view text);
/// What blanks and tabs separate.
std::vector<std::string_view> WordsOf(std::string_view text);
/// A whole number in decimal digits, with "-" where it is negative; nothing where the word is anything else.
std::optional<int> ToNumber(std::string_view word);
/// In single quotes for a message, cut where it is long.
std::string Quoted(std::string_view text);

}  // namespace tactix::companion
