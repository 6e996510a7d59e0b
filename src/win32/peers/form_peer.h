#pragma once

#include <windows.h>

#include <memory>
#include <optional>

#include "forms/model/form.h"
#include "win32/system/scale.h"
#include "win32/window/tool_tips.h"
#include "win32/window/window.h"
#include "win32/window/window_resources.h"

namespace tavrin::win32 {

/// The top-level window of a form. The window is hidden when the form unloads and destroyed with the peer,
/// since its own messages may still be on the stack in between.
class FormPeer final : public forms::FormPeer, public Window {
  public:
    FormPeer(forms::Desktop& desktop, forms::Form& form, std::shared_ptr<WindowResources> resources);
    ~FormPeer() override;

    /// Makes the peers of the form's controls; all or none are there afterwards.
    void CreateControls();

    void Changed(forms::FormAspect aspect) override;
    void Reconcile() noexcept override;
    void Activate() override;
    void KeepOnTop() override;
    void DragByCaption() override;
    void Close() override;

    // For the peers of its controls.
    forms::Form& Form() { return form_; }
    WindowResources& SharedResources() { return *resources_; }
    ToolTips& Tips() { return *tips_; }
    Scale PixelScale() const { return scale_; }
    /// The window that the windows of a container's controls are made in.
    HWND WindowOf(forms::Container& container) const;
    /// The platform's focus goes where the model says it is.
    void RestoreFocus();

  private:
    LRESULT HandleMessage(const Message& message) override;
    LRESULT OnActivate(const Message& message);
    LRESULT OnSetFocus(const Message& message);
    LRESULT OnClose(const Message& message);
    LRESULT OnDestroy(const Message& message);
    LRESULT OnMove(const Message& message);
    LRESULT OnSize(const Message& message);
    LRESULT OnSizing(const Message& message);
    LRESULT OnSizeLimits(const Message& message);
    LRESULT OnDpiChanged(const Message& message);
    LRESULT OnDisplayChange(const Message& message);
    LRESULT OnSettingChanged(const Message& message);
    LRESULT OnColorsChanged(const Message& message);
    LRESULT OnPaint(const Message& message);
    LRESULT OnEraseBackground(const Message& message);
    LRESULT OnMouseButton(const Message& message);
    LRESULT OnMouseMove(const Message& message);
    LRESULT OnKey(const Message& message);
    LRESULT OnDisagreementQuestion(const Message& message);

    void Place();
    /// In pixels, around an area of controls.
    RECT OuterOf(forms::Size client) const;
    /// Shows everything in another scale.
    void Rescale(Scale scale, POINT topLeft);
    void ShowOrHide();
    void EnableOrDisable();

    forms::Desktop& desktop_;
    forms::Form& form_;
    std::shared_ptr<WindowResources> resources_;
    Scale scale_;
    std::optional<ToolTips> tips_;
    bool isPlacing_ = false;
    bool isClosed_ = false;
};

}  // namespace tavrin::win32
