#include "doctor/core/machine.h"

#include "doctor/core/component_checks.h"

namespace tavrin::doctor {
namespace {

void JudgeAdo(Section& section, const Machine& machine) {
    if (!machine.ado.path.empty()) {
        section.Good(Same("ADO: ") + FileText(machine.ado.path, machine.ado.version));
        return;
    }
    section.Fail(Text{"ADO (ADODB.Connection) lipsește pentru ", "ADO (ADODB.Connection) is missing for "} +
                     BitsText(machine.doctorBits),
                 {"reparați Windows: ADO face parte din el", "repair Windows: ADO is a part of it"});
}

void JudgeProviders(Section& section, const Machine& machine) {
    bool any = false;
    for (const Provider& provider : machine.providers) {
        if (provider.path.empty()) continue;
        any = true;
        section.Good(Same(provider.name + ": ") + FileText(provider.path, provider.version));
    }
    if (any) return;
    section.Warn(
        Text{"niciun furnizor cunoscut pentru SQL Server în ", "no known provider for SQL Server in "} +
            BitsText(machine.doctorBits),
        {"instalați MSOLEDBSQL, dacă programul nu folosește altul",
         "install MSOLEDBSQL, unless the program uses another one"});
}

Section ExamineSystem(const Machine& machine) {
    Section section{{"Sistemul", "The system"}, {}};
    section.Good(Same(machine.system + ": ") + BitsText(machine.systemBits));
    JudgeAdo(section, machine);
    JudgeProviders(section, machine);
    return section;
}

}  // namespace

Text BitsText(int bits) {
    return {std::to_string(bits) + " de biți", std::to_string(bits) + "-bit"};
}

Text FileText(const std::string& path, const std::string& version) {
    if (version.empty()) return Same(path) + Text{", fără versiune", ", without a version"};
    return Same(path + " " + version);
}

Report ExamineMachine(const Machine& machine) {
    return {ExamineSystem(machine), ExamineComponent(machine)};
}

}  // namespace tavrin::doctor
