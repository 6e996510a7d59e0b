#pragma once

#include <cstddef>
#include <functional>
#include <map>
#include <string>
#include <vector>

#include "proofs/flows.h"
#include "proofs/user_session.h"

namespace tavrin::tests {

struct FaultFigures {
    std::size_t flows = 0;
    std::size_t touches =
        0;  ///< statements and recordset operations of all flows, each run once without a fault
    std::size_t runs = 0;
    std::size_t faults = 0;  ///< that struck; a persistent one strikes many times
    std::size_t interruptions =
        0;  ///< runs in which something came to pass under a report, message or dialog
    std::size_t failures = 0;

    FaultFigures& operator+=(const FaultFigures& other);
};

/// Runs user flows with every fault at every place, and looks at what is left each time: the windows, the
/// references, and whether another flow then runs as if nothing had happened.
class FaultRunner {
  public:
    /// \param fail is told of every failure, with what was run
    explicit FaultRunner(std::function<void(const std::string&)> fail);

    /// Every kind of fault at every touch of a flow, once and from there on.
    void RunEveryFault(std::size_t flow);
    /// As above with a few kinds, at statements alone and once.
    void RunSomeFaults(std::size_t flow);
    /// Every kind at every statement, and while that is being reported what users and hosts may try.
    void RunEveryInterruption(std::size_t flow);
    /// At every message and dialog of a flow each window that is open is closed from outside, and the host
    /// calls with another connection.
    void RunEveryClosing(std::size_t flow);

    const FaultFigures& Figures() const { return figures_; }
    /// What is being run, for whoever has to report a crash.
    const std::string& Current() const { return current_; }

  private:
    struct Outcome {
        std::vector<Touch> touches;
        std::vector<std::string> statements;
        std::vector<std::string> told;  ///< reports and messages
        bool operator==(const Outcome&) const = default;
    };

    void Prepare(const Flow& flow);
    Outcome Act(const Flow& flow);
    std::vector<std::string> Told() const;
    const Outcome& Clean(std::size_t flow);
    void RunFault(std::size_t flow, const PlannedFault& fault);
    enum class Outside { LeavesWindows, ClosesWindows };
    void RunInterruption(std::size_t flow, const PlannedFault& fault, Outside outside);
    void Interrupt(Outside outside);
    void RunClosing(std::size_t flow, std::size_t moment, const std::string& window);
    void CheckAfter(std::size_t flow);
    void CheckNextFlow(std::size_t flow);
    void Fail(const std::string& what);

    UserSession session_;
    std::function<void(const std::string&)> fail_;
    std::map<std::size_t, Outcome> clean_;
    FaultFigures figures_;
    std::string current_;
};

}  // namespace tavrin::tests
