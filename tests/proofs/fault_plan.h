#pragma once

#include <array>
#include <cstddef>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "support/recording_connection.h"

namespace tavrin::tests {

/// What may go wrong where a window meets its database or the message service.
enum class FaultKind {
    // Errors that the provider reports.
    Syntax,
    Timeout,
    Deadlock,
    DuplicateKey,
    ClosedObject,
    Disconnected,
    OutOfMemory,
    // Values that are not what was asked for.
    NullValue,
    EmptyValue,
    OtherType,
    BigNumber,   ///< beyond 32 bits
    HugeNumber,  ///< beyond 64 bits
    // Answers of another shape.
    FewerRows,     ///< half of the rows that were counted, and none where one was
    FewerFields,   ///< the first field alone
    UnknownCount,  ///< the provider does not count its rows
    NoResult,      ///< success, but nothing was opened
};

inline constexpr std::array AllFaultKinds = {
    FaultKind::Syntax,       FaultKind::Timeout,      FaultKind::Deadlock,     FaultKind::DuplicateKey,
    FaultKind::ClosedObject, FaultKind::Disconnected, FaultKind::OutOfMemory,  FaultKind::NullValue,
    FaultKind::EmptyValue,   FaultKind::OtherType,    FaultKind::BigNumber,    FaultKind::HugeNumber,
    FaultKind::FewerRows,    FaultKind::FewerFields,  FaultKind::UnknownCount, FaultKind::NoResult};

const char* NameOf(FaultKind kind);
/// Whether the fault is an error that leaves the operation, rather than a strange answer.
bool IsError(FaultKind kind);
/// \throws data::Error, or std::bad_alloc for OutOfMemory
[[noreturn]] void ThrowFault(FaultKind kind);

/// Everything on a connection or a recordset that a provider can fail, and what the platform can: windows,
/// messages, dialogs, files, the editor of formatted text.
enum class Touch {
    Window,  ///< made by the platform
    Create,
    Execute,
    Open,
    Requery,
    ReadAll,
    Close,
    Move,
    Position,
    Count,
    Shape,
    Field,
    Message,
    Dialog,
    FileDialog,
    File,
    Document  ///< comes into an editor or out of it
};

/// Whether a failure there ends what the user has begun without a word, as nothing is lost.
bool IsQuiet(Touch touch);
/// A statement, or the fetching of its rows.
bool IsStatement(Touch touch);

struct PlannedFault {
    std::size_t touch = 1;  ///< the n-th from now on
    FaultKind kind = FaultKind::Syntax;
    Repeat repeat = Repeat::Once;
};

/// Counts how windows touch their database, and says where which fault is due.
class FaultPlan {
  public:
    /// Counts anew; a fault that was planned before is forgotten.
    void Start(std::optional<PlannedFault> fault = std::nullopt);

    /// Counts one touch. Throws a due error; answers another due fault.
    std::optional<FaultKind> Meet(Touch touch);
    /// As Meet, for a statement, which is remembered.
    std::optional<FaultKind> MeetStatement(Touch touch, std::string statement);

    const std::vector<Touch>& Touches() const { return touches_; }
    const std::vector<std::string>& Statements() const { return statements_; }
    /// How often a fault has struck since the start.
    std::size_t Struck() const { return struck_; }
    bool IsActive() const { return fault_.has_value(); }

    /// Before a statement goes out. May look, not throw.
    std::function<void(const std::string&)> whenStatement;

    int recordsets = 0;       ///< alive now
    bool hasWritten = false;  ///< a statement that is no query has passed; whoever cares takes it back

  private:
    std::optional<PlannedFault> fault_;
    std::vector<Touch> touches_;
    std::vector<std::string> statements_;
    std::size_t struck_ = 0;
};

}  // namespace tavrin::tests
