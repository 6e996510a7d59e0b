#include "host/ado/connection_object.h"

#include <algorithm>
#include <array>
#include <limits>

#include "host/ado/errors_object.h"
#include "host/ado/recordset_object.h"

namespace tavrin::host {

using win32::Variant;

namespace {

std::int32_t ToLong(std::int64_t number) {
    return static_cast<std::int32_t>(
        std::min<std::int64_t>(number, std::numeric_limits<std::int32_t>::max()));
}

}  // namespace

ConnectionObject::ConnectionObject(std::shared_ptr<EmbeddedDatabase> database) {
    session_->connection = std::make_unique<EmbeddedConnection>(std::move(database));
}

ConnectionObject::ConnectionObject(Opener opener) : opener_(std::move(opener)) {
    session_->isOpen = false;
}

std::span<const Member> ConnectionObject::Members() const {
    using Self = ConnectionObject;
    static constexpr std::array table{
        Member{L"ConnectionString", 0, Access::Get, 0, Run<&Self::GetConnectionString>},
        Member{L"ConnectionString", 0, Access::Put, 1, Run<&Self::PutConnectionString>},
        Member{L"CommandTimeout", 2, Access::Get, 0, Run<&Self::GetCommandTimeout>},
        Member{L"CommandTimeout", 2, Access::Put, 1, Run<&Self::PutCommandTimeout>},
        Member{L"Version", 4, Access::Get, 0, Run<&Self::Version>},
        Member{L"Close", 5, Access::Call, 0, Run<&Self::Close>},
        Member{L"Execute", 6, Access::Call, 3, Run<&Self::Execute>},
        Member{L"BeginTrans", 7, Access::Call, 0, Run<&Self::BeginTrans>},
        Member{L"CommitTrans", 8, Access::Call, 0, Run<&Self::CommitTrans>},
        Member{L"RollbackTrans", 9, Access::Call, 0, Run<&Self::RollbackTrans>},
        Member{L"Open", 10, Access::Call, 4, Run<&Self::Open>},
        Member{L"Errors", 11, Access::Get, 0, Run<&Self::Errors>},
        Member{L"CursorLocation", 15, Access::Get, 0, Run<&Self::GetCursorLocation>},
        Member{L"CursorLocation", 15, Access::Put, 1, Run<&Self::PutCursorLocation>},
        Member{L"Provider", 17, Access::Get, 0, Run<&Self::Provider>},
        Member{L"State", 18, Access::Get, 0, Run<&Self::State>},
    };
    return table;
}

Variant ConnectionObject::Execute(const CallArguments& arguments) {
    std::unique_ptr<EmbeddedRecordset> rows = session_->Run(arguments.Text(0));
    arguments.GiveBack(1, ToLong(rows->AffectedRows()));
    return AsVariant(win32::MakeObject<RecordsetObject>(session_, std::move(rows), cursorLocation_));
}

Variant ConnectionObject::Open(const CallArguments& arguments) {
    if (session_->isOpen) ado_error::ThrowOpen();
    if (arguments.Has(0)) connectionString_ = arguments.Text(0);
    if (opener_) session_->connection = std::make_unique<EmbeddedConnection>(opener_(connectionString_));
    session_->isOpen = true;
    return {};
}

Variant ConnectionObject::Close(const CallArguments&) {
    if (!session_->isOpen) ado_error::ThrowClosed();
    transaction_.reset();  // what is not committed is lost
    session_->isOpen = false;
    return {};
}

Variant ConnectionObject::BeginTrans(const CallArguments&) {
    if (!session_->isOpen) ado_error::ThrowInvalidConnection();
    if (transaction_) ado_error::ThrowOneTransactionAlone();
    session_->AskServer();
    transaction_.emplace(session_->connection->Database());
    return Variant(std::int32_t{1});  // how many are open
}

Variant ConnectionObject::CommitTrans(const CallArguments&) {
    if (!transaction_) ado_error::ThrowNoTransaction();
    session_->AskServer();
    transaction_->Commit();
    transaction_.reset();
    return {};
}

Variant ConnectionObject::RollbackTrans(const CallArguments&) {
    if (!transaction_) ado_error::ThrowNoTransaction();
    session_->AskServer();
    transaction_.reset();
    return {};
}

Variant ConnectionObject::State(const CallArguments&) {
    return Variant(std::int32_t{session_->isOpen ? 1 : 0});
}

Variant ConnectionObject::Errors(const CallArguments&) {
    return AsVariant(win32::MakeObject<ErrorsObject>(session_));
}

Variant ConnectionObject::Version(const CallArguments&) {
    return Variant(std::string_view("2.8"));
}

Variant ConnectionObject::Provider(const CallArguments&) {
    return Variant(std::string_view("Tavrin host"));
}

Variant ConnectionObject::GetCursorLocation(const CallArguments&) {
    return Variant(cursorLocation_);
}

Variant ConnectionObject::PutCursorLocation(const CallArguments& arguments) {
    cursorLocation_ = arguments.At(0).ToLong();
    return {};
}

Variant ConnectionObject::GetCommandTimeout(const CallArguments&) {
    return Variant(commandTimeout_);
}

Variant ConnectionObject::PutCommandTimeout(const CallArguments& arguments) {
    commandTimeout_ = arguments.At(0).ToLong();
    return {};
}

Variant ConnectionObject::GetConnectionString(const CallArguments&) {
    return Variant(std::string_view(connectionString_));
}

Variant ConnectionObject::PutConnectionString(const CallArguments& arguments) {
    if (session_->isOpen) ado_error::ThrowOpen();
    connectionString_ = arguments.Text(0);
    return {};
}

}  // namespace tavrin::host
