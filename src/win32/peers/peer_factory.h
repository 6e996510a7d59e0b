#pragma once

#include <memory>

#include "forms/model/control.h"

namespace tavrin::win32 {

class FormPeer;

/// The peer for a control of that kind. The control's container must have its peer already.
std::unique_ptr<forms::ControlPeer> CreateControlPeer(forms::Control& control, FormPeer& form);

}  // namespace tavrin::win32
