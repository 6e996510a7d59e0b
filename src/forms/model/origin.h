#pragma once

#include <string>
#include <string_view>

namespace tavrin::forms {

class Control;
class Form;

/// An event of forms and controls: its name in the code, and its name for users in an error report.
struct Event {
    std::string_view name;
    std::string_view words;
};

namespace event {
inline constexpr Event Load{"Load", "deschidere"};
inline constexpr Event Unload{"Unload", "inchidere"};
inline constexpr Event Activate{"Activate", "activare"};
inline constexpr Event Deactivate{"Deactivate", "trecere la alta fereastra"};
inline constexpr Event Click{"Click", "clic"};
inline constexpr Event DblClick{"DblClick", "dublu clic"};
inline constexpr Event Change{"Change", "modificare"};
inline constexpr Event SelChange{"SelChange", "selectare"};
inline constexpr Event GotFocus{"GotFocus", "intrare"};
inline constexpr Event LostFocus{"LostFocus", "parasire"};
inline constexpr Event KeyDown{"KeyDown", "tasta"};
inline constexpr Event KeyPress{"KeyPress", "tasta"};
inline constexpr Event KeyUp{"KeyUp", "tasta"};
inline constexpr Event MouseDown{"MouseDown", "mouse"};
inline constexpr Event MouseMove{"MouseMove", "mouse"};
inline constexpr Event MouseUp{"MouseUp", "mouse"};
inline constexpr Event MouseLeave{"MouseLeave", "mouse"};
inline constexpr Event Wheel{"Wheel", "mouse"};
inline constexpr Event Content{"Content", "afisare"};
inline constexpr Event Layout{"Layout", "afisare"};
}  // namespace event

/// The handler that runs, for the report of what it throws.
struct Origin {
    const Form* form = nullptr;        ///< null where no handler runs but the platform's own doing
    const Control* control = nullptr;  ///< null where the handler is the form's
    Event event;

    /// For programmers: "CursValutar.cmdAction(2)_Click", "Agenda.Form_Load".
    std::string HandlerName() const;
    /// For users: the form's caption; empty where no handler runs.
    std::string Window() const;
    /// For users: "Sterge Curs (clic)", "deschidere"; empty where no handler runs.
    std::string Action() const;
};

}  // namespace tavrin::forms
