// Transactions of the stand-in host's connection.

#include <windows.h>

#include <gmock/gmock.h>

#include "data/error.h"
#include "host/ado/connection_object.h"
#include "host/embedded/demo_data.h"
#include "win32/ado/ado_connection.h"

namespace tavrin::e2e {
namespace {

class Transactions : public testing::Test {
  protected:
    void Delete() { rows_.Execute("DELETE FROM Agenda WHERE Nume LIKE 'A%'"); }
    std::int64_t Count() { return data::ExecuteScalar(rows_, "SELECT count(*) FROM Agenda").ToInteger(); }
    std::int32_t NumberOf(const wchar_t* method) {
        try {
            connection_.Call(method);
        } catch (const data::Error& error) {
            return error.Number();
        }
        return 0;
    }

    win32::ComPtr<IDispatch> object_ =
        win32::MakeObject<host::ConnectionObject>(host::OpenDemoDatabase(":memory:"));
    win32::DispatchObject connection_{object_};
    win32::AdoConnection rows_{object_};
};

TEST_F(Transactions, AreUndoneByARollback) {
    const std::int64_t before = Count();
    EXPECT_EQ(connection_.Call(L"BeginTrans").ToLong(), 1);
    Delete();
    EXPECT_LT(Count(), before);
    connection_.Call(L"RollbackTrans");
    EXPECT_EQ(Count(), before);
}

TEST_F(Transactions, AreKeptByACommit) {
    const std::int64_t before = Count();
    connection_.Call(L"BeginTrans");
    Delete();
    connection_.Call(L"CommitTrans");
    EXPECT_LT(Count(), before);
    EXPECT_EQ(NumberOf(L"RollbackTrans"), static_cast<std::int32_t>(0x8004D00E)) << "it has ended";
}

TEST_F(Transactions, AreOneAtATime) {
    EXPECT_EQ(NumberOf(L"CommitTrans"), static_cast<std::int32_t>(0x8004D00E));
    connection_.Call(L"BeginTrans");
    EXPECT_EQ(NumberOf(L"BeginTrans"), static_cast<std::int32_t>(0x8004D013));
    connection_.Call(L"Close");
    EXPECT_EQ(NumberOf(L"BeginTrans"), 3709);
}

}  // namespace
}  // namespace tavrin::e2e
