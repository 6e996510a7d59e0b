#include "data/traced_connection.h"

#include <chrono>
#include <functional>
#include <string>
#include <utility>

#include "data/error.h"
#include "data/pass_through_recordset.h"
#include "data/statement_without_texts.h"

namespace tavrin::data {
namespace {

using Clock = std::chrono::steady_clock;

/// \param rows what ran; null where nothing did that could tell
/// \return -1 where the provider does not say
std::int64_t RowsOf(const Recordset* rows) noexcept try {
    if (rows == nullptr) return -1;
    return rows->IsOpen() ? rows->RecordCount() : rows->AffectedRows();
} catch (...) {
    return -1;
}

std::string Line(std::string_view statement, Clock::duration taken, const std::string& outcome) {
    const auto milliseconds = std::chrono::duration_cast<std::chrono::milliseconds>(taken).count();
    std::string line = "statement, " + std::to_string(milliseconds) + " ms";
    line.append(outcome).append(": ");
    return line.append(StatementWithoutTexts(statement));
}

/// Runs a statement and tells of it. The host may call in meanwhile and so take away whoever asked for it:
/// nothing but the arguments is touched afterwards.
/// \param run gives the recordset that knows the rows
// NOLINTNEXTLINE(performance-unnecessary-value-param): held for as long as the statement runs
void Trace(const std::shared_ptr<Diagnosis> listener, std::string_view statement,
           const std::function<const Recordset*()>& run) {
    const auto begin = Clock::now();
    const Recordset* answer = nullptr;
    try {
        answer = run();
    } catch (...) {
        const auto taken = Clock::now() - begin;
        Tell(listener.get(), [&] {
            return Line(statement, taken, ", failed with " + std::to_string(CurrentError().Number()));
        });
        throw;
    }
    const auto taken = Clock::now() - begin;
    Tell(listener.get(), [&] {
        const std::int64_t rows = RowsOf(answer);
        return Line(statement, taken, rows < 0 ? std::string() : ", " + std::to_string(rows) + " rows");
    });
}

/// Tells what it is opened with and what a requery takes.
class TracedRecordset : public PassThroughRecordset {
  public:
    TracedRecordset(std::shared_ptr<Diagnosis> listener, std::unique_ptr<Recordset> rows)
        : PassThroughRecordset(std::move(rows)), listener_(std::move(listener)) {}

    std::unique_ptr<Recordset> Release() { return TakeRows(); }

    void Open(std::string_view source) override {
        source_ = source;
        Trace(listener_, source, [&] {
            Rows().Open(source);
            return &Rows();
        });
    }
    void Requery() override {
        Trace(listener_, source_, [&] {
            Rows().Requery();
            return &Rows();
        });
    }

  private:
    std::shared_ptr<Diagnosis> listener_;
    std::string source_;
};

}  // namespace

std::shared_ptr<Connection> TracedConnection::Target() const {
    auto connection = connection_.lock();
    if (!connection) throw ObjectNotSet();
    return connection;
}

std::unique_ptr<Recordset> TracedConnection::Execute(std::string_view statement) {
    const auto connection = Target();
    std::unique_ptr<Recordset> answer;
    Trace(listener_, statement, [&] {
        answer = connection->Execute(statement);
        return answer.get();
    });
    return answer;
}

std::unique_ptr<Recordset> TracedConnection::CreateRecordset() {
    return std::make_unique<TracedRecordset>(listener_, Target()->CreateRecordset());
}

std::unique_ptr<Recordset> TracedConnection::Adopt(std::unique_ptr<Recordset> recordset) {
    const auto connection = Target();
    if (auto* traced = dynamic_cast<TracedRecordset*>(recordset.get())) recordset = traced->Release();
    return std::make_unique<TracedRecordset>(listener_, connection->Adopt(std::move(recordset)));
}

}  // namespace tavrin::data
