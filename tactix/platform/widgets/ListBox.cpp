#include "tactix/platform/widgets/ListBox.h"

#include <utility>

#include "tactix/platform/Error.h"

namespace tactix {

void ListBox::Clear() {
  rows_.clear();
  row_ = -1;
  notShown_ = 0;
  if (Observer()) Observer()->RowsCleared(*this);
}

void ListBox::AddItem(std::string_view item, std::optional<std::int32_t> index) {
  const std::int32_t at = index.value_or(ListCount());
  if (at < 0 || at > ListCount()) throw Error(Error::InvalidProcedureCall);
  if (at == ListCount()) return Append(std::string(item));
  ShowAppended();
  rows_.insert(rows_.begin() + at, Row{std::string(item)});
  if (row_ >= at) ++row_;
  if (Observer()) Observer()->RowInserted(*this, at);
}

void ListBox::Append(std::string item) {
  rows_.push_back(Row{std::move(item)});
  if (appendings_ > 0) {
    ++notShown_;
  } else if (Observer()) {
    Observer()->RowInserted(*this, ListCount() - 1);
  }
}

ListBox::Appending::Appending(ListBox& list) : list_(list) { ++list.appendings_; }

ListBox::Appending::~Appending() {
  try {
    End();
  } catch (...) {
  }
}

void ListBox::Appending::End() {
  ListBox* const list = std::exchange(list_, Weak<ListBox>()).Get();
  if (list && --list->appendings_ == 0) list->ShowAppended();
}

void ListBox::ShowAppended() {
  const std::int32_t count = std::exchange(notShown_, 0);
  if (count > 0 && Observer()) Observer()->RowsAppended(*this, ListCount() - count, count);
}

std::size_t ListBox::PlaceOf(std::int32_t row) const {
  if (row < 0 || row >= ListCount()) throw Error(Error::InvalidPropertyValue);
  return static_cast<std::size_t>(row);
}

const std::string& ListBox::List(std::int32_t row) const { return rows_[PlaceOf(row)].text; }

std::int32_t ListBox::ItemData(std::int32_t row) const { return rows_[PlaceOf(row)].data; }

void ListBox::ItemData(std::int32_t row, std::int32_t data) { rows_[PlaceOf(row)].data = data; }

void ListBox::ListIndex(std::int32_t row) {
  if (row < -1 || row >= ListCount()) throw Error(Error::InvalidPropertyValue);
  ShowAppended();
  if (row == -1) {
    if (row_ == -1) return;
    row_ = -1;
    Notify(Aspect::Row);
  } else {
    Select(row);
  }
}

void ListBox::Text(std::string_view text) {
  // As long as a row is selected, the text is that row's.
  if (text == text_) return;
  text_.assign(text);
  ShowAppended();
  const Weak<ListBox> self(this);
  if (row_ != -1) {
    row_ = -1;
    Notify(Aspect::Row);
  }
  if (!self) return;
  Notify(Aspect::Text);
  if (self) Changed.Raise();
}

void ListBox::Select(std::int32_t row) {
  const Weak<ListBox> self(this);
  row_ = row;
  text_ = SelectedText();
  Notify(Aspect::Row);
  if (self) Clicked.Raise();
}

void ListBox::PickRow(std::int32_t row) {
  Perform([this, row] {
    if (row < 0 || row >= ListCount()) return;
    ShowAppended();
    Select(row);
  });
}

bool ListBox::TakesKey(const KeyPress& key) {
  if ((key.shift & (CtrlKey | AltKey)) != 0) return false;
  const std::int32_t last = ListCount() - 1;
  switch (key.code) {
    case UpArrowKey:
      if (row_ > 0) PickRow(row_ - 1);
      return true;
    case DownArrowKey:
      if (row_ < last) PickRow(row_ + 1);
      return true;
    case HomeKey:
      if (row_ != 0) PickRow(0);
      return true;
    case EndKey:
      if (row_ != last) PickRow(last);
      return true;
    default:
      break;
  }
  const char letter = key.Letter();
  if (letter == '\0') return false;
  for (std::int32_t step = 1; step <= ListCount(); ++step) {
    const std::int32_t row = (row_ + step) % ListCount();
    const std::string& text = rows_[static_cast<std::size_t>(row)].text;
    if (text.empty() || KeyPress{text.front(), 0}.Letter() != letter) continue;
    if (row != row_) PickRow(row);
    break;
  }
  return true;
}

bool ListBox::ReadMember(std::string_view name, Variant& value) const {
  if (SameName(name, "Text")) {
    value = text_;
  } else if (SameName(name, "ListIndex")) {
    value = row_;
  } else if (SameName(name, "ListCount")) {
    value = ListCount();
  } else {
    return Widget::ReadMember(name, value);
  }
  return true;
}

bool ListBox::WriteMember(std::string_view name, const Variant& value) {
  if (SameName(name, "Text")) {
    Text(value.ToText());
  } else if (SameName(name, "ListIndex")) {
    ListIndex(value.ToLong());
  } else {
    return Widget::WriteMember(name, value);
  }
  return true;
}

}  // namespace tactix
