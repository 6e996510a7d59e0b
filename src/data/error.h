#pragma once

#include <cstdint>
#include <stdexcept>
#include <string>
#include <string_view>

namespace tavrin::data {

/// An error with the number and the description that the provider, or the runtime, gave it.
class Error : public std::runtime_error {
  public:
    Error(std::int32_t number, const std::string& description)
        : std::runtime_error(description), number_(number) {}

    /// Provider errors are HRESULTs (negative); runtime errors are small positive numbers (13, 94, ...).
    std::int32_t Number() const { return number_; }
    std::string Description() const { return what(); }

  private:
    std::int32_t number_;
};

/// Numbers that the windows act upon or raise themselves; error.cpp has the words for the latter.
namespace error_number {
inline constexpr std::int32_t Overflow = 6;
inline constexpr std::int32_t OutOfMemory = 7;
inline constexpr std::int32_t DivisionByZero = 11;
inline constexpr std::int32_t TypeMismatch = 13;
inline constexpr std::int32_t InternalError = 51;
inline constexpr std::int32_t ObjectNotSet = 91;
inline constexpr std::int32_t InvalidUseOfNull = 94;
inline constexpr std::int32_t InvalidFile = 321;
inline constexpr std::int32_t MemberNotSupported = 438;
inline constexpr std::int32_t NoCurrentRecord = 3021;         ///< ADO: BOF or EOF where a row was due
inline constexpr std::int32_t ItemNotFound = 3265;            ///< ADO: no field of that name or ordinal
inline constexpr std::int32_t ObjectClosed = 3704;            ///< ADO: the operation needs an open object
inline constexpr std::int32_t ObjectOpen = 3705;              ///< ADO: the operation needs a closed object
inline constexpr std::int32_t InvalidConnection = 3709;       ///< ADO: not on this connection
inline constexpr std::int32_t ErrorsInCommand = -2147217900;  ///< 80040E14: the provider refuses the command
inline constexpr std::int32_t IntegrityViolation = -2147217873;  ///< 80040E2F: a constraint refuses the row
}  // namespace error_number

/// An error of the component's own, in its users' language. The description ends with the detail, a name in
/// most cases, where there is one.
Error RuntimeError(std::int32_t number, std::string_view detail = {});

/// Precedes the eight hexadecimal digits of a result that the system has no message for.
inline constexpr std::string_view NamelessResult = "Eroarea 0x";

/// Error 91: an object is used that is not set.
inline Error ObjectNotSet() {
    return RuntimeError(error_number::ObjectNotSet);
}

/// What users are told about the exception being handled: an Error as it is, any other as an error of the
/// component's own, since its text is meant for programmers. Call it in a catch block only.
Error CurrentError();

}  // namespace tavrin::data
