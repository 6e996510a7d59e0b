// The stand-in accounting program.

#include <windows.h>

#include <chrono>
#include <cstdio>
#include <future>
#include <memory>
#include <optional>
#include <stdexcept>
#include <vector>

#include "data/error.h"
#include "data/text/date.h"
#include "host/ado/connection_object.h"
#include "host/ado/recordset_factory.h"
#include "host/embedded/demo_data.h"
#include "host/program/host_window.h"
#include "host/program/options.h"
#include "host/program/tour.h"
#include "host/program/utilities.h"
#include "host/program/window_thread.h"
#include "win32/ado/dispatch_object.h"
#include "win32/base/library.h"
#include "win32/base/module_path.h"
#include "win32/base/text.h"
#include "win32/base/variant.h"
#include "win32/program/com_scope.h"
#include "win32/program/program_arguments.h"

namespace tavrin::host {
namespace {

using win32::ComPtr;
using win32::Variant;

std::wstring BesideThisProgram(const wchar_t* name) {
    const std::wstring path = win32::ModulePath(nullptr);
    return path.substr(0, path.find_last_of(L'\\') + 1) + name;
}

ComPtr<IDispatch> OpenSystemAdo(const std::string& connectionString) {
    CLSID classId;
    ComPtr<IDispatch> connection;
    HRESULT created = CLSIDFromProgID(L"ADODB.Connection", &classId);
    if (SUCCEEDED(created)) {
        created = CoCreateInstance(classId, nullptr, CLSCTX_INPROC_SERVER, __uuidof(IDispatch),
                                   connection.ReceiveVoid());
    }
    if (FAILED(created)) throw data::Error(created, "ADODB.Connection: " + win32::SystemMessage(created));
    win32::DispatchObject(connection).Call(L"Open", Variant(std::string_view(connectionString)));
    return connection;
}

ComPtr<IDispatch> OpenEmbedded(const Options& options) {
    const auto connection =
        win32::MakeObject<ConnectionObject>(OpenDemoDatabase(options.database, options.codePage));
    if (options.line) connection->SharedSession()->connection->UseLine(std::make_shared<Line>(*options.line));
    return connection;
}

Utilities Connect(const Options& options, std::function<void()> whenLeft) {
    if (!options.dll.empty()) return Utilities::FromFile(win32::ToWide(options.dll), std::move(whenLeft));
    return Utilities::FromRegistration(BesideThisProgram(L"Tavrin.dll"), std::move(whenLeft));
}

/// The component asks what the process is; a host that follows the screen's resolution says so itself.
void FollowResolution() {
    const HANDLE perMonitor = reinterpret_cast<HANDLE>(INT_PTR{-4});
    const win32::SystemFunction<BOOL WINAPI(HANDLE)> set(L"user32.dll", "SetProcessDpiAwarenessContext");
    if (set) set(perMonitor);
}

std::string Summary(const Options& options) {
    return "Societatea " + std::to_string(options.company) + ", data de lucru " +
           data::FormatDayMonthYear(options.date) + ", exercitiul " + std::to_string(options.year);
}

/// The tour is a user of its own, so it may go on while a window shows a message.
void RunMessageLoopDuringTour(const std::wstring& folder) {
    const WindowThread windows;
    std::future<void> tour = std::async(std::launch::async, [&] {
        try {
            RunTour(windows, folder);
        } catch (...) {
            windows.Quit();
            throw;
        }
    });
    RunMessageLoop();
    // Where the windows have gone before their time, the tour still asks for them.
    while (tour.wait_for(std::chrono::milliseconds(10)) == std::future_status::timeout) {
        MSG message;
        PeekMessageW(&message, nullptr, 0, 0, PM_NOREMOVE);
    }
    tour.get();
}

void RunHost(const Options& options) {
    if (options.followsResolution) FollowResolution();
    const win32::ComScope com;
    // Registered in the process, so that the component finds the host's recordset; real ADO brings its own.
    std::optional<RecordsetRegistration> recordsets;
    ComPtr<IDispatch> connection;
    if (options.adoConnection.empty()) {
        recordsets.emplace();
        connection = OpenEmbedded(options);
    } else {
        connection = OpenSystemAdo(options.adoConnection);
    }

    const HostWindow* left = nullptr;
    Utilities utilities = Connect(options, [&] { left->TellLeft(); });
    const auto open = [&] { utilities.Apel(connection, options.date, options.year, options.company); };
    const HostWindow window(Summary(options), open);
    left = &window;
    open();
    if (options.tourFolder.empty()) {
        RunMessageLoop();
    } else {
        RunMessageLoopDuringTour(win32::ToWide(options.tourFolder));
    }
}

int Main() try {
    const Options options = ParseOptions(win32::Arguments());
    if (options.help) {
        std::fputs(UsageText, stdout);
        return 0;
    }
    RunHost(options);
    return 0;
} catch (const std::invalid_argument& error) {
    std::fprintf(stderr, "tavrin_host: %s (see --help)\n", error.what());
    return 2;
} catch (const std::exception& error) {
    std::fprintf(stderr, "tavrin_host: %s\n", error.what());
    return 1;
}

}  // namespace
}  // namespace tavrin::host

int main() {
    return tavrin::host::Main();
}
