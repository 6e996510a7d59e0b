#include "windows/accounting_host.h"

#include <objbase.h>

#include "data/text/date.h"
#include "e2e/driver/wait.h"
#include "host/embedded/demo_data.h"
#include "windows/message_loop.h"

namespace tavrin::bench {

namespace {

constexpr short WorkYear = 2003;
constexpr LONG Company = 2;

void Check(HRESULT result, const char* what) {
    if (FAILED(result)) throw e2e::DriverError(std::string(what) + " failed");
}

}  // namespace

AccountingHost::AccountingHost()
    : database_(host::OpenDemoDatabase(":memory:")),
      connection_(win32::MakeObject<host::ConnectionObject>(database_)) {}

AccountingHost::~AccountingHost() {
    Leave();
}

e2e::Window AccountingHost::OpenPalette() {
    Check(CoCreateInstance(__uuidof(::Utile), nullptr, CLSCTX_INPROC_SERVER, __uuidof(_Utile),
                           object_.ReceiveVoid()),
          "CoCreateInstance");
    IDispatch* connection = connection_.Get();
    const DATE day = data::ToOleDate({WorkYear, 6, 16}).days;
    Check(object_->Apel(&connection, day, WorkYear, Company), "Apel");
    RunUntilPainted();
    return e2e::AwaitForm("Utilitati");
}

e2e::Window AccountingHost::Open(const e2e::Window& opener, const char* control, const char* window) {
    Click(opener.Control(control));
    RunUntilPainted();
    return e2e::AwaitForm(window);
}

void AccountingHost::Close(const e2e::Window& window) {
    PostMessageW(window.Handle(), WM_CLOSE, 0, 0);
    RunUntilPainted();
}

void AccountingHost::Leave() {
    if (const auto palette = e2e::FindForm("Utilitati")) Close(*palette);
    object_.Reset();
    CoFreeUnusedLibrariesEx(0, 0);
}

}  // namespace tavrin::bench
