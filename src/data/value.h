#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <variant>

#include "data/text/date.h"

namespace tavrin::data {

/// A field that was never given a value.
struct Empty {
    bool operator==(const Empty&) const = default;
};

/// The database's NULL.
struct Null {
    bool operator==(const Null&) const = default;
};

/// One field of one row. Text is UTF-8.
class Value {
  public:
    Value() = default;
    Value(Null null) : content_(null) {}                    // NOLINT(google-explicit-constructor)
    Value(std::int64_t number) : content_(number) {}        // NOLINT(google-explicit-constructor)
    Value(double number) : content_(number) {}              // NOLINT(google-explicit-constructor)
    Value(OleDate date) : content_(date) {}                 // NOLINT(google-explicit-constructor)
    Value(std::string text) : content_(std::move(text)) {}  // NOLINT(google-explicit-constructor)

    bool IsEmpty() const { return std::holds_alternative<Empty>(content_); }
    bool IsNull() const { return std::holds_alternative<Null>(content_); }
    bool IsText() const { return std::holds_alternative<std::string>(content_); }
    bool IsDate() const { return std::holds_alternative<OleDate>(content_); }

    /// The value as a number: integers, doubles, dates (their day count) and numeric text with "."
    /// \throws Error 94 (invalid use of NULL) for NULL, 13 (type mismatch) for text that is no number.
    double ToDouble() const;

    /// \throws Error as ToDouble, and 6 (overflow) outside 64 bits. Rounds half to even.
    std::int64_t ToInteger() const;

    /// \throws Error 94 for NULL, 13 for text that is no "yyyy-mm-dd" or "dd/mm/yyyy" date.
    OleDate ToDate() const;

    /// The form in which grids show a value: doubles as NumberText writes them whatever the locale,
    /// integers with all their digits, dates as "dd/mm/yyyy" (with " hh:mm:ss" where they carry a time),
    /// nothing for empty and NULL.
    std::string ToText() const;

    const std::variant<Empty, Null, std::int64_t, double, OleDate, std::string>& Content() const {
        return content_;
    }

    bool operator==(const Value&) const = default;

  private:
    std::variant<Empty, Null, std::int64_t, double, OleDate, std::string> content_;
};

}  // namespace tavrin::data
