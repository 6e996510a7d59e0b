#pragma once

#include <memory>
#include <string>

#include "host/embedded/embedded_database.h"

namespace tavrin::host {

/// Creates the tables of an accounting host and fills them with invented data: three years of rates, three
/// companies, an address book. Always the same data, written wholly or not at all.
/// \pre database.IsBlank()
void CreateDemoData(EmbeddedDatabase& database);

/// Opens the file; a new one is filled with demo data. \throws data::Error
std::shared_ptr<EmbeddedDatabase> OpenDemoDatabase(const std::string& path,
                                                   CodePage codePage = CodePage::CentralEuropean);

}  // namespace tavrin::host
