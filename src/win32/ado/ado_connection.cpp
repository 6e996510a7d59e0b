#include "win32/ado/ado_connection.h"

#include <utility>

#include "win32/ado/ado_recordset.h"
#include "win32/ado/provider_errors.h"

namespace tavrin::win32 {

std::unique_ptr<data::Recordset> AdoConnection::Execute(std::string_view statement) {
    constexpr std::int32_t optionsUnspecified = -1;
    Variant affectedRows;
    const Variant answer = WithProviderErrors(connection_, [&] {
        return connection_.Call(L"Execute", Variant(statement), Variant::Reference(affectedRows),
                                Variant(optionsUnspecified));
    });
    return std::make_unique<AdoRecordset>(connection_, DispatchObject(answer.ToObject()),
                                          std::move(affectedRows));
}

std::unique_ptr<data::Recordset> AdoConnection::CreateRecordset() {
    return std::make_unique<AdoRecordset>(connection_);
}

std::unique_ptr<data::Recordset> AdoConnection::Adopt(std::unique_ptr<data::Recordset> recordset) {
    auto* known = dynamic_cast<AdoRecordset*>(recordset.get());
    if (known == nullptr) return CreateRecordset();
    known->BindTo(connection_);
    return recordset;
}

bool AdoConnection::IsOf(const ComPtr<IDispatch>& connection) const {
    return connection_.Object().As<IUnknown>().Get() == connection.As<IUnknown>().Get();
}

}  // namespace tavrin::win32
