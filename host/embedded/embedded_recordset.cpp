#include "host/embedded/embedded_recordset.h"

namespace tavrin::host {

data::TablePtr EmbeddedRecordset::Fetch(const std::string& source) {
    EmbeddedDatabase::Answer answer = database_->Run(source);
    fields_ = std::move(answer.fields);
    affectedRows_ = answer.affectedRows;
    return answer.rows;
}

}  // namespace tavrin::host
