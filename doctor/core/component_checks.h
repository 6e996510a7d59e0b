#pragma once

#include "doctor/core/machine.h"

namespace tavrin::doctor {

/// Where the component is registered on a machine, which of that programs take, and what is wrong with it.
Section ExamineComponent(const Machine& machine);

}  // namespace tavrin::doctor
