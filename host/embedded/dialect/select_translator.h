#pragma once

#include "host/embedded/dialect/translator.h"

namespace tavrin::host::dialect {

Translation TranslateSelect(const SelectStatement& select, const Schema& schema);

}  // namespace tavrin::host::dialect
