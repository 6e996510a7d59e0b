#include "host/ado/row_array.h"

#include <windows.h>

#include <oleauto.h>

#include <algorithm>
#include <array>
#include <new>

#include "data/error.h"
#include "host/ado/value_variant.h"

namespace tavrin::host {
namespace {

using win32::Variant;

/// An array under construction, in the variant that owns it.
class ArrayBuilder {
  public:
    ArrayBuilder(std::size_t fields, std::size_t rows) {
        std::array<SAFEARRAYBOUND, 2> bounds{
            {{static_cast<ULONG>(fields), 0}, {static_cast<ULONG>(rows), 0}}};
        SAFEARRAY* array = SafeArrayCreate(VT_VARIANT, static_cast<UINT>(bounds.size()), bounds.data());
        if (array == nullptr) throw std::bad_alloc();
        VARIANT* owner = owner_.Receive();
        owner->vt = VT_ARRAY | VT_VARIANT;
        owner->parray = array;
        void* cells = nullptr;
        if (FAILED(SafeArrayAccessData(array, &cells))) throw std::bad_alloc();
        next_ = static_cast<VARIANT*>(cells);
    }

    /// Cells come field by field, row after row.
    void Add(Variant value) { *next_++ = value.Detach(); }

    Variant Finish() {
        SafeArrayUnaccessData(owner_.Get().parray);
        return std::move(owner_);
    }

  private:
    Variant owner_;
    VARIANT* next_ = nullptr;
};

}  // namespace

Variant TakeRows(EmbeddedRecordset& recordset, std::int64_t rows) {
    if (recordset.AtBeginning() || recordset.AtEnd()) {
        throw data::Error(data::error_number::NoCurrentRecord,
                          "Either BOF or EOF is True, or the current record has been deleted. Requested "
                          "operation requires a current record.");
    }
    const std::int64_t first = recordset.AbsolutePosition() - 1;
    const std::int64_t left = recordset.RecordCount() - first;
    const std::int64_t count = rows < 0 ? left : std::min(rows, left);
    const std::vector<FieldInfo>& fields = recordset.Fields();
    const data::TablePtr table = recordset.ReadAll();
    ArrayBuilder builder(fields.size(), static_cast<std::size_t>(count));
    for (std::int64_t row = first; row < first + count; ++row) {
        for (std::size_t field = 0; field < fields.size(); ++field)
            builder.Add(ToVariant(table->At(static_cast<std::size_t>(row), field), fields[field].type));
    }
    recordset.Move(count);
    return builder.Finish();
}

}  // namespace tavrin::host
