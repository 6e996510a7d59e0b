#include "data/traced_connection.h"

#include <chrono>
#include <functional>
#include <string>
#include <utility>

#include "data/error.h"
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

/// Tells what it is opened with and what a requery takes; all else passes through.
class TracedRecordset : public Recordset {
  public:
    TracedRecordset(std::shared_ptr<Diagnosis> listener, std::unique_ptr<Recordset> rows)
        : listener_(std::move(listener)), rows_(std::move(rows)) {}

    std::unique_ptr<Recordset> Release() { return std::move(rows_); }

    void Open(std::string_view source) override {
        source_ = source;
        Trace(listener_, source, [&] {
            rows_->Open(source);
            return rows_.get();
        });
    }
    void Requery() override {
        Trace(listener_, source_, [&] {
            rows_->Requery();
            return rows_.get();
        });
    }

    bool IsOpen() const override { return rows_->IsOpen(); }
    void Close() override { rows_->Close(); }
    bool AtBeginning() const override { return rows_->AtBeginning(); }
    bool AtEnd() const override { return rows_->AtEnd(); }
    void MoveFirst() override { rows_->MoveFirst(); }
    void MoveNext() override { rows_->MoveNext(); }
    void Move(std::int64_t rows) override { rows_->Move(rows); }
    std::int64_t RecordCount() const override { return rows_->RecordCount(); }
    std::int64_t AffectedRows() const override { return rows_->AffectedRows(); }
    std::size_t FieldCount() const override { return rows_->FieldCount(); }
    std::string FieldName(std::size_t field) const override { return rows_->FieldName(field); }
    Value Field(std::size_t field) const override { return rows_->Field(field); }
    Value Field(std::string_view name) const override { return rows_->Field(name); }
    TablePtr ReadAll() override { return rows_->ReadAll(); }

  private:
    std::shared_ptr<Diagnosis> listener_;
    std::unique_ptr<Recordset> rows_;
    std::string source_;
};

}  // namespace

std::shared_ptr<Connection> TracedConnection::Followed() const {
    auto connection = connection_.lock();
    if (!connection) throw ObjectNotSet();
    return connection;
}

std::unique_ptr<Recordset> TracedConnection::Execute(std::string_view statement) {
    const auto connection = Followed();
    std::unique_ptr<Recordset> answer;
    Trace(listener_, statement, [&] {
        answer = connection->Execute(statement);
        return answer.get();
    });
    return answer;
}

std::unique_ptr<Recordset> TracedConnection::CreateRecordset() {
    return std::make_unique<TracedRecordset>(listener_, Followed()->CreateRecordset());
}

std::unique_ptr<Recordset> TracedConnection::Adopt(std::unique_ptr<Recordset> recordset) {
    const auto connection = Followed();
    if (auto* traced = dynamic_cast<TracedRecordset*>(recordset.get())) recordset = traced->Release();
    return std::make_unique<TracedRecordset>(listener_, connection->Adopt(std::move(recordset)));
}

}  // namespace tavrin::data
