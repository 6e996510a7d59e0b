#pragma once

#include "win32/base/unknown_object.h"

namespace tavrin::host {

/// How many of the host's database objects are alive in the whole process.
struct LiveObjects {
    win32::ObjectCount connections;
    win32::ObjectCount recordsets;
    win32::ObjectCount fields;  ///< Fields and Field objects
    win32::ObjectCount errors;  ///< Errors and Error objects

    static LiveObjects& Get();
};

inline LiveObjects& LiveObjects::Get() {
    static LiveObjects counts;
    return counts;
}

}  // namespace tavrin::host
