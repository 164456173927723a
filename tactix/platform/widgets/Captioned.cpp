#include "tactix/platform/widgets/Captioned.h"

namespace tactix {

namespace {

char UpperLetterOrDigit(char c) {
  if (c >= 'a' && c <= 'z') return static_cast<char>(c - 'a' + 'A');
  return (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') ? c : '\0';
}

}  // namespace

void Captioned::Caption(std::string_view caption) {
  if (caption == caption_) return;
  caption_.assign(caption);
  Notify(Aspect::Caption);
}

char Captioned::AccessKey() const { return AccessKeyOf(caption_); }

bool Captioned::ReadMember(std::string_view name, Variant& value) const {
  if (!SameName(name, "Caption")) return Widget::ReadMember(name, value);
  value = caption_;
  return true;
}

bool Captioned::WriteMember(std::string_view name, const Variant& value) {
  if (!SameName(name, "Caption")) return Widget::WriteMember(name, value);
  Caption(value.ToText());
  return true;
}

char AccessKeyOf(std::string_view caption) {
  for (std::size_t i = 0; i + 1 < caption.size(); ++i) {
    if (caption[i] != '&') continue;
    if (caption[i + 1] == '&') {
      ++i;
    } else {
      return UpperLetterOrDigit(caption[i + 1]);
    }
  }
  return '\0';
}

std::string PlainCaption(std::string_view caption) {
  // Fast path: most captions have no mark, and front ends ask at every change.
  if (caption.find('&') == std::string_view::npos) return std::string(caption);
  std::string plain;
  for (std::size_t i = 0; i < caption.size(); ++i) {
    if (caption[i] == '&' && ++i == caption.size()) break;
    plain += caption[i];
  }
  return plain;
}

}  // namespace tactix
