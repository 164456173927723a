#pragma once

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

#include "tactix/platform/Error.h"
#include "tactix/platform/Export.h"

namespace tactix::companion {

/// What is wrong with an INI file. The description names file and line: "strategies.ini:12: expected 'key = value'".
class TACTIX_EXPORT IniError : public Error {
 public:
  /// The code of all these errors.
  static constexpr std::int32_t InvalidFileFormat = 321;

  /// Line 0 is the file as a whole: "strategies.ini: cannot be read".
  IniError(std::string_view file, int line, std::string_view what);
  IniError(const IniError&);
  IniError& operator=(const IniError&);
  ~IniError() override;

  const std::string& File() const noexcept { return file_; }
  int Line() const noexcept { return line_; }

 private:
  std::string file_;
  int line_;
};

struct IniEntry {
  std::string key;
  std::string value;
  int line = 0;
};

struct TACTIX_EXPORT IniSection {
  std::string name;
  int line = 0;
  std::vector<IniEntry> entries;  ///< in the file's order

  /// Null when there is no such key.
  const IniEntry* Find(std::string_view key) const;
};

/// The sections of an INI file, in the file's order. Lines end with LF or CRLF and are one of
///
///   [section name]
///   key = value         the value without the blanks around it
///   key = "value "      the value as it stands between the first and the last quote; there are no escapes
///   ; or # and a comment
///   (nothing but blanks)
///
/// The text is UTF-8, with or without a byte order mark. Names and keys compare without case (ASCII). Everything else
/// is an error: other lines, a key before the first section, a section or a key given twice, control characters, bytes
/// that are not UTF-8, more than 1 MiB.
class TACTIX_EXPORT IniFile {
 public:
  static constexpr std::size_t LargestSize = 1'048'576;

  /// Reads a text; `name` is what errors call it.
  IniFile(std::string_view text, std::string_view name);
  /// Reads a file on disk, which errors call by its path.
  static IniFile Read(const std::filesystem::path& path);

  const std::string& Name() const { return name_; }
  const std::vector<IniSection>& Sections() const { return sections_; }

  /// Throws the error for a line of this file.
  [[noreturn]] void Fail(int line, std::string_view what) const;

 private:
  std::string name_;
  std::vector<IniSection> sections_;
};

}  // namespace tactix::companion
