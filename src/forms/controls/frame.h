#pragma once

#include <string>
#include <string_view>

#include "forms/model/container.h"
#include "forms/model/control.h"

namespace tavrin::forms {

/// A panel that holds controls; hiding or disabling it hides or disables them.
class Frame : public Control, public Container {
  public:
    Frame(Container& parent, std::string_view name, Rect bounds = {});

    void SetBordered(bool bordered);

    Form& OwnerForm() override { return Parent().OwnerForm(); }
    const Form& OwnerForm() const override { return Parent().OwnerForm(); }
    bool IsEffectivelyVisible() const override { return Control::IsEffectivelyVisible(); }
    bool IsEffectivelyEnabled() const override { return Control::IsEffectivelyEnabled(); }
    Control* AsControl() override { return this; }

    void Draw(Surface& surface) const override;
    AccessibleNode Accessible() const override;

  private:
    bool bordered_ = true;
};

}  // namespace tavrin::forms
