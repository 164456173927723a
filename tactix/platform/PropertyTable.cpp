#include "tactix/platform/PropertyTable.h"

namespace tactix {

const PropertyTable::Row* PropertyTable::Find(std::string_view name) const {
  for (const Row& row : rows_) {
    if (SameName(row.name, name)) return &row;
  }
  return nullptr;
}

PropertyTable& PropertyTable::Add(std::string_view name, std::function<Variant(Control&)> get,
                                  std::function<void(Control&, const Variant&)> set) {
  rows_.push_back(Row{std::string(name), std::move(get), std::move(set)});
  return *this;
}

}  // namespace tactix
