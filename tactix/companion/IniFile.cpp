#include "tactix/companion/IniFile.h"

#include <fstream>
#include <map>
#include <system_error>
#include <utility>

#include "tactix/companion/private/Words.h"
#include "tactix/platform/Object.h"
#include "tactix/platform/private/Utf8.h"

namespace tactix::companion {

namespace {

std::string Located(std::string_view file, int line, std::string_view what) {
  std::string text(file);
  if (line > 0) text += ":" + std::to_string(line);
  return text + ": " + std::string(what);
}

std::string InLowerCase(std::string_view name) {
  std::string lower(name);
  for (char& c : lower) {
    if (c >= 'A' && c <= 'Z') c = static_cast<char>(c - 'A' + 'a');
  }
  return lower;
}

bool IsControlCharacter(char c) {
  const auto code = static_cast<unsigned char>(c);
  return (code < ' ' && c != '\t') || code == 0x7F;
}

/// Turns the lines of a file into sections.
class LineReader {
 public:
  LineReader(const IniFile& file, std::vector<IniSection>& sections) : file_(file), sections_(sections) {}

  void Read(std::string_view text) {
    while (!text.empty()) {
      const std::size_t end = text.find('\n');
      std::string_view line = text.substr(0, end);
      text.remove_prefix(end == std::string_view::npos ? text.size() : end + 1);
      if (line.ends_with('\r')) line.remove_suffix(1);
      ++line_;
      ReadLine(line);
    }
  }

 private:
  void ReadLine(std::string_view line) {
    if (!IsUtf8(line)) Fail("not UTF-8");
    for (const char c : line) {
      if (IsControlCharacter(c)) Fail("holds a control character");
    }
    line = Trimmed(line);
    if (line.empty() || line.front() == ';' || line.front() == '#') return;
    if (line.front() == '[') return ReadSection(line);
    ReadEntry(line);
  }

  void ReadSection(std::string_view line) {
    if (line.find(']') != line.size() - 1) Fail("expected '[section]'");
    const std::string_view name = Trimmed(line.substr(1, line.size() - 2));
    if (name.empty() || name.find('[') != std::string_view::npos) Fail("expected '[section]'");
    RefuseSecond("section", name, sectionLines_);
    keyLines_.clear();
    sections_.push_back({std::string(name), line_, {}});
  }

  void ReadEntry(std::string_view line) {
    const std::size_t equals = line.find('=');
    if (equals == std::string_view::npos || equals == 0) Fail("expected 'key = value'");
    if (sections_.empty()) Fail("expected a '[section]' before the first key");
    const std::string_view key = Trimmed(line.substr(0, equals));
    RefuseSecond("key", key, keyLines_);
    sections_.back().entries.push_back(
        {std::string(key), std::string(ValueOf(Trimmed(line.substr(equals + 1)))), line_});
  }

  std::string_view ValueOf(std::string_view text) const {
    if (!text.starts_with('"')) return text;
    if (text.size() < 2 || !text.ends_with('"')) Fail("expected a closing '\"' at the end of the line");
    return text.substr(1, text.size() - 2);
  }

  using LineOf = std::map<std::string, int>;

  void RefuseSecond(std::string_view what, std::string_view name, LineOf& lines) const {
    const auto [first, isNew] = lines.emplace(InLowerCase(name), line_);
    if (isNew) return;
    Fail(std::string(what) + " " + Quoted(name) + " was given in line " + std::to_string(first->second));
  }

  [[noreturn]] void Fail(std::string_view what) const { file_.Fail(line_, what); }

  const IniFile& file_;
  std::vector<IniSection>& sections_;
  LineOf sectionLines_;
  LineOf keyLines_;
  int line_ = 0;
};

std::string Utf8NameOf(const std::filesystem::path& path) {
  const auto name = path.u8string();
  return {name.begin(), name.end()};
}

}  // namespace

IniError::IniError(std::string_view file, int line, std::string_view what)
    : Error(InvalidFileFormat, Located(file, line, what)), file_(file), line_(line) {}
IniError::IniError(const IniError&) = default;
IniError& IniError::operator=(const IniError&) = default;
IniError::~IniError() = default;

const IniEntry* IniSection::Find(std::string_view key) const {
  for (const IniEntry& entry : entries) {
    if (SameName(entry.key, key)) return &entry;
  }
  return nullptr;
}

IniFile::IniFile(std::string_view text, std::string_view name) : name_(name) {
  if (text.size() > LargestSize) Fail(0, "larger than 1 MiB");
  constexpr std::string_view byteOrderMark = "\xEF\xBB\xBF";
  if (text.starts_with(byteOrderMark)) text.remove_prefix(byteOrderMark.size());
  LineReader(*this, sections_).Read(text);
}

IniFile IniFile::Read(const std::filesystem::path& path) {
  const std::string name = Utf8NameOf(path);
  std::error_code ignored;
  // Some standard libraries open a folder as if it were an empty file.
  if (std::filesystem::is_directory(path, ignored)) throw IniError(name, 0, "cannot be read");
  std::ifstream file(path, std::ios::binary);
  // Reads one byte more than is allowed, which shows that a file is too large, even if it never ends.
  std::string text(LargestSize + 1, '\0');
  if (file) file.read(text.data(), static_cast<std::streamsize>(text.size()));
  if (file.bad() || !file.is_open()) throw IniError(name, 0, "cannot be read");
  text.resize(static_cast<std::size_t>(file.gcount()));
  return IniFile(text, name);
}

void IniFile::Fail(int line, std::string_view what) const { throw IniError(name_, line, what); }

}  // namespace tactix::companion
