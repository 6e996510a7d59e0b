#include "host/embedded/embedded_recordset.h"

namespace tavrin::host {

data::TablePtr EmbeddedRecordset::Fetch(const std::string& source) {
    if (line_) line_->SendStatement(source);
    EmbeddedDatabase::Answer answer = database_->Run(source);
    if (line_) line_->ReceiveRows(answer.fields, answer.rows.get());
    fields_ = std::move(answer.fields);
    affectedRows_ = answer.affectedRows;
    return answer.rows;
}

}  // namespace tavrin::host
