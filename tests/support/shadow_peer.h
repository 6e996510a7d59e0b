#pragma once

#include <memory>
#include <string>
#include <utility>

#include "forms/controls/combo_box.h"
#include "forms/controls/text_box.h"
#include "forms/model/control.h"

namespace tavrin::tests {

/// What a platform without a mind of its own would show of a control: what it was told, no more. Where it
/// differs from the model, somebody has changed the model without a word.
class ShadowPeer : public forms::ControlPeer {
  public:
    /// Gives a control such a peer, which it owns from then on. `focus` is where the platform keeps its
    /// focus.
    static void Give(forms::Control& control, const forms::Control*& focus) {
        control.SetPeer(std::make_unique<ShadowPeer>(control, focus));
    }

    ShadowPeer(forms::Control& control, const forms::Control*& focus) : control_(control), focus_(focus) {
        for (const forms::Aspect aspect :
             {forms::Aspect::Bounds, forms::Aspect::Visible, forms::Aspect::Enabled, forms::Aspect::Text,
              forms::Aspect::Locked})
            Take(aspect);
    }
    ~ShadowPeer() override {
        if (focus_ == &control_) focus_ = nullptr;
    }

    void Changed(forms::Aspect aspect) override {
        Take(aspect);
        const auto* container = dynamic_cast<const forms::Container*>(&control_);
        if (container == nullptr || aspect != forms::Aspect::Enabled) return;
        for (const forms::Control* inner : container->Controls()) {
            if (inner->Peer() != nullptr) inner->Peer()->Changed(aspect);
        }
    }
    void TakeFocus() override { focus_ = &control_; }
    /// The user has typed into the platform's field, which is about to tell the model.
    void ShowTyped(std::string text) { text_ = std::move(text); }

    /// What differs; empty where both sides agree.
    std::string Disagreement() const {
        if (bounds_ != control_.Bounds()) return "place";
        if (visible_ != control_.Visible()) return "visible";
        if (enabled_ != control_.IsEffectivelyEnabled()) return "enabled";
        if (text_ != TextOf(control_)) return "text";
        if (locked_ != IsLocked(control_)) return "locked";
        return {};
    }

  private:
    static std::string TextOf(const forms::Control& control) {
        if (const auto* box = dynamic_cast<const forms::TextBox*>(&control)) return box->Text();
        if (const auto* list = dynamic_cast<const forms::ComboBox*>(&control)) return list->Text();
        return {};
    }
    static bool IsLocked(const forms::Control& control) {
        const auto* box = dynamic_cast<const forms::TextBox*>(&control);
        return box != nullptr && box->Locked();
    }

    void Take(forms::Aspect aspect) {
        switch (aspect) {
            case forms::Aspect::Bounds:
                bounds_ = control_.Bounds();
                break;
            case forms::Aspect::Visible:
                visible_ = control_.Visible();
                break;
            case forms::Aspect::Enabled:
                enabled_ = control_.IsEffectivelyEnabled();
                break;
            case forms::Aspect::Text:
            case forms::Aspect::List:
                text_ = TextOf(control_);
                break;
            case forms::Aspect::Locked:
                locked_ = IsLocked(control_);
                break;
            default:
                break;
        }
    }

    forms::Control& control_;
    const forms::Control*& focus_;
    forms::Rect bounds_;
    bool visible_ = true;
    bool enabled_ = true;
    bool locked_ = false;
    std::string text_;
};

}  // namespace tavrin::tests
