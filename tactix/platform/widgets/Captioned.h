#pragma once

#include <string>
#include <string_view>

#include "tactix/platform/Export.h"
#include "tactix/platform/widgets/Widget.h"

namespace tactix {

/// A widget that shows a caption. "&" marks the letter after it as the access key, "&&" shows one "&".
class TACTIX_EXPORT Captioned : public Widget {
 public:
  /// Empty by default.
  const std::string& Caption() const { return caption_; }
  void Caption(std::string_view caption);

  /// The upper-case access key of the caption, or 0.
  char AccessKey() const;

  bool ReadMember(std::string_view name, Variant& value) const override;
  bool WriteMember(std::string_view name, const Variant& value) override;

 private:
  std::string caption_;
};

/// The upper-case ASCII letter or digit that a caption marks with "&", or 0.
TACTIX_EXPORT char AccessKeyOf(std::string_view caption);
/// The caption as read aloud: without its "&" marks.
TACTIX_EXPORT std::string PlainCaption(std::string_view caption);

}  // namespace tactix
