#pragma once

#include "doctor/core/machine.h"
#include "doctor/core/report.h"

namespace tavrin::doctor {

/// The machine that the program runs on. \pre COM is initialised
Machine ThisMachine();

/// Its name, and the time of its clock.
Origin ThisOrigin();

}  // namespace tavrin::doctor
