#pragma once

#include <string>
#include <vector>

#include "doctor/core/finding.h"

namespace tavrin::doctor {

/// One place in the registry where the component's class stands, and what it leads to.
struct Registration {
    int bits = 0;         ///< 32 or 64: of the view, and so of the programs that look there
    bool ofUser = false;  ///< for the user rather than for the machine
    std::string path;     ///< of the DLL
    bool fileExists = false;
    int fileBits = 0;  ///< of the DLL; 0 where it is no program
    std::string fileVersion;
    std::string threadingModel;
    std::string typeLibrary;  ///< its file; empty where none is registered
    bool typeLibraryLoads = false;
};

/// A class that others bring: ADO, or a provider for it.
struct Provider {
    std::string name;
    std::string path;     ///< empty where it is not there
    std::string version;  ///< empty where the file does not tell
};

/// What COM answered to a program of the doctor's own bitness.
struct Creation {
    bool succeeded = false;
    Text failure;      ///< with the system's words, where it has any
    std::string path;  ///< of the DLL that was loaded
};

/// What a machine says of itself.
struct Machine {
    std::string system;             ///< "Windows 10.0.19045"
    int systemBits = 64;            ///< what it can run at most
    int doctorBits = 64;            ///< Creation and providers are of this bitness alone
    bool doctorIsElevated = false;  ///< Creation is of such a program alone
    std::vector<Registration> registrations;
    Creation creation;
    Provider ado;
    std::vector<Provider> providers;  ///< those that are known for SQL Server
};

/// "64-bit"
Text BitsText(int bits);

/// A file with its version.
Text FileText(const std::string& path, const std::string& version);

/// What of it stands in the way of the component.
Report ExamineMachine(const Machine& machine);

}  // namespace tavrin::doctor
