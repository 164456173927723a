#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "tactix/platform/Event.h"
#include "tactix/platform/Export.h"
#include "tactix/platform/widgets/Widget.h"

namespace tactix {

/// A drop-down list. Its text may be no row's text, but users pick rows, they do not type.
class TACTIX_EXPORT ListBox final : public Widget {
 public:
  WidgetKind Kind() const override { return WidgetKind::ListBox; }

  /// Takes all rows out and deselects, silently; the text stays.
  void Clear();
  /// Adds a row at the end, or before row `index`; an index outside 0 ... count fails with 5. The selected row stays
  /// selected.
  void AddItem(std::string_view item, std::optional<std::int32_t> index = std::nullopt);
  /// Makes room for that many rows in all.
  void Reserve(std::size_t rows) { rows_.reserve(rows); }

  std::int32_t ListCount() const { return static_cast<std::int32_t>(rows_.size()); }
  /// A row outside 0 ... count-1 fails with 380.
  const std::string& List(std::int32_t row) const;

  /// The selected row, -1 for none. Setting it takes the row's text and reports Clicked every time, for the same row
  /// too; -1 deselects silently and leaves the text. Any other row fails with 380 and changes nothing.
  std::int32_t ListIndex() const { return row_; }
  void ListIndex(std::int32_t row);

  /// Setting a text that is not the selected row's deselects; a new text reports Changed.
  const std::string& Text() const { return text_; }
  void Text(std::string_view text);

  /// Always 0: a drop-down.
  std::int16_t Style() const { return 0; }

  /// The user picks a row: reports Clicked once, for the same row too. A row that does not exist is no pick.
  void PickRow(std::int32_t row);

  Event<> Clicked{0, "Click"};
  Event<> Changed{0, "Change"};

  bool ReadMember(std::string_view name, Variant& value) const override;
  bool WriteMember(std::string_view name, const Variant& value) override;

 private:
  bool TakesKey(const KeyPress& key) override;
  void Select(std::int32_t row);

  std::vector<std::string> rows_;
  std::string text_;
  std::int32_t row_ = -1;
};

}  // namespace tactix
