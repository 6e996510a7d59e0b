#pragma once

#include <windows.h>

#include <oaidl.h>

#include "win32/base/translation.h"

namespace tavrin::com {

/// Leaves the description where early-bound callers look for it.
void SetErrorInfo(const win32::Failure& failure, REFIID interfaceId) noexcept;

/// Fills in what late-bound callers are told; null is none of them.
void FillExceptionInfo(const win32::Failure& failure, EXCEPINFO* info) noexcept;

}  // namespace tavrin::com
