#include "e2e/proofs/window_session.h"

#include "e2e/driver/component.h"
#include "e2e/driver/tour.h"
#include "e2e/driver/wait.h"

namespace tavrin::e2e {

namespace {

constexpr int MostEventsBetweenLooks = 16;

std::string After(int events, const std::string& complaint, const std::string& trace) {
    std::string open;
    for (const Window& window : TopLevelWindows())
        open += " " + (window.Name().empty() ? window.ClassName() : window.Name());
    return "after " + std::to_string(events) + " events: " + complaint + "; open are" + open +
           "; the last were" + trace;
}

}  // namespace

WindowSession::WindowSession(Host& host, unsigned seed) : host_(host), random_(seed) {}

void WindowSession::OpenIfClosed() {
    if (!OpenForms().empty()) return;
    if (!host_.Call([this] { return host_.Object().Get() != nullptr; })) host_.CreateObject();
    host_.Ui().Post([this] { host_.Apel(); });
    host_.Ui().Settle();
}

std::string WindowSession::LookAround(WindowWatch::Events events) {
    attendant_.Attend();
    if (!attendant_.UnknownMessage().empty()) return "an unknown message: " + attendant_.UnknownMessage();
    std::string complaint = watch_.Complaint(events);
    if (complaint.empty()) return complaint;
    // A menu or a drag keeps the handler under way in which it began, and what that has closed is gone only
    // when it has ended. The system need not know of a drag any more: what takes the mouse away does not end
    // it.
    WaitUntil([&] {
        attendant_.EndMenuAndDrag();
        complaint = watch_.Complaint(events);
        return complaint.empty();
    });
    return complaint;
}

std::string WindowSession::Send(int events) {
    int next = 0;
    for (int i = 0; i < events; ++i) {
        if (i == next) {
            if (std::string complaint = LookAround(WindowWatch::Events::Sent); !complaint.empty())
                return After(i, complaint, sent_.Trace());
            OpenIfClosed();
            sent_.Look();
            next += 1 + static_cast<int>(random_.Below(MostEventsBetweenLooks));
        }
        sent_.Do();
    }
    const std::string complaint = LookAround(WindowWatch::Events::Sent);
    return complaint.empty() ? complaint : After(events, complaint, sent_.Trace());
}

std::string WindowSession::Type(int events) {
    // Messages that say of a window what is not so, as sent events do, leave behind a focus that the system
    // knows nothing of.
    attendant_.CloseEverything();
    for (int i = 0; i < events; ++i) {
        OpenIfClosed();
        typed_.Do();
        if (std::string complaint = LookAround(WindowWatch::Events::Typed); !complaint.empty())
            return After(i + 1, complaint, " a " + typed_.Last());
    }
    return {};
}

std::string WindowSession::Leave() {
    attendant_.CloseEverything();
    host_.Release();
    host_.Call([] { CoFreeUnusedLibrariesEx(0, 0); });
    if (Component::IsLoaded()) return "the component stays loaded";
    if (host_.ReferencesToConnection() != 0) return "the connection is still held";
    if (Database::AliveObjects() != 0) return "recordsets or fields are alive";
    return {};
}

void WindowSession::OpenDialogs() {
    constexpr int dialogs = 4;
    OpenIfClosed();
    PostClick(AwaitForm("Utilitati").Control("cmdAction(0)"));
    const Window note = AwaitForm("Notes");
    for (int i = 0; i < dialogs; ++i) {
        PostClick(note.Control("ImgBouton(" + std::to_string(i) + ")"));
        host_.Ui().Settle();
        Require("the dialogs to close", [&] {
            attendant_.Attend();
            host_.Call([] {});
            return note.IsEnabled();
        });
    }
}

}  // namespace tavrin::e2e
