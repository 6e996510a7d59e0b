#pragma once

#include <windows.h>

#include <oaidl.h>

#include <vector>

namespace tavrin::e2e {

/// Calls a method by its name, as a scripting host does. The arguments stand in the order in which they are
/// written; they stay the caller's.
HRESULT CallByName(IDispatch& object, const wchar_t* method, const std::vector<VARIANT>& arguments,
                   UINT* badArgument = nullptr);

/// The same by numbers alone, with the last arguments named.
HRESULT CallWithNamedArguments(IDispatch& object, const wchar_t* method,
                               const std::vector<VARIANT>& arguments, std::vector<const wchar_t*> names);

// Arguments of every type that hosts pass.
VARIANT ShortArgument(short number);
VARIANT LongArgument(long number);
VARIANT DoubleArgument(double number);
VARIANT DateArgument(double days);
VARIANT ObjectArgument(IDispatch* object);
/// The text belongs to the caller.
VARIANT TextArgument(BSTR text);
VARIANT MissingArgument();
VARIANT NullArgument();
/// By-reference forms: what they refer to must outlive them.
VARIANT ReferenceTo(VARIANT& variable);
VARIANT ReferenceTo(IDispatch*& object);
VARIANT ReferenceTo(short& number);
VARIANT ReferenceTo(long& number);
VARIANT ReferenceToDate(double& days);

}  // namespace tavrin::e2e
