#pragma once

#include <windows.h>

#include <oaidl.h>

#include <cstdint>

#include "data/value.h"
#include "win32/base/com_ptr.h"

namespace tavrin::com {

/// What the host hands over.
struct ApelArguments {
    win32::ComPtr<IDispatch> connection;  ///< may be null
    data::OleDate workDate;
    std::int16_t workYear = 0;
    std::int32_t companyId = 0;
};

/// Reads the arguments of a late-bound call as scripting hosts pass them: in order or by name, by value, by
/// reference or as a reference to a variant, in any type that converts.
/// \param[out] badArgument the place of the argument that an error is about, in the call's own array
/// \return DISP_E_BADPARAMCOUNT, DISP_E_PARAMNOTFOUND, DISP_E_PARAMNOTOPTIONAL, DISP_E_TYPEMISMATCH or
///         DISP_E_OVERFLOW
HRESULT ReadApelArguments(const DISPPARAMS& call, LCID locale, ApelArguments& arguments, UINT& badArgument);

}  // namespace tavrin::com
