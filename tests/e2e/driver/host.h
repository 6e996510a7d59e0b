#pragma once

#include <windows.h>

#include <tavrin_interfaces.h>

#include <memory>
#include <string>

#include "e2e/driver/component.h"
#include "e2e/driver/database.h"
#include "e2e/driver/event_sink.h"
#include "e2e/driver/ui_thread.h"
#include "e2e/driver/window.h"
#include "win32/base/com_ptr.h"

namespace tavrin::e2e {

/// What a host passes besides its connection.
struct HostValues {
    int year = 2003;
    int month = 6;
    int day = 16;
    int company = 2;  ///< of the demo data: 1 has rates frozen to 31 March 2003, 2 has never frozen any
};

/// A day in the month that company 1 has frozen.
inline constexpr HostValues FrozenMarch{.year = 2003, .month = 3, .day = 20, .company = 1};

/// Whether the host has the database of its own, with the objects that stand for ADO's in its process.
enum class HostData { Embedded, None };

/// An accounting program: a window, a database, and the component's object with a listener to its event, all
/// on one user-interface thread. Its members may be used from the test's thread; what they give back that
/// belongs to the host's thread is to be used inside Ui().Call alone.
class Host {
  public:
    /// Creates the object through COM by its ProgID and listens to it. \throws DriverError
    explicit Host(LoopKind loop = LoopKind::Plain, HostData data = HostData::Embedded);
    ~Host();
    Host(const Host&) = delete;
    Host& operator=(const Host&) = delete;

    UiThread& Ui() { return ui_; }
    /// Runs a function on the host's thread.
    template <class Function>
    auto Call(Function&& function) {
        return ui_.Call(std::forward<Function>(function));
    }

    /// Hands the host's own database over. \pre it has one
    HRESULT Apel(const HostValues& values = {});
    HRESULT ApelWith(IDispatch* connection, const HostValues& values = {});

    /// How often the event has come.
    int Iesire() const { return sink_->Iesire(); }

    /// The host's own main window.
    const Window& MainWindow() const { return mainWindow_; }
    /// The mouse's button comes up over that window. This ends a drag wherever it goes on, as the system then
    /// takes all messages of the thread.
    void LetGoOfMouse() const { PostMessageW(mainWindow_.Handle(), WM_LBUTTONUP, 0, 0); }

    Database& Data() { return *database_; }
    const win32::ComPtr<_Utile>& Object() const { return object_; }
    const win32::ComPtr<EventSink>& Sink() const { return sink_; }

    DWORD Advise(const win32::ComPtr<EventSink>& sink);
    HRESULT Unadvise(DWORD cookie);

    /// Ends the listening and lets go of the component's object; it may be done early.
    void Release();
    /// Makes a new object after that, through COM or from a DLL that is loaded by hand, and listens to it.
    void CreateObject();
    void CreateObjectFrom(const Component& component);

    // From outside, for tests.
    std::vector<std::vector<std::string>> Rows(const std::string& query);
    void Run(const std::string& statement);
    void SetCodePage(host::CodePage page);
    int ReferencesToConnection();  ///< besides the host's own; 0 where it has no database

  private:
    void Use(win32::ComPtr<_Utile> object);
    win32::ComPtr<IConnectionPoint> EventPoint() const;

    UiThread ui_;
    Window mainWindow_;
    std::unique_ptr<Database> database_;
    win32::ComPtr<_Utile> object_;
    win32::ComPtr<EventSink> sink_;
    DWORD cookie_ = 0;
};

/// The OLE date of the values' day.
DATE OleDay(const HostValues& values);

}  // namespace tavrin::e2e
