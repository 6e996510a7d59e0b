#include "host/embedded/dialect/provider_error.h"

namespace tavrin::host::dialect {
namespace {

std::string Quoted(std::string_view text) {
    return "'" + std::string(text) + "'";
}

data::Error InCommand(const std::string& description) {
    return {provider_error::ErrorsInCommand, description};
}

}  // namespace

data::Error IncorrectSyntax(std::string_view near) {
    return InCommand("Incorrect syntax near " + Quoted(near) + ".");
}

data::Error IncorrectSyntaxNearKeyword(std::string_view keyword) {
    return InCommand("Incorrect syntax near the keyword " + Quoted(keyword) + ".");
}

data::Error UnclosedQuote(std::string_view text) {
    return InCommand("Unclosed quotation mark after the character string " + Quoted(text) + ".");
}

data::Error MissingName() {
    return InCommand("An object or column name is missing or empty.");
}

data::Error NameTooLong(std::string_view name) {
    return InCommand("The identifier that starts with " + Quoted(name) +
                     " is too long. Maximum length is 128.");
}

data::Error NestedTooDeeply() {
    return InCommand(
        "Some part of your SQL statement is nested too deeply. Rewrite the query or break it up "
        "into smaller queries.");
}

data::Error UnknownTable(std::string_view name) {
    return {provider_error::NoTable, "Invalid object name " + Quoted(name) + "."};
}

data::Error UnknownColumn(std::string_view name) {
    return InCommand("Invalid column name " + Quoted(name) + ".");
}

data::Error UnboundName(std::string_view name) {
    return InCommand("The multi-part identifier \"" + std::string(name) + "\" could not be bound.");
}

data::Error UnknownType(std::string_view name) {
    return InCommand("Column, parameter, or variable #1: Cannot find data type " + std::string(name) + ".");
}

data::Error DuplicateColumn(std::string_view column, std::string_view table) {
    return InCommand("Column names in each table must be unique. Column name " + Quoted(column) +
                     " in table " + Quoted(table) + " is specified more than once.");
}

data::Error TableExists(std::string_view table) {
    return InCommand("There is already an object named " + Quoted(table) + " in the database.");
}

data::Error ColumnSetTwice(std::string_view column) {
    return InCommand("The column name " + Quoted(column) +
                     " is specified more than once in the SET clause or column list of an INSERT.");
}

data::Error ValueCountMismatch(bool fewerColumns) {
    const std::string fewer = fewerColumns ? "fewer" : "more";
    return InCommand(
        "There are " + fewer +
        " columns in the INSERT statement than values specified in the VALUES clause. The number "
        "of values in the VALUES clause must match the number of columns specified in the INSERT "
        "statement.");
}

data::Error TableValueCountMismatch() {
    return InCommand("Column name or number of supplied values does not match table definition.");
}

data::Error NotGrouped(std::string_view column) {
    return InCommand("Column " + Quoted(column) +
                     " is invalid in the select list because it is not contained in either an aggregate "
                     "function or the GROUP BY clause.");
}

data::Error OrderByNotSelected() {
    return InCommand("ORDER BY items must appear in the select list if SELECT DISTINCT is specified.");
}

data::Error OrderByOutOfRange(std::string_view position) {
    return InCommand("The ORDER BY position number " + std::string(position) +
                     " is out of range of the number of items in the select list.");
}

data::Error BadDate() {
    return {provider_error::CantConvertValue,
            "Conversion failed when converting date and/or time from character string."};
}

data::Error DateOutOfRange() {
    return {
        provider_error::CantConvertValue,
        "The conversion of a varchar data type to a datetime data type resulted in an out-of-range value."};
}

data::Error BadNumber(std::string_view text) {
    return {provider_error::CantConvertValue,
            "Conversion failed when converting the varchar value " + Quoted(text) + " to a number."};
}

data::Error NumberOutOfRange(std::string_view type) {
    return {provider_error::DataOverflow,
            "Arithmetic overflow error converting expression to data type " + std::string(type) + "."};
}

data::Error TextTruncated() {
    return {provider_error::DataOverflow, "String or binary data would be truncated."};
}

data::Error NullNotAllowed(std::string_view column, std::string_view table) {
    return {provider_error::IntegrityViolation, "Cannot insert the value NULL into column " + Quoted(column) +
                                                    ", table " + Quoted(table) +
                                                    "; column does not allow nulls."};
}

data::Error DuplicateKey(std::string_view table) {
    return {provider_error::IntegrityViolation,
            "Violation of PRIMARY KEY or UNIQUE constraint. Cannot insert duplicate key in object " +
                Quoted(table) + "."};
}

data::Error NoCommandText() {
    return {provider_error::NoCommandText, "Command text was not set for the command object."};
}

data::Error NotUnderstood(const std::string& what) {
    return {provider_error::NotImplemented, "The embedded database does not understand " + what + "."};
}

}  // namespace tavrin::host::dialect
