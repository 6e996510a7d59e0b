#pragma once

#include "doctor/core/machine.h"

namespace tavrin::doctor {

/// The machine that the program runs on. \pre COM is initialised
Machine ThisMachine();

}  // namespace tavrin::doctor
