// What the component asks of a host's database objects: how often it goes to the server, and whether it asks
// any of them for what it has been told already.

#include "e2e/host_test.h"
#include "host/ado/questions.h"
#include "host/ado/recordset_object.h"
#include "host/embedded/demo_data.h"
#include "host/embedded/line.h"
#include "win32/ado/dispatch_object.h"

namespace tavrin::e2e {
namespace {

using testing::IsEmpty;

class NetworkTest : public HostTest {
  protected:
    NetworkTest() {
        host->Call([&] {
            host->Data().Connection().SharedSession()->connection->UseLine(line);
            host::Questions::TakeRepeated();
        });
    }

    /// One thing that the user does; what the host does before the next may change any answer.
    template <class Action>
    void Do(const char* what, Action&& action) {
        action();
        host->Ui().Settle();
        host->Call([&] {
            EXPECT_THAT(host::Questions::TakeRepeated(), IsEmpty()) << what;
            EXPECT_EQ(line->Passed().roundTrips, line->Passed().statements) << what;
            host::Questions::BeginAction();
        });
    }

    std::shared_ptr<host::Line> line = std::make_shared<host::Line>();
};

TEST_F(NetworkTest, TheAddressBookAsksForNothingTwice) {
    const Window palette = OpenPalette();
    Window book;
    Do("opening", [&] {
        Click(palette.Control("cmdAction(1)"));
        book = AwaitForm("Agenda");
    });
    Do("a row", [&] { PressKey(VK_DOWN); });
    Do("another", [&] { PressKey(VK_DOWN); });
    Do("the end", [&] { PressKey(VK_NEXT); });
    Do("modifying", [&] { Click(book.Control("cmdAction(3)")); });
    Do("accepting", [&] { Click(book.Control("cmdAction(0)")); });
    Do("adding", [&] { Click(book.Control("cmdAction(2)")); });
    Do("giving up", [&] { Click(book.Control("cmdAction(1)")); });
    EXPECT_EQ(host->Call([&] { return line->Passed().statements; }), 3);
}

TEST_F(NetworkTest, TheRateWindowsAskForNothingTwice) {
    Window list;
    Do("opening", [&] { list = OpenRateList(); });
    Do("reading anew", [&] { Click(list.Control("cmdRefresh")); });
    Do("an entry", [&] {
        Click(list.Control("cmdAction(0)"));
        PostMessageW(AwaitForm("CursValutarDetaliu").Handle(), WM_CLOSE, 0, 0);
    });
    Do("the evolution", [&] {
        Click(list.Control("cmdAction(5)"));
        Click(AwaitForm("EvolutieCurs").Control("cmdAction(1)"));
    });
    EXPECT_GT(host->Call([&] { return line->Passed().statements; }), 5);
}

// The stand-in's own line.

class LineTest : public testing::Test {
  protected:
    LineTest() { connection_->SharedSession()->connection->UseLine(line_); }

    win32::DispatchObject OpenRecordset(std::int32_t cursorLocation) {
        win32::DispatchObject recordset(win32::MakeObject<host::RecordsetObject>());
        recordset.Put(L"CursorLocation", win32::Variant(cursorLocation));
        recordset.Call(L"Open", win32::Variant(std::string_view("SELECT Nume FROM Agenda")),
                       win32::Variant(win32::ComPtr<IDispatch>(connection_)),
                       win32::Variant(host::cursor::Static));
        return recordset;
    }

    std::shared_ptr<host::Line> line_ = std::make_shared<host::Line>();
    win32::ComPtr<host::ConnectionObject> connection_ =
        win32::MakeObject<host::ConnectionObject>(host::OpenDemoDatabase(":memory:"));
};

TEST_F(LineTest, ACursorOnTheServerIsAskedForEachBlock) {
    const win32::DispatchObject recordset = OpenRecordset(host::cursor::UseServer);
    recordset.Get(L"RecordCount");
    recordset.Call(L"GetRows", win32::Variant(std::int32_t{10}));
    recordset.Call(L"GetRows", win32::Variant(std::int32_t{10}));
    EXPECT_EQ(line_->Passed().statements, 1);
    EXPECT_EQ(line_->Passed().roundTrips, 4);
}

TEST_F(LineTest, AClientsCursorHasItsRows) {
    const win32::DispatchObject recordset = OpenRecordset(host::cursor::UseClient);
    recordset.Get(L"RecordCount");
    recordset.Call(L"GetRows", win32::Variant(std::int32_t{10}));
    EXPECT_EQ(line_->Passed().roundTrips, 1);
}

TEST_F(LineTest, APropertyThatIsAskedTwiceIsNoticed) {
    const win32::DispatchObject recordset = OpenRecordset(host::cursor::UseClient);
    host::Questions::TakeRepeated();
    recordset.Get(L"EOF");
    recordset.Call(L"MoveNext");
    recordset.Get(L"EOF");
    EXPECT_THAT(host::Questions::TakeRepeated(), IsEmpty());
    recordset.Get(L"EOF");
    EXPECT_THAT(host::Questions::TakeRepeated(), testing::ElementsAre(L"Recordset.EOF"));
}

}  // namespace
}  // namespace tavrin::e2e
