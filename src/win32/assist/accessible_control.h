#pragma once

#include <windows.h>

#include <oleacc.h>

#include <memory>
#include <string>

#include "forms/model/control.h"
#include "win32/assist/accessible_kind.h"
#include "win32/base/com_ptr.h"
#include "win32/base/unknown_object.h"
#include "win32/system/dpi.h"
#include "win32/system/scale.h"

namespace tavrin::win32 {

/// What assistive tools and test programs see of one control: its role, name, value and state, its place and
/// its parts. Everything is asked of the control at the moment of the call; what can be done with it is its
/// kind's business. Once the control is gone every call answers CO_E_OBJNOTCONNECTED.
class AccessibleControl final : public UnknownObject<IAccessible> {
  public:
    /// `inUse` is held as long as somebody holds this.
    AccessibleControl(forms::Control& control, HWND window, std::shared_ptr<const void> inUse);

    /// Called before the control or its window goes; lets go of what other processes hold.
    void Disconnect() noexcept;

    /// Tells listening tools of what is new since the last call.
    void NotifyChanges();

    // IAccessible.
    HRESULT STDMETHODCALLTYPE get_accParent(IDispatch** parent) noexcept override;
    HRESULT STDMETHODCALLTYPE get_accChildCount(LONG* count) noexcept override;
    HRESULT STDMETHODCALLTYPE get_accChild(VARIANT child, IDispatch** object) noexcept override;
    HRESULT STDMETHODCALLTYPE get_accName(VARIANT child, BSTR* name) noexcept override;
    HRESULT STDMETHODCALLTYPE get_accValue(VARIANT child, BSTR* value) noexcept override;
    HRESULT STDMETHODCALLTYPE get_accDescription(VARIANT child, BSTR* description) noexcept override;
    HRESULT STDMETHODCALLTYPE get_accRole(VARIANT child, VARIANT* role) noexcept override;
    HRESULT STDMETHODCALLTYPE get_accState(VARIANT child, VARIANT* state) noexcept override;
    HRESULT STDMETHODCALLTYPE get_accHelp(VARIANT child, BSTR* help) noexcept override;
    HRESULT STDMETHODCALLTYPE get_accHelpTopic(BSTR* file, VARIANT child, LONG* topic) noexcept override;
    HRESULT STDMETHODCALLTYPE get_accKeyboardShortcut(VARIANT child, BSTR* shortcut) noexcept override;
    HRESULT STDMETHODCALLTYPE get_accFocus(VARIANT* child) noexcept override;
    HRESULT STDMETHODCALLTYPE get_accSelection(VARIANT* children) noexcept override;
    HRESULT STDMETHODCALLTYPE get_accDefaultAction(VARIANT child, BSTR* action) noexcept override;
    HRESULT STDMETHODCALLTYPE accSelect(LONG flags, VARIANT child) noexcept override;
    HRESULT STDMETHODCALLTYPE accLocation(LONG* left, LONG* top, LONG* width, LONG* height,
                                          VARIANT child) noexcept override;
    HRESULT STDMETHODCALLTYPE accNavigate(LONG direction, VARIANT start, VARIANT* end) noexcept override;
    HRESULT STDMETHODCALLTYPE accHitTest(LONG left, LONG top, VARIANT* child) noexcept override;
    HRESULT STDMETHODCALLTYPE accDoDefaultAction(VARIANT child) noexcept override;
    HRESULT STDMETHODCALLTYPE put_accName(VARIANT child, BSTR name) noexcept override;
    HRESULT STDMETHODCALLTYPE put_accValue(VARIANT child, BSTR value) noexcept override;

    // IDispatch: tools call the interface itself.
    HRESULT STDMETHODCALLTYPE GetTypeInfoCount(UINT* count) noexcept override;
    HRESULT STDMETHODCALLTYPE GetTypeInfo(UINT, LCID, ITypeInfo** info) noexcept override;
    HRESULT STDMETHODCALLTYPE GetIDsOfNames(REFIID, LPOLESTR*, UINT, LCID, DISPID*) noexcept override;
    HRESULT STDMETHODCALLTYPE Invoke(DISPID, REFIID, LCID, WORD, DISPPARAMS*, VARIANT*, EXCEPINFO*,
                                     UINT*) noexcept override;

  private:
    /// Runs the body of a call unless the control is gone. Nothing is thrown to the caller.
    template <class Body>
    HRESULT Answer(const Body& body) const noexcept;
    using ErasedBody = HRESULT(const void* state);
    HRESULT Answer(ErasedBody* body, const void* state) const noexcept;
    /// The same with the control for CHILDID_SELF, one of its parts else; refuses an id that it does not
    /// have.
    template <class Body>
    HRESULT AnswerNode(const VARIANT& child, const Body& body) const noexcept;
    using ErasedNodeBody = HRESULT(const void* state, const forms::AccessibleNode& node);
    HRESULT AnswerNode(const VARIANT& child, ErasedNodeBody* body, const void* state) const noexcept;
    /// Answers with one text of a node; S_FALSE where it is empty.
    HRESULT AnswerText(VARIANT child, BSTR* text, std::string forms::AccessibleNode::*member) const noexcept;

    bool HasChild(LONG child) const;
    LONG SelectedChild() const;
    void Tell(DWORD event, LONG child = CHILDID_SELF) const;
    HRESULT Navigate(LONG direction, LONG from, VARIANT* end) const;
    /// The system's own object for the window, for what the control has nothing to add to.
    ComPtr<IAccessible> Standard() const;
    Scale PixelScale() const { return ScaleOf(window_); }

    forms::Control* control_;
    const AccessibleKind& kind_;
    HWND window_;
    std::shared_ptr<const void> inUse_;
    forms::AccessibleNode last_;  ///< as it was told of last
    LONG lastSelected_ = 0;
};

}  // namespace tavrin::win32
