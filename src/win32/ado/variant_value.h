#pragma once

#include <windows.h>

#include <oaidl.h>

#include "data/value.h"

namespace tavrin::win32 {

/// A field's value as the windows know it: whole numbers and booleans as integers, fractional, currency and
/// decimal numbers as doubles, text as UTF-8; a left-out value is empty.
/// \throws data::Error 13 (type mismatch) for objects, arrays and other things that are no single value.
data::Value ToValue(const VARIANT& variant);

}  // namespace tavrin::win32
