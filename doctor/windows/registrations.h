#pragma once

#include <string>
#include <vector>

#include "doctor/core/machine.h"

namespace tavrin::doctor {

/// Where the component's class is registered: for the user and for the machine, for 32 and for 64 bits.
std::vector<Registration> FindRegistrations();

/// The file of a class by its program's name, as this process would load it; empty where there is none.
std::wstring FileOfClass(const wchar_t* programId);

/// Creates the component's object, as a program of this bitness does.
Creation TryToCreate();

}  // namespace tavrin::doctor
