#include "win32/ado/provider_errors.h"

namespace tavrin::win32 {

data::Error DescribedByConnection(const DispatchObject& connection, const UndescribedError& error) {
    try {
        const DispatchObject errors = connection.GetObject(L"Errors");
        if (errors.Get(L"Count").ToLong() == 0) return error;
        const DispatchObject first = errors.GetObject(L"Item", Variant(std::int32_t{0}));
        return {first.Get(L"Number").ToLong(), first.Get(L"Description").ToText()};
    } catch (const data::Error&) {
        return error;  // a connection that cannot explain itself leaves the first account standing
    }
}

}  // namespace tavrin::win32
