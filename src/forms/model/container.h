#pragma once

#include <vector>

namespace tavrin::forms {

class Control;
class Form;

/// Holds controls: a form or a frame. The controls are members of the form's class; a container only knows
/// them, in the order of their declaration.
class Container {
  public:
    virtual ~Container() = default;
    Container(const Container&) = delete;
    Container& operator=(const Container&) = delete;

    virtual Form& OwnerForm() = 0;
    virtual const Form& OwnerForm() const = 0;

    /// Visible, respectively enabled, with everything around it.
    virtual bool IsEffectivelyVisible() const = 0;
    virtual bool IsEffectivelyEnabled() const = 0;

    /// The container as a control, null for a form.
    virtual Control* AsControl() { return nullptr; }

    const std::vector<Control*>& Controls() const { return controls_; }

  protected:
    Container() = default;

  private:
    friend class Control;
    std::vector<Control*> controls_;
};

}  // namespace tavrin::forms
