#include "tactix/strategy/StrategyListData.h"

#include <cstring>
#include <utility>

#include "tactix/platform/Error.h"
#include "tactix/platform/Utf8.h"

namespace tactix {

namespace {

struct Shared {
  std::shared_ptr<StrategyCatalogue> catalogue;
  StrategyListData::CatalogueFactory createCatalogue;
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
    // Nearly every description: its characters are bytes, and the blanks behind it stand already.
    std::memmove(text_.data(), fitting.data(), fitting.size());
    if (fitting.size() < filled_) std::memset(text_.data() + fitting.size(), ' ', filled_ - fitting.size());
    filled_ = fitting.size();
    return;
  }
  std::string written;  // apart from text_, which `text` may be a piece of
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
    const CatalogueFactory create = shared.createCatalogue;  // a copy: it may set another factory while it runs
    std::shared_ptr<StrategyCatalogue> made = create ? create() : nullptr;
    if (!made) throw Error(Error::ObjectNotSet);
    // The factory may have set one itself; its end is the host's code, too.
    const std::shared_ptr<StrategyCatalogue> before = std::exchange(shared.catalogue, made);
    return made;
  }
  return shared.catalogue;
}

// What is replaced ends last, with everything in its place: that may run code of the host's.

void StrategyListData::UseCatalogue(std::shared_ptr<StrategyCatalogue> catalogue) {
  std::swap(TheShared().catalogue, catalogue);
}

void StrategyListData::CreateCatalogueWith(CatalogueFactory factory) {
  std::swap(TheShared().createCatalogue, factory);
}

DescriptionBuffer& StrategyListData::Buffer() { return TheShared().buffer; }

std::string UnshiftStrategyText(std::string_view text) {
  std::string unshifted;
  // What lies past the width is lost, but a code that cannot be lowered fails there too.
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
