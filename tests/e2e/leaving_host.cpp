#include "e2e/leaving_host.h"

#include <windows.h>

#include <ole2.h>

#include <cstdio>
#include <exception>
#include <memory>

#include "e2e/driver/tour.h"
#include "e2e/driver/wait.h"

namespace tavrin::e2e {

namespace {

constexpr int Failed = 1;
constexpr int Unknown = 2;

/// The apartment goes, the loop goes on, and a user closes the windows.
int EndApartment(Host& host) {
    host.Call([&] {
        host.Release();
        OleUninitialize();
    });
    if (OpenForms().empty()) return 0;
    PostMessageW(AwaitForm("Utilitati").Handle(), WM_CLOSE, 0, 0);
    if (!AwaitClosed("Utilitati")) return Failed;
    for (const Window& form : OpenForms())
        PostMessageW(form.Handle(), WM_CLOSE, 0, 0);
    return WaitUntil([] { return OpenForms().empty(); }) ? 0 : Failed;
}

/// The loop ends, and with it the apartment and the thread, under whose windows the ground goes.
int EndLoop(std::unique_ptr<Host> host) {
    host->Call([&] { host->Release(); });
    host.reset();
    return OpenForms().empty() ? 0 : Failed;
}

}  // namespace

int LeaveBadly(const std::string& how) try {
    auto host = std::make_unique<Host>();
    OpenEveryWindow(*host);
    if (how == "return") {
        // Nobody destroys the host any more: its thread is in the loop when the process ends.
        static_cast<void>(host.release());
        return 0;
    }
    if (how == "exit") {
        host->Ui().Post([] { ExitProcess(0); });
        Sleep(INFINITE);
    }
    if (how == "release") {
        host->Release();
        host->Call([] { CoFreeUnusedLibrariesEx(0, 0); });
        static_cast<void>(host.release());
        return 0;
    }
    if (how == "quit") return EndLoop(std::move(host));
    if (how == "uninitialize") {
        const int result = EndApartment(*host);
        static_cast<void>(host.release());  // its objects have lost their apartment
        return result;
    }
    return Unknown;
} catch (const std::exception& failure) {
    std::fprintf(stderr, "%s\n", failure.what());
    return Failed;
}

}  // namespace tavrin::e2e
