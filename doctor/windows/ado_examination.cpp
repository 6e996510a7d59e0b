#include "doctor/windows/ado_examination.h"

#include <windows.h>

#include "win32/ado/provider_errors.h"
#include "win32/base/text.h"

namespace tavrin::doctor {
namespace {

using win32::DispatchObject;
using win32::Variant;

// A table that somebody has locked is waited for so long.
constexpr std::int32_t CommandSeconds = 15;

DispatchObject MakeConnection() {
    CLSID id;
    win32::ComPtr<IDispatch> connection;
    HRESULT result = CLSIDFromProgID(L"ADODB.Connection", &id);
    if (SUCCEEDED(result)) {
        result = CoCreateInstance(id, nullptr, CLSCTX_INPROC_SERVER, __uuidof(IDispatch),
                                  connection.ReceiveVoid());
    }
    if (FAILED(result)) throw data::Error(result, "ADODB.Connection: " + win32::SystemMessage(result));
    return DispatchObject(connection);
}

/// Providers need not have a property.
std::string PropertyText(const DispatchObject& connection, std::string_view name) {
    try {
        return connection.GetObject(L"Properties").GetObject(L"Item", Variant(name)).Get(L"Value").ToText();
    } catch (const data::Error&) {
        return {};
    }
}

}  // namespace

AdoExamination::AdoExamination(const std::string& connectionString) : connection_(MakeConnection()) {
    win32::WithProviderErrors(
        connection_, [&] { return connection_.Call(L"Open", Variant(std::string_view(connectionString))); });
    connection_.Put(L"CommandTimeout", Variant(CommandSeconds));
    statements_ = std::make_unique<win32::AdoConnection>(connection_.Object());
}

AdoExamination::~AdoExamination() {
    try {
        statements_.reset();
        connection_.Call(L"Close");
    } catch (...) {
        // It goes with its object.
    }
}

std::string AdoExamination::Description() const {
    std::string text =
        "ADO " + connection_.Get(L"Version").ToText() + ", " + connection_.Get(L"Provider").ToText();
    for (const char* const name : {"Provider Version", "DBMS Name", "DBMS Version"}) {
        const std::string value = PropertyText(connection_, name);
        if (!value.empty()) text += ", " + value;
    }
    return text;
}

}  // namespace tavrin::doctor
