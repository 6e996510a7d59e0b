#include "e2e/driver/tour.h"

#include "e2e/driver/component.h"
#include "e2e/driver/wait.h"

namespace tavrin::e2e {

namespace {

LPARAM MiddleOf(const Window& control) {
    return MAKELPARAM(control.Width() / 2, control.Height() / 2);
}

Window OpenFrom(const char* opener, const char* button, const char* window) {
    PostClick(AwaitForm(opener).Control(button));
    return AwaitForm(window);
}

void Close(Host& host, const char* name) {
    PostMessageW(AwaitForm(name).Handle(), WM_CLOSE, 0, 0);
    if (!AwaitClosed(name)) throw DriverError(std::string(name) + " does not close");
    host.Ui().Settle();
}

void Expect(bool condition, const char* complaint) {
    if (!condition) throw DriverError(complaint);
}

}  // namespace

void PostClick(const Window& button) {
    PostMessageW(button.Handle(), WM_LBUTTONDOWN, MK_LBUTTON, MiddleOf(button));
    PostMessageW(button.Handle(), WM_LBUTTONUP, 0, MiddleOf(button));
}

void OpenEveryWindow(Host& host) {
    if (host.Apel() != S_OK) throw DriverError("Apel failed");
    OpenFrom("Utilitati", "cmdAction(3)", "CursValutar");
    OpenFrom("CursValutar", "cmdAction(3)", "CereMoneda");
    Close(host, "CereMoneda");
    OpenFrom("CursValutar", "cmdAction(5)", "EvolutieCurs");
    PostClick(AwaitForm("EvolutieCurs").Control("cmdAction(1)"));
    OpenFrom("Utilitati", "cmdAction(0)", "Notes");
    OpenFrom("Utilitati", "cmdAction(1)", "Agenda");
    OpenFrom("Utilitati", "cmdAction(2)", "frmCalculator");
    OpenFrom("frmCalculator", "cmdVal", "AlegeMoneda");
    OpenFrom("Utilitati", "cmdAction(3)", "CursValutar");
    OpenFrom("CursValutar", "cmdAction(0)", "CursValutarDetaliu");
    host.Ui().Settle();
    Expect(OpenForms().size() == WindowsOfTour - 2, "not every window is open");
}

void CloseEveryWindow(Host& host) {
    PostClick(AwaitForm("Utilitati").Control("imgClose"));
    Close(host, "EvolutieCurs");
    Require("every window to close", [] { return OpenForms().empty(); });
    host.Ui().Settle();
}

void LiveAndLeave(Host& host) {
    {
        const Component component;
        host.CreateObjectFrom(component);
        OpenEveryWindow(host);
        CloseEveryWindow(host);
        host.Release();
        Expect(host.Call([&] { return component.CanUnloadNow(); }) == S_OK, "the DLL will not go");
    }
    Expect(!Component::IsLoaded(), "the DLL has stayed");
    Expect(host.ReferencesToConnection() == 0, "the connection is still held");
    Expect(Database::AliveObjects() == 0, "recordsets or fields are alive");
}

}  // namespace tavrin::e2e
