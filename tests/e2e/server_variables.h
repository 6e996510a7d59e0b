#pragma once

#include <string>

namespace tavrin::e2e {

// The environment variables that lead the tests of the windows on a server to it.
inline constexpr wchar_t ConnectionVariable[] = L"TAVRIN_CONNECTION";  ///< ADO's connection string
inline constexpr wchar_t DatabaseVariable[] = L"TAVRIN_DATABASE";  ///< a database that is the tests' alone

/// In the place of a database: the stand-in's objects are registered for ADO's, and have but one.
inline constexpr wchar_t StandInDatabase[] = L"stand-in";

/// The value of an environment variable, empty where there is none.
std::wstring Variable(const wchar_t* name);

}  // namespace tavrin::e2e
