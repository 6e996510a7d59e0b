#include "host/embedded/line.h"

#include <string>
#include <thread>

namespace tavrin::host {
namespace {

using std::chrono::nanoseconds;

constexpr std::int64_t QuestionBytes = 32;  ///< what frames a question and an answer
constexpr std::int64_t ColumnBytes = 12;    ///< type, size and flags beside a column's name
constexpr std::int64_t LengthBytes = 2;
constexpr std::int64_t NumberBytes = 8;

/// In UTF-16, of a text in UTF-8.
std::int64_t TextBytes(std::string_view text) {
    constexpr unsigned continuation = 0x80;
    constexpr unsigned firstOfFour = 0xF0;
    std::int64_t units = 0;
    for (const char character : text) {
        const auto byte = static_cast<unsigned char>(character);
        if ((byte & 0xC0U) != continuation) ++units;
        if (byte >= firstOfFour) ++units;
    }
    return 2 * units;
}

std::int64_t ValueBytes(const data::Value& value) {
    if (value.IsNull() || value.IsEmpty()) return LengthBytes;
    if (const auto* text = std::get_if<std::string>(&value.Content())) return LengthBytes + TextBytes(*text);
    return LengthBytes + NumberBytes;
}

std::int64_t RowBytes(const data::Table& rows, std::size_t row) {
    std::int64_t bytes = 1;
    for (std::size_t field = 0; field < rows.FieldCount(); ++field)
        bytes += ValueBytes(rows.At(row, field));
    return bytes;
}

/// Short waits are shorter than what the system's clock wakes a thread by.
void Wait(nanoseconds time) {
    using Clock = std::chrono::steady_clock;
    const auto end = Clock::now() + time;
    constexpr std::chrono::milliseconds wakes{20};
    if (time > wakes) std::this_thread::sleep_for(time - wakes);
    while (Clock::now() < end)
        std::this_thread::yield();
}

}  // namespace

nanoseconds Traffic::TimeOn(const LineSpeed& speed) const {
    constexpr std::int64_t bitsPerByte = 8;
    const double seconds =
        static_cast<double>(bytes * bitsPerByte) / static_cast<double>(speed.bitsPerSecond);
    return roundTrips * nanoseconds(speed.delay) +
           std::chrono::duration_cast<nanoseconds>(std::chrono::duration<double>(seconds));
}

void Line::SendStatement(std::string_view statement) {
    Pass({.statements = 1, .roundTrips = 1, .bytes = QuestionBytes + TextBytes(statement)});
}

void Line::ReceiveRows(const std::vector<FieldInfo>& fields, const data::Table* rows) {
    if (rows == nullptr) return;
    std::int64_t bytes = 0;
    for (const FieldInfo& field : fields)
        bytes += ColumnBytes + TextBytes(field.name);
    for (std::size_t row = 0; row < rows->RowCount(); ++row)
        bytes += RowBytes(*rows, row);
    Pass({.bytes = bytes});
}

void Line::Ask() {
    Pass({.roundTrips = 1, .bytes = QuestionBytes});
}

void Line::Pass(const Traffic& traffic) {
    passed_.statements += traffic.statements;
    passed_.roundTrips += traffic.roundTrips;
    passed_.bytes += traffic.bytes;
    if (speed_) Wait(traffic.TimeOn(*speed_));
}

}  // namespace tavrin::host
