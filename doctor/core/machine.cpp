#include "doctor/core/machine.h"

#include <algorithm>

namespace tavrin::doctor {
namespace {

Text BitsText(int bits) {
    return {std::to_string(bits) + " de biti", std::to_string(bits) + "-bit"};
}

/// "64-bit, for the machine"
Text PlaceOf(const Registration& registration) {
    const Text bits = BitsText(registration.bits);
    return {bits.romanian + (registration.ofUser ? ", pentru utilizator" : ", pentru calculator"),
            bits.english + (registration.ofUser ? ", for the user" : ", for the machine")};
}

Text Behind(const Text& place, const Text& what) {
    return {place.romanian + ": " + what.romanian, place.english + ": " + what.english};
}

/// The command that registers once more.
Text RegisterAgain(const Registration& registration) {
    const std::string command =
        registration.ofUser ? "regsvr32 /n /i:user Tavrin.dll" : "regsvr32 Tavrin.dll";
    const Text bits = BitsText(registration.bits);
    return {"inregistrati din nou biblioteca de " + bits.romanian + ": " + command,
            "register the " + bits.english + " DLL again: " + command};
}

void JudgeFile(Section& section, const Registration& registration) {
    const Text place = PlaceOf(registration);
    const auto fail = [&](const Text& what) {
        section.Fail(Behind(place, what), RegisterAgain(registration));
    };
    if (!registration.fileExists) {
        fail({"fisierul lipseste: " + registration.path, "the file is missing: " + registration.path});
    } else if (registration.fileBits != registration.bits) {
        const Text bits = BitsText(registration.fileBits);
        fail({registration.path + " este de " + bits.romanian, registration.path + " is " + bits.english});
    } else if (registration.threadingModel != "Apartment") {
        fail({"ThreadingModel este '" + registration.threadingModel + "', nu Apartment",
              "ThreadingModel is '" + registration.threadingModel + "', not Apartment"});
    } else {
        const std::string file = registration.path + " " + registration.fileVersion;
        section.Good(Behind(place, Same(file)));
    }
}

void JudgeTypeLibrary(Section& section, const Registration& registration) {
    if (registration.typeLibraryLoads) return;
    const std::string& file = registration.typeLibrary;
    section.Warn(
        Behind(PlaceOf(registration), file.empty() ? Text{"biblioteca de tipuri nu este inregistrata",
                                                          "the type library is not registered"}
                                                   : Text{"biblioteca de tipuri nu se incarca din " + file,
                                                          "the type library does not load from " + file}),
        RegisterAgain(registration));
}

void JudgeRivals(Section& section, const std::vector<Registration>& registrations) {
    for (const Registration& user : registrations) {
        for (const Registration& machine : registrations) {
            const bool rivals = user.ofUser && !machine.ofUser && user.bits == machine.bits;
            if (!rivals || user.path == machine.path) continue;
            section.Warn({"inregistrarea utilizatorului trece inaintea celei a calculatorului: " + user.path,
                          "the user's registration goes before the machine's: " + user.path},
                         {"scoateti una: regsvr32 /u /n /i:user Tavrin.dll, sau regsvr32 /u Tavrin.dll",
                          "remove one: regsvr32 /u /n /i:user Tavrin.dll, or regsvr32 /u Tavrin.dll"});
        }
    }
    const auto other = std::ranges::find_if(registrations, [&](const Registration& one) {
        return one.fileExists && one.fileVersion != registrations.front().fileVersion;
    });
    if (other == registrations.end() || !registrations.front().fileExists) return;
    section.Warn({"versiuni diferite: " + registrations.front().fileVersion + " si " + other->fileVersion,
                  "different versions: " + registrations.front().fileVersion + " and " + other->fileVersion},
                 {"instalati aceeasi versiune pentru 32 si 64 de biti",
                  "install the same version for 32 and 64 bits"});
}

bool HasRegistration(const Machine& machine, int bits) {
    return std::ranges::find(machine.registrations, bits, &Registration::bits) != machine.registrations.end();
}

void JudgeAbsence(Section& section, const Machine& machine) {
    const Text advice{"regsvr32 Tavrin.dll, sau manifest langa program (docs/integrating.md)",
                      "regsvr32 Tavrin.dll, or a manifest beside the program (docs/integrating.md)"};
    for (const int bits : {32, 64}) {
        if (bits > machine.systemBits || HasRegistration(machine, bits)) continue;
        const Text text = BitsText(bits);
        const Text what{"neinregistrat pentru programe de " + text.romanian,
                        "not registered for " + text.english + " programs"};
        if (machine.registrations.empty()) {
            section.Warn(what, advice);
        } else {
            section.Good(what);
        }
    }
}

void JudgeCreation(Section& section, const Machine& machine) {
    const Text bits = BitsText(machine.doctorBits);
    if (machine.creation.succeeded) {
        section.Good(
            {"CreateObject(\"Tavrin.Utile\") incarca, in " + bits.romanian + ", " + machine.creation.path,
             "CreateObject(\"Tavrin.Utile\") loads, in " + bits.english + ", " + machine.creation.path});
    } else if (HasRegistration(machine, machine.doctorBits)) {
        section.Fail(
            {"CreateObject(\"Tavrin.Utile\") nu reuseste: " + machine.creation.failure,
             "CreateObject(\"Tavrin.Utile\") fails: " + machine.creation.failure},
            {"inregistrati din nou; un program pornit ca administrator nu vede inregistrarea utilizatorului",
             "register again; a program that runs as administrator does not see what is registered for the "
             "user"});
    }
}

Section ExamineRegistrations(const Machine& machine) {
    Section section{{"Componenta", "The component"}, {}};
    for (const Registration& registration : machine.registrations) {
        JudgeFile(section, registration);
        JudgeTypeLibrary(section, registration);
    }
    if (!machine.registrations.empty()) JudgeRivals(section, machine.registrations);
    JudgeAbsence(section, machine);
    JudgeCreation(section, machine);
    return section;
}

Section ExamineSystem(const Machine& machine) {
    Section section{{"Sistemul", "The system"}, {}};
    section.Good(Behind(Same(machine.system), BitsText(machine.systemBits)));
    const Text bits = BitsText(machine.doctorBits);
    if (machine.ado.path.empty()) {
        section.Fail({"ADO (ADODB.Connection) lipseste pentru " + bits.romanian,
                      "ADO (ADODB.Connection) is missing for " + bits.english},
                     {"reparati Windows: ADO face parte din el", "repair Windows: ADO is a part of it"});
    } else {
        section.Good(Same("ADO: " + machine.ado.path + " " + machine.ado.version));
    }
    bool any = false;
    for (const Provider& provider : machine.providers) {
        if (provider.path.empty()) continue;
        any = true;
        section.Good(Same(provider.name + ": " + provider.path + " " + provider.version));
    }
    if (!any) {
        section.Warn({"nici un furnizor cunoscut pentru SQL Server in " + bits.romanian,
                      "no known provider for SQL Server in " + bits.english},
                     {"instalati MSOLEDBSQL, daca programul nu foloseste altul",
                      "install MSOLEDBSQL, unless the program uses another one"});
    }
    return section;
}

}  // namespace

Report ExamineMachine(const Machine& machine) {
    return {ExamineSystem(machine), ExamineRegistrations(machine)};
}

}  // namespace tavrin::doctor
