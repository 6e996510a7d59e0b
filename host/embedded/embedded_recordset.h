#pragma once

#include <memory>
#include <vector>

#include "data/snapshot_recordset.h"
#include "host/embedded/embedded_database.h"
#include "host/embedded/line.h"

namespace tavrin::host {

/// A static snapshot of one query's rows, with what the server says of each field.
class EmbeddedRecordset : public data::SnapshotRecordset {
  public:
    /// \param line what statements and rows pass over; null where the database is at hand
    explicit EmbeddedRecordset(std::shared_ptr<EmbeddedDatabase> database,
                               std::shared_ptr<Line> line = nullptr)
        : database_(std::move(database)), line_(std::move(line)) {}

    /// Of the statement that ran last; empty after a write.
    const std::vector<FieldInfo>& Fields() const { return fields_; }

    /// How many rows the statement wrote.
    std::int64_t AffectedRows() const override { return affectedRows_; }

  protected:
    data::TablePtr Fetch(const std::string& source) override;

  private:
    std::shared_ptr<EmbeddedDatabase> database_;
    std::shared_ptr<Line> line_;
    std::vector<FieldInfo> fields_;
    std::int64_t affectedRows_ = 0;
};

}  // namespace tavrin::host
