#include "win32/ado/ado_table.h"

#include <windows.h>

#include <oleauto.h>

#include <utility>

#include "data/error.h"
#include "win32/ado/variant_value.h"

namespace tavrin::win32 {
namespace {

/// How many elements one dimension (from 1) of an array has.
std::size_t Extent(SAFEARRAY* array, UINT dimension) {
    LONG first = 0;
    LONG last = -1;
    SafeArrayGetLBound(array, dimension, &first);
    SafeArrayGetUBound(array, dimension, &last);
    return last < first ? 0 : static_cast<std::size_t>(last - first) + 1;
}

}  // namespace

RowBlock::RowBlock(Variant array, std::size_t fieldCount)
    : array_(std::move(array)), fieldCount_(fieldCount) {
    SAFEARRAY* const content = array_.Type() == (VT_ARRAY | VT_VARIANT) ? array_.Get().parray : nullptr;
    if (content == nullptr || SafeArrayGetDim(content) != 2 || Extent(content, 1) != fieldCount)
        throw data::RuntimeError(data::error_number::TypeMismatch);
    rowCount_ = Extent(content, 2);
    void* cells = nullptr;
    if (FAILED(SafeArrayAccessData(content, &cells)))
        throw data::RuntimeError(data::error_number::TypeMismatch);
    cells_ = static_cast<const VARIANT*>(cells);
}

RowBlock::~RowBlock() {
    SafeArrayUnaccessData(array_.Get().parray);
}

std::size_t AdoTable::AddBlock(Variant array) {
    blocks_.push_back(std::make_unique<RowBlock>(std::move(array), fieldNames_.size()));
    rowCount_ += blocks_.back()->RowCount();
    return blocks_.back()->RowCount();
}

data::Value AdoTable::At(std::size_t row, std::size_t field) const {
    return ToValue(blocks_[row / BlockRows]->At(row % BlockRows, field));
}

}  // namespace tavrin::win32
