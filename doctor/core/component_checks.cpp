#include "doctor/core/component_checks.h"

#include <algorithm>

#include "doctor/core/product.h"

namespace tavrin::doctor {
namespace {

using Registrations = std::vector<Registration>;

std::string PackageName(int bits, bool ofUser) {
    return std::string("Tavrin-") + ProductVersion + (bits == 64 ? "-x64" : "-x86") +
           (ofUser ? "-user.msi" : ".msi");
}

/// "64-bit, for the machine: "
Text PlaceOf(const Registration& registration) {
    return BitsText(registration.bits) + (registration.ofUser
                                              ? Text{", pentru utilizator: ", ", for the user: "}
                                              : Text{", pentru calculator: ", ", for the machine: "});
}

/// Files and registration are written again, whatever lies there.
Text RepairAdvice(const Registration& registration) {
    const std::string repair = "msiexec /famus " + PackageName(registration.bits, registration.ofUser);
    const std::string command =
        registration.ofUser ? "regsvr32 /n /i:user Tavrin.dll" : "regsvr32 Tavrin.dll";
    return Text{"reparați pachetul: ", "repair the package: "} + Same(repair) +
           Text{"; fără pachet, înregistrați din nou: ", "; without a package, register again: "} +
           Same(command);
}

/// As the file system compares them, which Latin letters alone are enough for here.
bool IsSameFile(const std::string& one, const std::string& other) {
    const auto small = [](char character) {
        return character >= 'A' && character <= 'Z' ? static_cast<char>(character - 'A' + 'a') : character;
    };
    return std::ranges::equal(one, other, {}, small, small);
}

const Registration* Find(const Registrations& registrations, int bits, bool ofUser) {
    const auto found = std::ranges::find_if(
        registrations, [&](const Registration& one) { return one.bits == bits && one.ofUser == ofUser; });
    return found == registrations.end() ? nullptr : &*found;
}

/// The one that programs take which do not run as administrator.
const Registration* Winner(const Registrations& registrations, int bits) {
    const Registration* const ofUser = Find(registrations, bits, true);
    return ofUser != nullptr ? ofUser : Find(registrations, bits, false);
}

/// What the other bitness has registered, where both see one place of the registry. Programs of this bitness
/// have nothing there, and nobody meant it for them.
bool IsOfTheOtherBitness(const Registration& registration, const Registrations& registrations) {
    if (registration.fileBits == 0 || registration.fileBits == registration.bits) return false;
    const Registration* const own = Find(registrations, registration.fileBits, registration.ofUser);
    return own != nullptr && IsSameFile(own->path, registration.path);
}

/// What keeps a program from loading the file; empty where nothing does.
Text ProblemOf(const Registration& registration) {
    const std::string& path = registration.path;
    if (!registration.fileExists) return Text{"fișierul lipsește: ", "the file is missing: "} + Same(path);
    if (registration.fileBits == 0) {
        return Same(path) +
               Text{" nu este un program, sau nu poate fi citit", " is no program, or cannot be read"};
    }
    if (registration.fileBits != registration.bits)
        return Same(path) + Text{" este de ", " is "} + BitsText(registration.fileBits);
    if (registration.threadingModel != "Apartment") {
        return Text{"ThreadingModel este '", "ThreadingModel is '"} + Same(registration.threadingModel) +
               Text{"', nu Apartment", "', not Apartment"};
    }
    return {};
}

/// Only administrators' programs come to one behind which another stands.
void JudgeFile(Section& section, const Registration& registration, bool isHidden) {
    const Text place = PlaceOf(registration);
    const Text problem = ProblemOf(registration);
    if (problem == Text{}) {
        section.Good(place + FileText(registration.path, registration.fileVersion));
    } else if (isHidden) {
        section.Warn(place + problem, RepairAdvice(registration));
    } else {
        section.Fail(place + problem, RepairAdvice(registration));
    }
}

/// Where the file cannot be loaded, neither can what is inside.
void JudgeTypeLibrary(Section& section, const Registration& registration) {
    if (registration.typeLibraryLoads || ProblemOf(registration) != Text{}) return;
    const std::string& file = registration.typeLibrary;
    const Text problem =
        file.empty()
            ? Text{"biblioteca de tipuri nu este înregistrată", "the type library is not registered"}
            : Text{"biblioteca de tipuri nu se încarcă din ", "the type library does not load from "} +
                  Same(file);
    section.Warn(PlaceOf(registration) + problem, RepairAdvice(registration));
}

/// Says which one programs take, once, whatever is registered twice.
void JudgeTwice(Section& section, const Registrations& registrations) {
    Text twice;
    int differing = 0;
    for (const int bits : {32, 64}) {
        const Registration* const ofUser = Find(registrations, bits, true);
        const Registration* const ofMachine = Find(registrations, bits, false);
        if (ofUser == nullptr || ofMachine == nullptr) continue;
        twice = twice + Same(twice == Text{} ? "" : ", ") + BitsText(bits);
        if (!IsSameFile(ofUser->path, ofMachine->path)) differing = bits;
    }
    if (twice == Text{}) return;
    const Text what =
        Text{"înregistrată și pentru utilizator, și pentru calculator (",
             "registered both for the user and for the machine ("} +
        twice +
        Text{"): programele o iau pe a utilizatorului, cele pornite ca administrator pe a calculatorului",
             "): programs take the user's, those that run as administrator the machine's"};
    if (differing == 0) {
        section.Good(what);
        return;
    }
    section.Warn(what, Text{"păstrați una singură; a utilizatorului se scoate cu msiexec /x ",
                            "keep one of them; the user's is removed by msiexec /x "} +
                           Same(PackageName(differing, true)) +
                           Text{", fără pachet cu regsvr32 /u /n /i:user Tavrin.dll",
                                ", without a package by regsvr32 /u /n /i:user Tavrin.dll"});
}

void JudgeVersions(Section& section, const Registrations& registrations) {
    const Registration* const one = Winner(registrations, 32);
    const Registration* const other = Winner(registrations, 64);
    if (one == nullptr || other == nullptr || !one->fileExists || !other->fileExists) return;
    if (one->fileVersion == other->fileVersion) return;
    section.Warn(Text{"versiuni diferite: ", "different versions: "} +
                     Same(one->fileVersion + " (32), " + other->fileVersion + " (64)"),
                 Text{"instalați pachetele aceleiași versiuni: ", "install the packages of one version: "} +
                     Same(PackageName(32, one->ofUser) + ", " + PackageName(64, other->ofUser)));
}

Text InstallAdvice(int bits) {
    return Text{"instalați ", "install "} + Same(PackageName(bits, false)) +
           Text{", pentru un singur utilizator ", ", for one user "} + Same(PackageName(bits, true));
}

void JudgeAbsenceOfAll(Section& section, const Machine& machine) {
    const Text manifest{"; un program cu manifest nu are nevoie de înregistrare (docs/integrating.md)",
                        "; a program with a manifest needs no registration (docs/integrating.md)"};
    section.Fail({"nu este înregistrată nici pentru utilizator, nici pentru calculator",
                  "registered neither for the user nor for the machine"},
                 InstallAdvice(machine.doctorBits) + manifest);
}

/// One bitness is enough for most; it is this program's that counts, as it was chosen for the host's.
void JudgeAbsence(Section& section, const Machine& machine, const Registrations& registrations) {
    for (const int bits : {32, 64}) {
        if (bits > machine.systemBits || Winner(registrations, bits) != nullptr) continue;
        const Text what = Text{"neînregistrată pentru programe de ", "not registered for programs of "} +
                          Text{std::to_string(bits) + " de biți", std::to_string(bits) + " bits"};
        if (bits == machine.doctorBits) {
            section.Warn(what, InstallAdvice(bits));
        } else {
            section.Good(what);
        }
    }
}

/// Whose file was loaded, and why that one where another is preferred.
Text OwnerOf(const std::string& file, const Machine& machine, const Registrations& registrations) {
    const Registration* const ofUser = Find(registrations, machine.doctorBits, true);
    const Registration* const ofMachine = Find(registrations, machine.doctorBits, false);
    const bool isUsers = ofUser != nullptr && IsSameFile(ofUser->path, file);
    const bool isMachines = ofMachine != nullptr && IsSameFile(ofMachine->path, file);
    if (isUsers == isMachines) return {};
    if (isUsers) return {", a utilizatorului", ", the user's"};
    Text owner{", a calculatorului", ", the machine's"};
    if (ofUser == nullptr || !machine.doctorIsElevated) return owner;
    return owner +
           Text{": acest program este pornit ca administrator", ": this program runs as administrator"};
}

/// As administrator nothing of the user's is seen, so that a failure says nothing of his programs.
void JudgeFailure(Section& section, const Machine& machine, const Registrations& registrations) {
    const Registration* const ofUser = Find(registrations, machine.doctorBits, true);
    const Registration* const ofMachine = Find(registrations, machine.doctorBits, false);
    const bool isUsersHidden = machine.doctorIsElevated && ofUser != nullptr;
    const Registration* const met = isUsersHidden || ofUser == nullptr ? ofMachine : ofUser;
    const Text what =
        Text{"CreateObject(\"Tavrin.Utile\") nu reușește: ", "CreateObject(\"Tavrin.Utile\") fails: "} +
        machine.creation.failure;
    const Text advice{
        "un program pornit ca administrator, ca acesta, nu vede înregistrarea utilizatorului: porniți-l ca "
        "utilizator, sau instalați ",
        "a program that runs as administrator, as this one does, does not see what is registered for the "
        "user: run it as the user, or install "};
    if (met == nullptr && isUsersHidden) {
        section.Warn(what, advice + Same(PackageName(machine.doctorBits, false)));
    } else if (isUsersHidden) {
        section.Warn(what, RepairAdvice(*met));
    } else if (met != nullptr) {
        section.Fail(what, RepairAdvice(*met));
    }
}

void JudgeCreation(Section& section, const Machine& machine, const Registrations& registrations) {
    if (!machine.creation.succeeded) {
        JudgeFailure(section, machine, registrations);
        return;
    }
    section.Good(
        Text{"CreateObject(\"Tavrin.Utile\") încarcă, în ", "CreateObject(\"Tavrin.Utile\") loads, in "} +
        BitsText(machine.doctorBits) + Same(", " + machine.creation.path) +
        OwnerOf(machine.creation.path, machine, registrations));
}

}  // namespace

Section ExamineComponent(const Machine& machine) {
    Section section{{"Componenta", "The component"}, {}};
    Registrations registrations = machine.registrations;
    std::erase_if(registrations,
                  [&](const Registration& one) { return IsOfTheOtherBitness(one, machine.registrations); });
    for (const Registration& registration : registrations) {
        JudgeFile(section, registration, &registration != Winner(registrations, registration.bits));
        JudgeTypeLibrary(section, registration);
    }
    JudgeTwice(section, registrations);
    JudgeVersions(section, registrations);
    if (registrations.empty()) {
        JudgeAbsenceOfAll(section, machine);
    } else {
        JudgeAbsence(section, machine, registrations);
    }
    JudgeCreation(section, machine, registrations);
    return section;
}

}  // namespace tavrin::doctor
