#pragma once

#include <windows.h>

#include <string>

#include "forms/model/control.h"

namespace tavrin::win32 {

/// What assistive tools can do with the controls of one kind. This one can only be read; a kind holds nothing
/// of the control that it is asked about.
class AccessibleKind {
  public:
    constexpr AccessibleKind() = default;
    AccessibleKind(const AccessibleKind&) = delete;
    AccessibleKind& operator=(const AccessibleKind&) = delete;

    /// The kind that a control is of.
    static const AccessibleKind& Of(const forms::Control& control);

    /// What the default action of the control or of one of its parts is called, null where it has none.
    virtual const char* DefaultAction(const forms::AccessibleNode& node) const;
    virtual void DoDefaultAction(forms::Control& control, const forms::AccessibleNode& node) const;
    /// Puts a text in place of what the control holds.
    virtual HRESULT Write(forms::Control& control, const std::string& text) const;

  protected:
    ~AccessibleKind() = default;
};

/// Clicks with the mouse in the middle of a part.
void Press(forms::Control& control, const forms::AccessibleNode& part);

}  // namespace tavrin::win32
