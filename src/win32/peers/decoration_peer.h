#pragma once

#include "forms/model/control.h"
#include "win32/peers/form_peer.h"

namespace tavrin::win32 {

/// Stands for a shape or a line, which has no window: its container is painted anew when it changes.
class DecorationPeer final : public forms::ControlPeer {
  public:
    DecorationPeer(forms::Control& decoration, FormPeer& form);

    void Changed(forms::Aspect aspect) override;
    void TakeFocus() override {}

  private:
    forms::Control& decoration_;
    FormPeer& form_;
};

}  // namespace tavrin::win32
