#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "addressbook/addressbook_statements.h"
#include "data/value.h"

namespace tavrin::doctor {

/// What the statements are about. None of what is written may be in the database already.
struct StatementSample {
    std::int32_t company = 1;
    std::vector<std::string> currencies = {"EUR", "$"};  ///< columns of the rate table, at least one
    std::string newCurrency = "XTS";
    data::OleDate day;
    addressbook::Person person;
};

/// A day and a person that nobody enters.
StatementSample UnlikelySample();

/// What a window sends for one thing that its user does, in order: a later one may need what an earlier did.
struct StatementGroup {
    const char* window;
    std::vector<std::string> statements;
};

/// Every statement of every window, as the component's own functions build them.
std::vector<StatementGroup> WindowStatements(const StatementSample& sample);

}  // namespace tavrin::doctor
