#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "host/embedded/dialect/schema.h"

namespace tavrin::host {

/// A server's view INFORMATION_SCHEMA.COLUMNS of one database, as far as it is needed: made from what the
/// engine says of its tables at the moment of the question.
struct InformationSchemaColumns {
    dialect::TableSchema table;
    std::string definition;  ///< the engine's statement that makes the view, where it is not there yet
};

/// Nothing where the stored name is not that of such a view.
std::optional<InformationSchemaColumns> FindInformationSchema(std::string_view storedName);

}  // namespace tavrin::host
