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
    std::size_t pairs = 0;   ///< runs whose second fault struck while the first was being reported
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
    /// Every kind at every statement, and while that is being reported every kind in what the user does
    /// meanwhile.
    void RunEveryPair(std::size_t flow);

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
    void RunPair(std::size_t flow, const PlannedFault& first, FaultKind second);
    void Interrupt();
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
