#include "win32/assist/accessible_control.h"

#include <objbase.h>

#include <iterator>
#include <utility>

#include "forms/model/form.h"
#include "win32/assist/accessible_state.h"
#include "win32/base/text.h"
#include "win32/base/translation.h"
#include "win32/base/variant.h"

namespace tavrin::win32 {

namespace {

/// Empties an out-parameter before anything can fail.
template <class Value>
bool Clear(Value* target) {
    if (target == nullptr) return false;
    *target = {};
    return true;
}

void PutLong(VARIANT* target, LONG value) {
    target->vt = VT_I4;
    target->lVal = value;
}

HRESULT PutText(BSTR* target, std::string_view text) {
    if (text.empty()) return S_FALSE;
    *target = Bstr(text).Detach();
    return S_OK;
}

}  // namespace

AccessibleControl::AccessibleControl(forms::Control& control, HWND window, std::shared_ptr<const void> inUse)
    : control_(&control),
      kind_(AccessibleKind::Of(control)),
      window_(window),
      inUse_(std::move(inUse)),
      last_(control.Accessible()),
      lastSelected_(SelectedChild()) {}

void AccessibleControl::Disconnect() noexcept {
    control_ = nullptr;
    CoDisconnectObject(this, 0);
}

void AccessibleControl::NotifyChanges() {
    if (control_ == nullptr) return;
    forms::AccessibleNode node = control_->Accessible();
    if (node.name != last_.name) Tell(EVENT_OBJECT_NAMECHANGE);
    if (node.value != last_.value) Tell(EVENT_OBJECT_VALUECHANGE);
    if (node.expanded != last_.expanded) Tell(EVENT_OBJECT_STATECHANGE);
    last_ = std::move(node);
    const LONG selected = SelectedChild();
    if (selected == lastSelected_) return;
    lastSelected_ = selected;
    Tell(EVENT_OBJECT_SELECTION, selected);
    if (last_.focused) Tell(EVENT_OBJECT_FOCUS, selected);
}

void AccessibleControl::Tell(DWORD event, LONG child) const {
    NotifyWinEvent(event, window_, OBJID_CLIENT, child);
}

// One for all bodies: what catches is larger than what most of them do.
HRESULT AccessibleControl::Answer(ErasedBody* body, const void* state) const noexcept {
    if (control_ == nullptr) return CO_E_OBJNOTCONNECTED;
    const forms::Desktop::DispatchScope scope(control_->OwnerForm().OwnerDesktop());
    return Translated([=] { return body(state); });
}

HRESULT AccessibleControl::AnswerNode(const VARIANT& child, ErasedNodeBody* body,
                                      const void* state) const noexcept {
    return Answer([&]() -> HRESULT {
        if (child.vt != VT_I4) return E_INVALIDARG;
        if (child.lVal == CHILDID_SELF) return body(state, control_->Accessible());
        if (!HasChild(child.lVal)) return E_INVALIDARG;
        return body(state, control_->AccessibleChild(static_cast<int>(child.lVal) - 1));
    });
}

template <class Body>
HRESULT AccessibleControl::AnswerNode(const VARIANT& child, const Body& body) const noexcept {
    const auto run = [](const void* state, const forms::AccessibleNode& node) -> HRESULT {
        return (*static_cast<const Body*>(state))(node);
    };
    return AnswerNode(child, run, &body);
}

template <class Body>
HRESULT AccessibleControl::Answer(const Body& body) const noexcept {
    return Answer([](const void* state) -> HRESULT { return (*static_cast<const Body*>(state))(); }, &body);
}

HRESULT AccessibleControl::AnswerText(VARIANT child, BSTR* text,
                                      std::string forms::AccessibleNode::*member) const noexcept {
    if (!Clear(text)) return E_POINTER;
    return AnswerNode(child, [&](const forms::AccessibleNode& node) { return PutText(text, node.*member); });
}

bool AccessibleControl::HasChild(LONG child) const {
    return child >= 1 && child <= control_->AccessibleChildCount();
}

LONG AccessibleControl::SelectedChild() const {
    return control_->AccessibleSelectedChild() + 1;
}

ComPtr<IAccessible> AccessibleControl::Standard() const {
    ComPtr<IAccessible> standard;
    CreateStdAccessibleObject(window_, OBJID_CLIENT, __uuidof(IAccessible), standard.ReceiveVoid());
    return standard;
}

// Where it stands.

HRESULT AccessibleControl::get_accParent(IDispatch** parent) noexcept {
    if (!Clear(parent)) return E_POINTER;
    return Answer([&] {
        return AccessibleObjectFromWindow(window_, static_cast<DWORD>(OBJID_WINDOW), IID_IDispatch,
                                          reinterpret_cast<void**>(parent));
    });
}

HRESULT AccessibleControl::get_accChildCount(LONG* count) noexcept {
    if (!Clear(count)) return E_POINTER;
    return Answer([&] {
        *count = control_->AccessibleChildCount();
        return S_OK;
    });
}

HRESULT AccessibleControl::get_accChild(VARIANT child, IDispatch** object) noexcept {
    if (!Clear(object)) return E_POINTER;
    // Parts are no objects of their own.
    return AnswerNode(child, [](const forms::AccessibleNode&) { return S_FALSE; });
}

HRESULT AccessibleControl::accLocation(LONG* left, LONG* top, LONG* width, LONG* height,
                                       VARIANT child) noexcept {
    if (!Clear(left) || !Clear(top) || !Clear(width) || !Clear(height)) return E_POINTER;
    return AnswerNode(child, [&](const forms::AccessibleNode& node) -> HRESULT {
        // From the control's own corner: the window of an edit field stands inside the frame.
        const forms::Rect& control = control_->Bounds();
        const forms::Rect& part = node.bounds;
        RECT place = PixelScale().ToPixels(
            {control.left + part.left, control.top + part.top, part.width, part.height});
        MapWindowPoints(GetParent(window_), nullptr, reinterpret_cast<POINT*>(&place), 2);
        *left = place.left;
        *top = place.top;
        *width = Width(place);
        *height = Height(place);
        return S_OK;
    });
}

HRESULT AccessibleControl::accHitTest(LONG left, LONG top, VARIANT* child) noexcept {
    if (!Clear(child)) return E_POINTER;
    return Answer([&] {
        POINT pixel{left, top};
        ScreenToClient(window_, &pixel);
        const Scale scale = PixelScale();
        const forms::Point at{scale.ToTwips(pixel.x), scale.ToTwips(pixel.y)};
        if (!control_->Accessible().bounds.Contains(at)) return S_FALSE;
        PutLong(child, control_->AccessibleChildAt(at) + 1);  // CHILDID_SELF where there is no part
        return S_OK;
    });
}

HRESULT AccessibleControl::accNavigate(LONG direction, VARIANT start, VARIANT* end) noexcept {
    if (!Clear(end)) return E_POINTER;
    return Answer([&] {
        if (start.vt != VT_I4) return E_INVALIDARG;
        const bool isAmongParts =
            start.lVal != CHILDID_SELF || direction == NAVDIR_FIRSTCHILD || direction == NAVDIR_LASTCHILD;
        if (isAmongParts) return Navigate(direction, start.lVal, end);
        const ComPtr<IAccessible> standard = Standard();
        return standard ? standard->accNavigate(direction, start, end) : E_FAIL;
    });
}

HRESULT AccessibleControl::Navigate(LONG direction, LONG from, VARIANT* end) const {
    LONG target = 0;
    switch (direction) {
        case NAVDIR_FIRSTCHILD:
            target = 1;
            break;
        case NAVDIR_LASTCHILD:
            target = control_->AccessibleChildCount();
            break;
        case NAVDIR_NEXT:
            target = from + 1;
            break;
        case NAVDIR_PREVIOUS:
            target = from - 1;
            break;
        default:
            return S_FALSE;
    }
    if (!HasChild(target)) return S_FALSE;
    PutLong(end, target);
    return S_OK;
}

// What it is.

HRESULT AccessibleControl::get_accName(VARIANT child, BSTR* name) noexcept {
    return AnswerText(child, name, &forms::AccessibleNode::name);
}

HRESULT AccessibleControl::get_accValue(VARIANT child, BSTR* value) noexcept {
    return AnswerText(child, value, &forms::AccessibleNode::value);
}

HRESULT AccessibleControl::get_accDescription(VARIANT child, BSTR* description) noexcept {
    return AnswerText(child, description, &forms::AccessibleNode::description);
}

HRESULT AccessibleControl::get_accRole(VARIANT child, VARIANT* role) noexcept {
    if (!Clear(role)) return E_POINTER;
    return AnswerNode(child, [&](const forms::AccessibleNode& node) -> HRESULT {
        PutLong(role, RoleOf(node));
        return S_OK;
    });
}

HRESULT AccessibleControl::get_accState(VARIANT child, VARIANT* state) noexcept {
    if (!Clear(state)) return E_POINTER;
    return AnswerNode(child, [&](const forms::AccessibleNode& node) -> HRESULT {
        PutLong(state, StateOf(node));
        return S_OK;
    });
}

HRESULT AccessibleControl::get_accHelp(VARIANT, BSTR* help) noexcept {
    return Clear(help) ? S_FALSE : E_POINTER;
}

HRESULT AccessibleControl::get_accHelpTopic(BSTR* file, VARIANT, LONG* topic) noexcept {
    return Clear(file) && Clear(topic) ? S_FALSE : E_POINTER;
}

HRESULT AccessibleControl::get_accKeyboardShortcut(VARIANT child, BSTR* shortcut) noexcept {
    if (!Clear(shortcut)) return E_POINTER;
    return AnswerNode(child, [&](const forms::AccessibleNode& node) {
        if (node.accelerator == 0) return S_FALSE;
        const wchar_t keys[] = {L'A', L'l', L't', L'+', static_cast<wchar_t>(node.accelerator)};
        *shortcut = Bstr(std::wstring_view(keys, std::size(keys))).Detach();
        return S_OK;
    });
}

HRESULT AccessibleControl::get_accFocus(VARIANT* child) noexcept {
    if (!Clear(child)) return E_POINTER;
    return Answer([&] {
        if (!control_->HasFocus()) return S_FALSE;
        PutLong(child, SelectedChild());
        return S_OK;
    });
}

HRESULT AccessibleControl::get_accSelection(VARIANT* children) noexcept {
    if (!Clear(children)) return E_POINTER;
    return Answer([&] {
        if (SelectedChild() == CHILDID_SELF) return S_FALSE;
        PutLong(children, SelectedChild());
        return S_OK;
    });
}

HRESULT AccessibleControl::get_accDefaultAction(VARIANT child, BSTR* action) noexcept {
    if (!Clear(action)) return E_POINTER;
    return AnswerNode(child, [&](const forms::AccessibleNode& node) -> HRESULT {
        const char* name = kind_.DefaultAction(node);
        return name != nullptr ? PutText(action, name) : S_FALSE;
    });
}

// What it does.

HRESULT AccessibleControl::accSelect(LONG flags, VARIANT child) noexcept {
    return AnswerNode(child, [&](const forms::AccessibleNode& node) -> HRESULT {
        if (flags & SELFLAG_TAKEFOCUS) control_->SetFocus();
        if ((flags & SELFLAG_TAKESELECTION) && child.lVal != CHILDID_SELF) Press(*control_, node);
        return S_OK;
    });
}

HRESULT AccessibleControl::accDoDefaultAction(VARIANT child) noexcept {
    return AnswerNode(child, [&](const forms::AccessibleNode& node) -> HRESULT {
        if (kind_.DefaultAction(node) == nullptr) return DISP_E_MEMBERNOTFOUND;
        kind_.DoDefaultAction(*control_, node);
        return S_OK;
    });
}

HRESULT AccessibleControl::put_accName(VARIANT, BSTR) noexcept {
    return E_NOTIMPL;
}

HRESULT AccessibleControl::put_accValue(VARIANT, BSTR value) noexcept {
    return Answer([&] { return kind_.Write(*control_, ToUtf8({value, SysStringLen(value)})); });
}

HRESULT AccessibleControl::GetTypeInfoCount(UINT* count) noexcept {
    return Clear(count) ? S_OK : E_POINTER;
}

HRESULT AccessibleControl::GetTypeInfo(UINT, LCID, ITypeInfo** info) noexcept {
    return Clear(info) ? E_NOTIMPL : E_POINTER;
}

HRESULT AccessibleControl::GetIDsOfNames(REFIID, LPOLESTR*, UINT, LCID, DISPID*) noexcept {
    return E_NOTIMPL;
}

HRESULT AccessibleControl::Invoke(DISPID, REFIID, LCID, WORD, DISPPARAMS*, VARIANT*, EXCEPINFO*,
                                  UINT*) noexcept {
    return E_NOTIMPL;
}

}  // namespace tavrin::win32
