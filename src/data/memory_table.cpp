#include "data/memory_table.h"

#include <cassert>
#include <iterator>

namespace tavrin::data {

MemoryTable::MemoryTable(std::vector<std::string> fieldNames, const std::vector<Row>& rows)
    : fieldNames_(std::move(fieldNames)) {
    for (const Row& row : rows)
        AddRow(row);
}

void MemoryTable::AddRow(Row row) {
    assert(row.size() == fieldNames_.size());
    row.resize(fieldNames_.size());
    cells_.insert(cells_.end(), std::make_move_iterator(row.begin()), std::make_move_iterator(row.end()));
    ++rowCount_;
}

}  // namespace tavrin::data
