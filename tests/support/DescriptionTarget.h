#pragma once

#include <memory>
#include <string>

namespace tactix::tests {

/// All four lists over a catalogue that gives one text as the description of some of its strategies and count systems,
/// among good ones. Stands in the place of the process's catalogue while it lives.
class DescriptionTarget {
 public:
  DescriptionTarget();
  ~DescriptionTarget();

  /// Has the lists fill themselves. Answers what went wrong: an error that a list must not let out, rows that are not
  /// those of the lists' model, a list that does not fill any more. Empty when nothing did.
  std::string Feed(const std::string& text);

 private:
  class Lists;
  std::unique_ptr<Lists> lists_;
};

}  // namespace tactix::tests
