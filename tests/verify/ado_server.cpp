#include "verify/ado_server.h"

#include <objbase.h>

#include "win32/base/text.h"

namespace tavrin::verify {

namespace {

win32::DispatchObject CreateConnection() {
    CLSID classId{};
    HRESULT result = CLSIDFromProgID(L"ADODB.Connection", &classId);
    win32::ComPtr<IDispatch> object;
    if (SUCCEEDED(result)) {
        result =
            CoCreateInstance(classId, nullptr, CLSCTX_INPROC_SERVER, IID_IDispatch, object.ReceiveVoid());
    }
    if (FAILED(result))
        throw data::Error(result, "this machine's ADO gives no connection: " + win32::SystemMessage(result));
    return win32::DispatchObject(object);
}

}  // namespace

AdoServer::AdoServer(const std::string& connectionString) : object_(CreateConnection()) {
    object_.Call(L"Open", win32::Variant(connectionString));
    connection_ = std::make_unique<win32::AdoConnection>(object_.Object());
}

AdoServer::~AdoServer() {
    try {
        object_.Call(L"Close");
    } catch (const data::Error&) {
        // It may have gone by itself.
    }
}

std::vector<Fact> AdoServer::Facts() {
    std::vector<Fact> facts{{"ADO", object_.Get(L"Version").ToText()},
                            {"Provider", object_.Get(L"Provider").ToText()}};
    constexpr std::pair<const char*, const char*> questions[] = {
        {"Version", "SELECT CONVERT(nvarchar(60), SERVERPROPERTY('ProductVersion'))"},
        {"Edition", "SELECT CONVERT(nvarchar(60), SERVERPROPERTY('Edition'))"},
        {"Collation", "SELECT CONVERT(nvarchar(60), SERVERPROPERTY('Collation'))"},
        {"Language", "SELECT CONVERT(nvarchar(60), @@LANGUAGE)"},
    };
    for (const auto& [name, question] : questions) {
        try {
            facts.push_back({name, data::ExecuteScalar(*connection_, question).ToText()});
        } catch (const data::Error&) {
            // Not every server answers each of them.
        }
    }
    return facts;
}

}  // namespace tavrin::verify
