#include "proofs/fault_runner.h"

#include <algorithm>
#include <utility>

namespace tavrin::tests {
namespace {

constexpr std::int32_t InternalError = 51;

std::string Describe(const Flow& flow, const PlannedFault& fault) {
    return std::string(flow.name) + ", " + NameOf(fault.kind) + " at touch " + std::to_string(fault.touch) +
           (fault.repeat == Repeat::Once ? "" : " and after");
}

}  // namespace

FaultFigures& FaultFigures::operator+=(const FaultFigures& other) {
    flows += other.flows;
    touches += other.touches;
    runs += other.runs;
    faults += other.faults;
    interruptions += other.interruptions;
    failures += other.failures;
    return *this;
}

FaultRunner::FaultRunner(std::function<void(const std::string&)> fail) : fail_(std::move(fail)) {}

void FaultRunner::Fail(const std::string& what) {
    ++figures_.failures;
    fail_(current_ + ": " + what);
}

void FaultRunner::Prepare(const Flow& flow) {
    session_.Restart();
    session_.Apel();
    flow.prepare(session_);
    if (!session_.desktop.reports.empty())
        Fail("the way there reported " + session_.desktop.reports.front().description);
    session_.desktop.reports.clear();
    session_.messages.clear();
}

std::vector<std::string> FaultRunner::Told() const {
    std::vector<std::string> told;
    for (const HeadlessDesktop::Report& report : session_.desktop.reports)
        told.push_back(std::to_string(report.number) + " " + report.description);
    for (const UserSession::Shown& message : session_.messages)
        told.push_back(message.text);
    return told;
}

FaultRunner::Outcome FaultRunner::Act(const Flow& flow) {
    session_.plan->Start();
    flow.act(session_);
    return {session_.plan->Touches(), session_.plan->Statements(), Told()};
}

const FaultRunner::Outcome& FaultRunner::Clean(std::size_t flow) {
    const auto known = clean_.find(flow);
    if (known != clean_.end()) return known->second;
    const Flow& run = AllFlows()[flow];
    current_ = std::string(run.name) + ", without a fault";
    Prepare(run);
    const Outcome& outcome = clean_.emplace(flow, Act(run)).first->second;
    session_.plan->Start();
    if (const std::string complaint = session_.Complaint(); !complaint.empty()) Fail(complaint);
    ++figures_.flows;
    figures_.touches += outcome.touches.size();
    return outcome;
}

void FaultRunner::RunEveryFault(std::size_t flow) {
    const std::size_t touches = Clean(flow).touches.size();
    for (std::size_t touch = 1; touch <= touches; ++touch) {
        for (const FaultKind kind : AllFaultKinds) {
            for (const Repeat repeat : {Repeat::Once, Repeat::Always})
                RunFault(flow, {touch, kind, repeat});
        }
    }
}

void FaultRunner::RunSomeFaults(std::size_t flow) {
    const std::vector<Touch> touches = Clean(flow).touches;
    for (std::size_t i = 0; i < touches.size(); ++i) {
        if (!IsStatement(touches[i])) continue;
        for (const FaultKind kind : {FaultKind::Syntax, FaultKind::NullValue, FaultKind::FewerRows})
            RunFault(flow, {i + 1, kind, Repeat::Once});
    }
}

void FaultRunner::RunEveryInterruption(std::size_t flow) {
    const std::vector<Touch> touches = Clean(flow).touches;
    for (std::size_t i = 0; i < touches.size(); ++i) {
        if (!IsStatement(touches[i])) continue;
        for (const FaultKind kind : AllFaultKinds) {
            for (const Outside outside : {Outside::LeavesWindows, Outside::ClosesWindows})
                RunInterruption(flow, {i + 1, kind, Repeat::Once}, outside);
        }
    }
}

void FaultRunner::RunEveryClosing(std::size_t flow) {
    const auto& touches = Clean(flow).touches;
    const auto moments = static_cast<std::size_t>(std::ranges::count_if(touches, [](Touch touch) {
        return touch == Touch::Message || touch == Touch::Dialog || touch == Touch::FileDialog;
    }));
    for (std::size_t moment = 1; moment <= moments; ++moment) {
        for (const char* window : {"Utilitati", "Notes", "Agenda", "frmCalculator", "AlegeMoneda",
                                   "CursValutar", "CursValutarDetaliu", "CereMoneda", "EvolutieCurs", ""})
            RunClosing(flow, moment, window);
    }
}

void FaultRunner::RunFault(std::size_t flow, const PlannedFault& fault) {
    const Flow& run = AllFlows()[flow];
    current_ = Describe(run, fault);
    Prepare(run);
    session_.plan->Start(fault);
    run.act(session_);
    const std::size_t struck = session_.plan->Struck();
    const bool quiet = struck > 0 && IsQuiet(session_.plan->Touches()[fault.touch - 1]);
    session_.plan->Start();
    if (struck == 0) return;  // not a place for such a fault
    ++figures_.runs;
    figures_.faults += struck;
    if (IsError(fault.kind) && !quiet && Told().empty() && session_.hostErrors.empty())
        Fail("nobody was told");
    CheckAfter(flow);
}

void FaultRunner::RunInterruption(std::size_t flow, const PlannedFault& fault, Outside outside) {
    const Flow& run = AllFlows()[flow];
    current_ = Describe(run, fault) + ", then others while it is reported";
    if (outside == Outside::ClosesWindows) current_ += ", who close windows";
    Prepare(run);
    bool interrupted = false;
    session_.desktop.whileReporting = [&] {
        if (std::exchange(interrupted, true)) return;
        figures_.faults += session_.plan->Struck();
        session_.plan->Start();
        Interrupt(outside);
        if (!session_.plan->Statements().empty()) Fail("a statement ran under the report");
    };
    session_.plan->Start(fault);
    run.act(session_);
    session_.desktop.whileReporting = nullptr;
    session_.plan->Start();
    if (!interrupted) return;
    ++figures_.runs;
    ++figures_.interruptions;
    CheckAfter(flow);
}

/// What users and hosts do while a report is up. Users can do nothing, however they try; hosts call, and may
/// close what is open.
void FaultRunner::Interrupt(Outside outside) {
    session_.Apel();
    for (const bool modal : {true, false}) {
        session_.desktop.messagesAreModal = modal;
        session_.Click("Utilitati", "cmdAction(1)");
        session_.Click("Utilitati", "cmdAction(3)");
        session_.Click("CursValutar", "cmdRefresh");
        session_.Click("CursValutar", "cmdAction(0)");
        session_.Click("Agenda", "Grid");
    }
    session_.desktop.messagesAreModal = true;
    if (outside == Outside::LeavesWindows) return;
    for (const char* window : {"AlegeMoneda", "CursValutarDetaliu", "CursValutar", "Agenda"}) {
        if (forms::Form* form = session_.Window(window)) form->HandleClose();
    }
}

/// \param window which is closed; empty for a call of the host's
void FaultRunner::RunClosing(std::size_t flow, std::size_t moment, const std::string& window) {
    const Flow& run = AllFlows()[flow];
    current_ = std::string(run.name) + ", at its message or dialog " + std::to_string(moment) +
               (window.empty() ? ", the host calls" : ", " + window + " is closed");
    Prepare(run);
    std::size_t shown = 0;
    bool happened = false;
    session_.whileShowing = [&] {
        if (++shown != moment) return;
        forms::Form* form = session_.Window(window);
        happened = window.empty() || form != nullptr;
        session_.host.connected = !window.empty();
        if (window.empty()) session_.Apel();
        if (form != nullptr) form->HandleClose();
    };
    session_.plan->Start();
    run.act(session_);
    session_.whileShowing = nullptr;
    session_.plan->Start();
    if (!happened) return;
    ++figures_.runs;
    ++figures_.interruptions;
    CheckAfter(flow);
}

void FaultRunner::CheckAfter(std::size_t flow) {
    for (const HeadlessDesktop::Report& report : session_.desktop.reports) {
        if (report.number == InternalError) Fail("an error without a number: " + report.description);
    }
    if (const std::string complaint = session_.Complaint(); !complaint.empty()) Fail(complaint);
    session_.LeaveAll();
    if (const std::string complaint = session_.ComplaintAfterLeaving(); !complaint.empty())
        Fail(complaint + " after leaving");
    CheckNextFlow(flow);
}

void FaultRunner::CheckNextFlow(std::size_t flow) {
    const std::string before = current_;
    const std::size_t next = (flow + 1) % AllFlows().size();
    const Outcome clean = Clean(next);
    current_ = before;
    const Flow& run = AllFlows()[next];
    Prepare(run);
    if (Act(run) != clean) Fail(std::string("afterwards another thing happens in: ") + run.name);
    session_.plan->Start();
    if (const std::string complaint = session_.Complaint(); !complaint.empty())
        Fail(complaint + " after the next flow");
}

}  // namespace tavrin::tests
