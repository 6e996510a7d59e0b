#pragma once

#include <string>

#include "verify/child_process.h"
#include "verify/report.h"

namespace tavrin::verify {

/// Runs the tests that match, dealt to several processes, and says on the console how far it has come.
/// \param kitFolder ends with a backslash
TestRun RunTests(const std::string& title, const std::string& filter, const std::wstring& kitFolder,
                 const Variables& variables = {});

/// Has the stand-in host show every window and take pictures; a run of one test.
TestRun RunTour();

}  // namespace tavrin::verify
