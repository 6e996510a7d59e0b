#pragma once

#include <utility>

#include "win32/ado/dispatch_object.h"

namespace tavrin::win32 {

/// The first entry of the connection's Errors collection, or the given error where there is none.
data::Error DescribedByConnection(const DispatchObject& connection, const UndescribedError& error);

/// Runs a call whose silent failures the connection may be able to explain.
template <class Call>
auto WithProviderErrors(const DispatchObject& connection, Call&& call) {
    try {
        return std::forward<Call>(call)();
    } catch (const UndescribedError& error) {
        throw DescribedByConnection(connection, error);
    }
}

}  // namespace tavrin::win32
