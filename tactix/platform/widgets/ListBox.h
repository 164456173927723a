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
  /// Adds a row at the end.
  void Append(std::string item);
  /// Makes room for that many rows in all.
  void Reserve(std::size_t rows) { rows_.reserve(rows); }

  /// While one lives, rows that are added at the end are drawn together: at its end, or when anything else about the
  /// list changes. Front ends take many rows at once far faster. The list may end before it.
  class TACTIX_EXPORT Appending {
   public:
    explicit Appending(ListBox& list);
    Appending(const Appending&) = delete;
    Appending& operator=(const Appending&) = delete;
    /// Ends it where End() has not; whatever the drawing fails with is then passed over.
    ~Appending();

    void End();

   private:
    Weak<ListBox> list_;
  };

  std::int32_t ListCount() const { return static_cast<std::int32_t>(rows_.size()); }
  /// A row outside 0 ... count-1 fails with 380.
  const std::string& List(std::int32_t row) const;
  /// A number that the control keeps with a row, 0 by default. A row outside 0 ... count-1 fails with 380.
  std::int32_t ItemData(std::int32_t row) const;
  void ItemData(std::int32_t row, std::int32_t data);

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
  /// Has what was added drawn.
  void ShowAppended();

  struct Row {
    std::string text;
    std::int32_t data = 0;
  };
  std::size_t PlaceOf(std::int32_t row) const;
  const std::string& SelectedText() const { return rows_[static_cast<std::size_t>(row_)].text; }

  std::vector<Row> rows_;
  std::string text_;
  std::int32_t row_ = -1;
  std::int32_t notShown_ = 0;  // how many rows at the end
  std::int32_t appendings_ = 0;
};

}  // namespace tactix
