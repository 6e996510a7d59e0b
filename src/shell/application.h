#pragma once

#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <typeindex>
#include <vector>

#include "data/diagnosis.h"
#include "forms/model/desktop.h"
#include "forms/model/form.h"
#include "shell/host_context.h"
#include "shell/message_service.h"

namespace tavrin::shell {

/// Everything that the windows of one loaded component share: the host's values, the desktop they stand on,
/// the message service and one default instance per window class. A window keeps a reference to it and to no
/// other window; it reaches those through Default and Loaded.
class Application {
  public:
    using MessageServiceFactory = std::function<std::unique_ptr<MessageService>()>;
    using Launcher = std::function<void(Application&)>;

    Application(forms::Desktop& desktop, MessageServiceFactory createMessageService);
    ~Application();
    Application(const Application&) = delete;
    Application& operator=(const Application&) = delete;

    HostContext context;

    forms::Desktop& Desktop() { return desktop_; }

    /// Who is told from now on what happens here, null for nobody; he hears of the host's values first.
    /// Whoever listened before is told nothing more.
    void SetListener(std::shared_ptr<data::Diagnosis> listener);

    /// The text of the last question that a window put together, kept from before it is asked.
    std::string lastQuestion;

    /// A new service object replaces the one that the window before had created.
    void CreateMessageService();

    /// Shows a message through the current service; creates one where no window has done so yet.
    int ShowMessage(const std::string& prompt, int icon, int buttons, const std::string& title);

    /// Asks with the buttons Yes and No. An answer is worth acting upon only where the question still stands:
    /// the window that asked is there and in the state, enabled or not, in which it asked.
    enum class Answer { Yes, No, Withdrawn };
    Answer Ask(const forms::Form& asking, const std::string& question, const std::string& title);

    /// The default instance of a window class, created (not yet loaded) on first use. After the window has
    /// unloaded, the next use creates a new one.
    template <class Window>
    Window& Default() {
        const std::type_index type(typeid(Window));
        forms::Form* form = Find(type);
        if (form == nullptr) form = Keep(type, std::make_shared<Window>(*this));
        return static_cast<Window&>(*form);
    }

    /// The default instance if its window is loaded, else null.
    template <class Window>
    Window* Loaded() {
        forms::Form* form = Find(std::type_index(typeid(Window)));
        return form != nullptr && form->IsLoaded() ? static_cast<Window*>(form) : nullptr;
    }

    /// Unloads the open window of that name; without one nothing happens.
    void UnloadWindow(std::string_view name);

    /// The catalogue through which the palette opens windows that it does not know.
    void AddLauncher(std::string windowName, Launcher launcher);
    /// Opens a window of the catalogue; a name that nobody has added opens nothing.
    void Launch(std::string_view windowName);

  private:
    struct Slot {
        std::type_index type;
        std::shared_ptr<forms::Form> form;
    };
    struct CatalogueEntry {
        std::string name;
        Launcher launch;
    };

    forms::Form* Find(std::type_index type) const;
    forms::Form* Keep(std::type_index type, std::shared_ptr<forms::Form> form);
    void Forget(forms::Form& form);

    forms::Desktop& desktop_;
    MessageServiceFactory createMessageService_;
    std::shared_ptr<MessageService> messageService_;
    std::vector<Slot> slots_;
    std::vector<CatalogueEntry> catalogue_;
};

}  // namespace tavrin::shell
