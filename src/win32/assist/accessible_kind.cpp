#include "win32/assist/accessible_kind.h"

#include "forms/controls/text_box.h"
#include "forms/model/form.h"

namespace tavrin::win32 {

const char* AccessibleKind::DefaultAction(const forms::AccessibleNode&) const {
    return nullptr;
}

void AccessibleKind::DoDefaultAction(forms::Control&, const forms::AccessibleNode&) const {}

HRESULT AccessibleKind::Write(forms::Control&, const std::string&) const {
    return E_ACCESSDENIED;
}

void Press(forms::Control& control, const forms::AccessibleNode& part) {
    const forms::Rect& area = part.bounds;
    const forms::Point middle{area.left + area.width / 2, area.top + area.height / 2};
    control.HandleMouseDown({forms::MouseButton::Left, middle, {}});
    control.HandleMouseUp({forms::MouseButton::Left, middle, {}});
}

namespace {

/// What can only be read: labels, displays, pictures, frames, the chart.
class AccessibleText final : public AccessibleKind {};

class AccessibleButton final : public AccessibleKind {
    const char* DefaultAction(const forms::AccessibleNode&) const override { return "Apasă"; }
    void DoDefaultAction(forms::Control& control, const forms::AccessibleNode&) const override {
        control.Click();
    }
};

/// A field that opens a list or a calendar.
class AccessibleDropDown final : public AccessibleKind {
    const char* DefaultAction(const forms::AccessibleNode& node) const override {
        return node.expanded ? "Închide" : "Deschide";
    }
    void DoDefaultAction(forms::Control& control, const forms::AccessibleNode&) const override {
        if (control.IsEffectivelyEnabled() && control.Peer() != nullptr) control.Peer()->DropDown();
    }
};

class AccessibleField final : public AccessibleKind {
    HRESULT Write(forms::Control& control, const std::string& text) const override {
        auto& field = static_cast<forms::TextBox&>(control);
        if (field.Locked() || !field.IsEffectivelyEnabled()) return E_ACCESSDENIED;
        field.SelectAll();
        field.ReplaceSelection(text);
        return S_OK;
    }
};

class AccessibleGrid final : public AccessibleKind {
    const char* DefaultAction(const forms::AccessibleNode& node) const override {
        return node.role == forms::Role::Cell ? "Selectează" : nullptr;
    }
    void DoDefaultAction(forms::Control& control, const forms::AccessibleNode& cell) const override {
        Press(control, cell);
    }
};

constexpr AccessibleText Text;
constexpr AccessibleButton Button;
constexpr AccessibleDropDown DropDown;
constexpr AccessibleField Field;
constexpr AccessibleGrid Grid;

}  // namespace

const AccessibleKind& AccessibleKind::Of(const forms::Control& control) {
    if (control.Kind() == forms::ControlKind::TextBox) return Field;
    switch (control.Accessible().role) {
        case forms::Role::PushButton:
            return Button;
        case forms::Role::ComboBox:
        case forms::Role::DateField:
            return DropDown;
        case forms::Role::Table:
            return Grid;
        default:
            return Text;
    }
}

}  // namespace tavrin::win32
