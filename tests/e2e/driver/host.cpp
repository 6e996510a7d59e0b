#include "e2e/driver/host.h"

#include <ocidl.h>

#include "data/text/date.h"
#include "e2e/driver/input.h"
#include "e2e/driver/wait.h"

namespace tavrin::e2e {

namespace {

using win32::ComPtr;

void Check(HRESULT result, const char* what) {
    if (SUCCEEDED(result)) return;
    char text[128];
    std::snprintf(text, sizeof text, "%s failed with %08lX", what, static_cast<unsigned long>(result));
    throw DriverError(text);
}

ComPtr<_Utile> CreateThroughCom() {
    CLSID classId{};
    Check(CLSIDFromProgID(ProgramId, &classId), "CLSIDFromProgID");
    ComPtr<_Utile> object;
    Check(CoCreateInstance(classId, nullptr, CLSCTX_INPROC_SERVER, __uuidof(_Utile), object.ReceiveVoid()),
          "CoCreateInstance");
    return object;
}

// Away from the corner in which the palette opens and from the middle of the screen, whatever its size.
HWND CreateMainWindow() {
    constexpr int Width = 400;
    constexpr int Height = 220;
    constexpr int FromRight = 60;
    constexpr int FromBottom = 44;
    RECT area{};
    SystemParametersInfoW(SPI_GETWORKAREA, 0, &area, 0);
    return CreateWindowExW(0, L"STATIC", L"Host", WS_OVERLAPPEDWINDOW | WS_VISIBLE | SS_NOTIFY,
                           area.right - FromRight - Width, area.bottom - FromBottom - Height, Width, Height,
                           nullptr, nullptr, nullptr, nullptr);
}

bool IsInForeground() {
    DWORD process = 0;
    GetWindowThreadProcessId(GetForegroundWindow(), &process);
    return process == GetCurrentProcessId();
}

/// Windows gives the foreground to no program that the user was not working with: a click is what it always
/// follows. Above all others for a moment, the window is there to be clicked.
void TakeForeground(const Window& window) {
    if (IsInForeground()) return;
    constexpr UINT InPlace = SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE;
    SetWindowPos(window.Handle(), HWND_TOPMOST, 0, 0, 0, 0, InPlace);
    Click(window);
    Require("the host in the foreground", IsInForeground);
    SetWindowPos(window.Handle(), HWND_NOTOPMOST, 0, 0, 0, 0, InPlace);
}

}  // namespace

DATE OleDay(const HostValues& values) {
    return data::ToOleDate({values.year, values.month, values.day}).days;
}

Host::Host(LoopKind loop, HostData data) : ui_(loop) {
    Call([&] {
        mainWindow_ = Window(CreateMainWindow());
        if (data == HostData::Embedded) database_ = std::make_unique<Database>();
        sink_ = win32::MakeObject<EventSink>();
        CreateObject();
    });
    TakeForeground(mainWindow_);
}

Host::~Host() {
    Call([&] {
        Release();
        sink_.Reset();
        database_.reset();
        DestroyWindow(mainWindow_.Handle());
    });
}

HRESULT Host::Apel(const HostValues& values) {
    return Call([&] { return ApelWith(&database_->Connection(), values); });
}

HRESULT Host::ApelWith(IDispatch* connection, const HostValues& values) {
    return Call([&] {
        return object_->Apel(&connection, OleDay(values), static_cast<short>(values.year), values.company);
    });
}

ComPtr<IConnectionPoint> Host::EventPoint() const {
    ComPtr<IConnectionPoint> point;
    const auto container = object_.As<IConnectionPointContainer>();
    if (!container) throw DriverError("the object has no events");
    Check(container->FindConnectionPoint(__uuidof(__Utile), point.Receive()), "FindConnectionPoint");
    return point;
}

DWORD Host::Advise(const ComPtr<EventSink>& sink) {
    return Call([&] {
        DWORD cookie = 0;
        Check(EventPoint()->Advise(sink.Get(), &cookie), "Advise");
        return cookie;
    });
}

HRESULT Host::Unadvise(DWORD cookie) {
    return Call([&] { return EventPoint()->Unadvise(cookie); });
}

void Host::CreateObject() {
    Call([&] { Use(CreateThroughCom()); });
}

void Host::CreateObjectFrom(const Component& component) {
    Call([&] {
        ComPtr<IClassFactory> factory;
        Check(component.GetClassObject(__uuidof(::Utile), __uuidof(IClassFactory), factory.ReceiveVoid()),
              "DllGetClassObject");
        ComPtr<_Utile> object;
        Check(factory->CreateInstance(nullptr, __uuidof(_Utile), object.ReceiveVoid()), "CreateInstance");
        Use(std::move(object));
    });
}

void Host::Use(ComPtr<_Utile> object) {
    object_ = std::move(object);
    cookie_ = Advise(sink_);
}

void Host::Release() {
    Call([&] {
        if (!object_) return;
        Unadvise(cookie_);
        object_.Reset();
    });
}

std::vector<std::vector<std::string>> Host::Rows(const std::string& query) {
    return Call([&] { return database_->Rows(query); });
}

void Host::SetCodePage(host::CodePage page) {
    Call([&] { database_->SetCodePage(page); });
}

void Host::Run(const std::string& statement) {
    Call([&] { database_->Run(statement); });
}

int Host::ReferencesToConnection() {
    return Call([&] { return database_ ? database_->ReferencesToConnection() : 0; });
}

}  // namespace tavrin::e2e
