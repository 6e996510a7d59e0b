#include "proofs/agreement.h"

#include <algorithm>
#include <array>

#include "forms/controls/tool_button.h"
#include "support/shadow_peer.h"
#include "support/window_holders.h"

namespace tavrin::tests {
namespace {

/// Who sends a statement that begins so, or is it as a whole. The first that fits counts.
struct Sender {
    std::string_view beginning;
    std::array<std::string_view, 3> windows;
    bool isWhole = false;
};
constexpr auto Senders = std::to_array<Sender>({
    {"SELECT IsNull([Curs]", {"CursValutar", "CursValutarDetaliu"}},
    {"SELECT * FROM [Curs Valutar] ", {"CursValutar"}, true},
    {"SELECT * FROM [Curs Valutar]", {"CereMoneda", "AlegeMoneda", "EvolutieCurs"}, true},
    {"SELECT COnvert(nvarchar,[Data],103) AS [D], [Data] ", {"CursValutar"}},
    {"SELECT COnvert(nvarchar,[Data],103) AS [D], [", {"AlegeMoneda"}},
    {"DELETE FROM [Curs Valutar]", {"CursValutar"}},
    {"Select count(*)", {"CursValutarDetaliu"}},
    {"SELECT 'x'", {"CursValutarDetaliu"}},
    {"INSERT INTO [Curs Valutar]", {"CursValutarDetaliu"}},
    {"UPDATE [Curs Valutar]", {"CursValutarDetaliu", "CereMoneda"}},
    {"ALTER TABLE", {"CereMoneda"}},
    {"INSERT INTO LpVal", {"CereMoneda"}},
    {"SELECT DISTINCT YEAR", {"EvolutieCurs"}},
    {"SELECT An FROM An", {"EvolutieCurs"}},
    {"SELECT MIN(", {"EvolutieCurs"}},
    {"SELECT Month(", {"EvolutieCurs"}},
    {"SELECT DAY(", {"EvolutieCurs"}},
    {"SELECT Count(*)", {"EvolutieCurs"}},
    {"SELECT AGENDA.", {"Agenda"}},
    {"INSERT INTO [Agenda]", {"Agenda"}},
    {"UPDATE [AGENDA]", {"Agenda"}},
    {"DELETE FROM [AGENDA]", {"Agenda"}},
});

bool IsPressed(const forms::Control& control) {
    return dynamic_cast<const forms::ToolButton*>(&control) == nullptr && control.Accessible().pressed;
}

std::string ControlDisagreement(const forms::Form& form) {
    for (const forms::Control* control : form.AllControls()) {
        const std::string name = form.Name() + "." + control->QualifiedName();
        if (const auto* shadow = dynamic_cast<const ShadowPeer*>(control->Peer())) {
            if (const std::string aspect = shadow->Disagreement(); !aspect.empty())
                return name + " shows another " + aspect + " than it has";
        }
        if (IsPressed(*control) && !control->AcceptsInput()) return name + " is pressed and takes no input";
    }
    return {};
}

std::string FormDisagreement(const HeadlessDesktop& desktop, const forms::Form& form) {
    if (desktop.IsWindowEnabled(form) != form.AcceptsInput()) {
        return form.Name() + (form.AcceptsInput() ? " takes input and its window none"
                                                  : " takes no input and its window does");
    }
    if (desktop.IsWindowVisible(form) != form.Visible()) return form.Name() + " is not what is in sight";
    const forms::Control* active = form.ActiveControl();
    if (active != nullptr && !active->CanTakeFocus())
        return form.Name() + "." + active->QualifiedName() + " has a focus that it cannot take";
    return ControlDisagreement(form);
}

std::string WronglyEnabled(const HeadlessDesktop& desktop) {
    for (const forms::Form* held : desktop.Forms()) {
        for (const forms::Form* holder : desktop.Forms()) {
            if (held->Enabled() && MustHold(holder->Name(), held->Name()))
                return held->Name() + " is enabled under " + holder->Name();
        }
    }
    return {};
}

}  // namespace

std::string Disagreement(const HeadlessDesktop& desktop, const forms::Control* focus) {
    for (const forms::Form* form : desktop.Forms()) {
        if (std::string difference = FormDisagreement(desktop, *form); !difference.empty()) return difference;
    }
    const forms::Form* active = desktop.ActiveForm();
    if (active != nullptr && active->AcceptsInput() && active->ActiveControl() != nullptr &&
        dynamic_cast<const ShadowPeer*>(active->ActiveControl()->Peer()) != nullptr &&
        active->ActiveControl() != focus) {
        return active->Name() + "." + active->ActiveControl()->QualifiedName() +
               " lacks the platform's focus";
    }
    return WronglyEnabled(desktop);
}

bool IsSenderLoaded(const HeadlessDesktop& desktop, std::string_view statement) {
    const auto sender = std::ranges::find_if(Senders, [&](const Sender& each) {
        return each.isWhole ? statement == each.beginning : statement.starts_with(each.beginning);
    });
    if (sender == Senders.end()) return false;
    return std::ranges::any_of(desktop.Forms(), [&](const forms::Form* form) {
        return std::ranges::find(sender->windows, form->Name()) != sender->windows.end();
    });
}

}  // namespace tavrin::tests
