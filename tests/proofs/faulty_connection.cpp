#include "proofs/faulty_connection.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <optional>
#include <string>
#include <utility>

#include "data/error.h"

namespace tavrin::tests {
namespace {

data::Value Spoiled(data::Value value, std::optional<FaultKind> fault) {
    if (!fault) return value;
    switch (*fault) {
        case FaultKind::NullValue:
            return data::Null{};
        case FaultKind::EmptyValue:
            return {};
        case FaultKind::OtherType:
            return value.IsText() ? data::Value(std::int64_t{-7}) : data::Value(std::string("neither"));
        case FaultKind::BigNumber:
            return std::int64_t{3'000'000'000};
        case FaultKind::HugeNumber:
            return 1e300;
        default:
            return value;
    }
}

/// The rows as they came, or as a fault left them.
class FaultyTable : public data::Table {
  public:
    FaultyTable(data::TablePtr rows, std::optional<FaultKind> fault)
        : rows_(std::move(rows)), fault_(fault) {}

    std::size_t RowCount() const override {
        return fault_ == FaultKind::FewerRows ? rows_->RowCount() / 2 : rows_->RowCount();
    }
    std::size_t FieldCount() const override {
        return fault_ == FaultKind::FewerFields ? std::min<std::size_t>(1, rows_->FieldCount())
                                                : rows_->FieldCount();
    }
    const std::string& FieldName(std::size_t field) const override {
        Demand(field < FieldCount());
        return rows_->FieldName(field);
    }
    data::Value At(std::size_t row, std::size_t field) const override {
        Demand(row < RowCount() && field < FieldCount());
        return Spoiled(rows_->At(row, field), fault_);
    }

  private:
    static void Demand(bool present) {
        if (present) return;
        std::fputs("A cell was read that the table does not have.\n", stderr);
        std::abort();
    }

    data::TablePtr rows_;
    std::optional<FaultKind> fault_;
};

/// A fault that struck the opening stays with the rows until they are opened again.
class FaultyRecordset : public data::Recordset {
  public:
    FaultyRecordset(std::unique_ptr<data::Recordset> rows, std::shared_ptr<FaultPlan> plan,
                    std::optional<FaultKind> fault)
        : rows_(std::move(rows)), plan_(std::move(plan)), fault_(fault) {
        ++plan_->recordsets;
        if (fault_ == FaultKind::NoResult && rows_->IsOpen()) rows_->Close();
    }
    ~FaultyRecordset() override { --plan_->recordsets; }

    void Open(std::string_view source) override {
        source_ = source;
        fault_ = plan_->MeetStatement(Touch::Open, source_);
        rows_->Open(source);
        if (fault_ == FaultKind::NoResult && rows_->IsOpen()) rows_->Close();
    }
    bool IsOpen() const override { return rows_->IsOpen(); }
    void Close() override {
        plan_->Meet(Touch::Close);
        rows_->Close();
    }
    void Requery() override {
        // As with a provider, a requery that fails leaves the recordset closed.
        try {
            fault_ = plan_->MeetStatement(Touch::Requery, source_);
        } catch (...) {
            if (rows_->IsOpen()) rows_->Close();
            throw;
        }
        rows_->Requery();
        if (fault_ == FaultKind::NoResult && rows_->IsOpen()) rows_->Close();
    }

    bool AtBeginning() const override {
        plan_->Meet(Touch::Position);
        return rows_->AtBeginning();
    }
    bool AtEnd() const override {
        plan_->Meet(Touch::Position);
        return rows_->AtEnd();
    }
    void MoveFirst() override {
        DemandRow(plan_->Meet(Touch::Move));
        rows_->MoveFirst();
    }
    void MoveNext() override {
        DemandRow(plan_->Meet(Touch::Move));
        rows_->MoveNext();
    }
    void Move(std::int64_t rows) override {
        DemandRow(plan_->Meet(Touch::Move));
        rows_->Move(rows);
    }
    std::int64_t RecordCount() const override {
        const auto fault = Either(plan_->Meet(Touch::Count));
        constexpr std::int64_t unknown = -1;
        if (fault == FaultKind::UnknownCount) return unknown;
        return rows_->RecordCount();
    }

    std::size_t FieldCount() const override {
        const auto fault = Either(plan_->Meet(Touch::Shape));
        const std::size_t count = rows_->FieldCount();
        return fault == FaultKind::FewerFields ? std::min<std::size_t>(1, count) : count;
    }
    std::string FieldName(std::size_t field) const override {
        plan_->Meet(Touch::Shape);
        return rows_->FieldName(field);
    }
    data::Value Field(std::size_t field) const override {
        const auto fault = MeetField(field > 0);
        return Spoiled(rows_->Field(field), fault);
    }
    data::Value Field(std::string_view name) const override {
        const auto fault = MeetField(true);
        return Spoiled(rows_->Field(name), fault);
    }

    data::TablePtr ReadAll() override {
        const auto fault = Either(plan_->Meet(Touch::ReadAll));
        if (fault == FaultKind::NoResult) ThrowFault(FaultKind::NoResult);
        return std::make_shared<FaultyTable>(rows_->ReadAll(), fault);
    }

  private:
    std::optional<FaultKind> Either(std::optional<FaultKind> now) const { return now ? now : fault_; }

    static void DemandRow(std::optional<FaultKind> fault) {
        if (fault == FaultKind::FewerRows)
            throw data::Error(data::error_number::NoCurrentRecord, "The current record has been deleted.");
    }

    std::optional<FaultKind> MeetField(bool beyondFirst) const {
        const auto now = plan_->Meet(Touch::Field);
        DemandRow(now);
        const auto fault = Either(now);
        if (fault == FaultKind::FewerFields && beyondFirst)
            throw data::Error(data::error_number::ItemNotFound, "Item cannot be found in the collection.");
        return fault;
    }

    std::unique_ptr<data::Recordset> rows_;
    std::shared_ptr<FaultPlan> plan_;
    std::optional<FaultKind> fault_;
    std::string source_;
};

}  // namespace

FaultyConnection::FaultyConnection(std::shared_ptr<data::Connection> underlying,
                                   std::shared_ptr<FaultPlan> plan)
    : underlying_(std::move(underlying)), plan_(std::move(plan)) {}

std::unique_ptr<data::Recordset> FaultyConnection::Execute(std::string_view statement) {
    const auto fault = plan_->MeetStatement(Touch::Execute, std::string(statement));
    return std::make_unique<FaultyRecordset>(underlying_->Execute(statement), plan_, fault);
}

std::unique_ptr<data::Recordset> FaultyConnection::CreateRecordset() {
    plan_->Meet(Touch::Create);
    return std::make_unique<FaultyRecordset>(underlying_->CreateRecordset(), plan_, std::nullopt);
}

}  // namespace tavrin::tests
