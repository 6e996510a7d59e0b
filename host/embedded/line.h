#pragma once

#include <chrono>
#include <cstdint>
#include <optional>
#include <string_view>
#include <vector>

#include "data/table.h"
#include "host/embedded/field_type.h"

namespace tavrin::host {

/// How far away a database server is.
struct LineSpeed {
    std::chrono::microseconds delay;  ///< of a question and its answer, whatever they hold
    std::int64_t bitsPerSecond;
};

inline constexpr LineSpeed LocalNetwork{std::chrono::microseconds{200}, 1'000'000'000};
inline constexpr LineSpeed BranchOffice{std::chrono::milliseconds{20}, 20'000'000};

/// What has passed over a line.
struct Traffic {
    std::int64_t statements = 0;
    std::int64_t roundTrips = 0;
    std::int64_t bytes = 0;

    /// How long it waits and travels; the server's own work is not in it.
    std::chrono::nanoseconds TimeOn(const LineSpeed& speed) const;
};

/// The line between a program and its database server. A statement is one round trip, and its rows come with
/// the answer; a cursor that stays on the server is asked anew for each block. Bytes are near to what servers
/// send: texts in two bytes a character, numbers and dates in eight, each with its length.
class Line {
  public:
    /// One that counts and takes no time.
    Line() = default;
    /// One that makes its callers wait.
    explicit Line(const LineSpeed& speed) : speed_(speed) {}

    void SendStatement(std::string_view statement);
    /// \param rows null for a write
    void ReceiveRows(const std::vector<FieldInfo>& fields, const data::Table* rows);
    /// A question that is no statement.
    void Ask();

    const Traffic& Passed() const { return passed_; }

  private:
    void Pass(const Traffic& traffic);

    std::optional<LineSpeed> speed_;
    Traffic passed_;
};

}  // namespace tavrin::host
