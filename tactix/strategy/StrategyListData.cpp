#include "tactix/strategy/StrategyListData.h"

#include <cstring>
#include <utility>

#include "tactix/platform/Error.h"
#include "tactix/platform/FactoryHook.h"
#include "tactix/platform/private/Utf8.h"

namespace tactix {

namespace {

struct Shared {
  std::shared_ptr<StrategyCatalogue> catalogue;
  FactoryHook<std::shared_ptr<StrategyCatalogue>> hook{"a strategy catalogue",
                                                       "tactix::StrategyListData::CreateCatalogueWith"};
  DescriptionBuffer buffer;
};

Shared& TheShared() {
  static Shared shared;
  return shared;
}

bool IsAscii(std::string_view text) {
  unsigned bits = 0;
  for (const char c : text) bits |= static_cast<unsigned char>(c);
  return bits < 0x80;
}

char32_t Unshift(const Utf8Character& character) {
  if (!character.wellFormed) return ReplacementCharacter;
  if (character.code < ShiftDistance) throw Error(Error::InvalidProcedureCall);
  return character.code - ShiftDistance;
}

}  // namespace

void DescriptionBuffer::Write(std::string_view text) {
  const std::string_view fitting = text.substr(0, Width);
  if (text_.size() == Width && IsAscii(fitting)) {
    // Fast path for nearly every description: each character is a byte, and the padding after it is there already.
    std::memmove(text_.data(), fitting.data(), fitting.size());
    if (fitting.size() < filled_) std::memset(text_.data() + fitting.size(), ' ', filled_ - fitting.size());
    filled_ = fitting.size();
    return;
  }
  std::string written;  // not text_ itself, because `text` may be a part of it
  written.reserve(Width);
  std::size_t count = 0;
  for (; count < Width && !text.empty(); ++count) {
    const Utf8Character character = DecodeUtf8(text);
    AppendUtf8(written, character.code);
    text.remove_prefix(character.length);
  }
  filled_ = written.size();
  written.append(Width - count, ' ');
  text_ = std::move(written);
}

std::shared_ptr<StrategyCatalogue> StrategyListData::Catalogue() {
  Shared& shared = TheShared();
  if (!shared.catalogue) {
    std::shared_ptr<StrategyCatalogue> made = shared.hook.Create();
    // The factory may have set a catalogue itself. That one is released last, which may run host code.
    const std::shared_ptr<StrategyCatalogue> before = std::exchange(shared.catalogue, made);
    return made;
  }
  return shared.catalogue;
}

void StrategyListData::UseCatalogue(std::shared_ptr<StrategyCatalogue> catalogue) {
  // The old one is destroyed after the new one is in place, because that may run host code.
  std::swap(TheShared().catalogue, catalogue);
}

void StrategyListData::CreateCatalogueWith(CatalogueFactory factory) {
  TheShared().hook.CreateWith(std::move(factory));
}

DescriptionBuffer& StrategyListData::Buffer() { return TheShared().buffer; }

std::string UnshiftStrategyText(std::string_view text) {
  std::string unshifted;
  // Characters past the width are dropped, but a code below 10 fails even there.
  for (std::size_t count = 0; !text.empty() && text.front() != '\0'; ++count) {
    const Utf8Character character = DecodeUtf8(text);
    const char32_t code = Unshift(character);
    if (count < ShiftedWidth) AppendUtf8(unshifted, code);
    text.remove_prefix(character.length);
  }
  return unshifted;
}

std::string UnshiftAndTrimStrategyText(std::string_view text) {
  std::string unshifted = UnshiftStrategyText(text);
  const std::size_t first = unshifted.find_first_not_of(' ');
  if (first == std::string::npos) return {};
  return unshifted.substr(first, unshifted.find_last_not_of(' ') - first + 1);
}

}  // namespace tactix
