#include "doctor/core/error_words.h"

#include <string_view>

namespace tavrin::doctor {
namespace {

struct OwnError {
    std::int32_t number;
    const char* romanian;
    const char* english;
};

// What the component itself says of what is examined; in its windows it says so in Romanian alone.
constexpr OwnError OwnErrors[] = {
    {data::error_number::InternalError, "eroare internă", "internal error"},
    {data::error_number::Overflow, "depășire: rezultatul este prea mare",
     "overflow: the result is too large"},
    {data::error_number::TypeMismatch, "tip de dată nepotrivit", "data of the wrong type"},
    {data::error_number::ObjectNotSet, "lipsește conexiunea la baza de date sau obiectul necesar",
     "the connection to the database, or an object that is needed, is missing"},
    {data::error_number::InvalidUseOfNull, "valoare lipsă (NULL) acolo unde este nevoie de una",
     "no value (NULL) where one is needed"},
    {data::error_number::MemberNotSupported, "obiectul primit nu are membrul cerut",
     "the object lacks the member that is asked for"},
    {data::error_number::NoCurrentRecord, "răspunsul bazei de date nu are înregistrarea cerută",
     "the database's answer lacks the row that is asked for"},
    {data::error_number::ItemNotFound, "răspunsul bazei de date nu are câmpul cerut",
     "the database's answer lacks the column that is asked for"},
    {data::error_number::ObjectClosed, "baza de date nu a dat niciun răspuns", "the database gave no answer"},
};

/// The same text with other words in the place of those; as it was where they do not stand there.
std::string Replaced(std::string text, std::string_view words, std::string_view others) {
    const std::size_t at = text.find(words);
    return at == std::string::npos ? text : text.replace(at, words.size(), others);
}

}  // namespace

Text WordsOf(const data::Error& error) {
    const std::string said = error.Description();
    for (const OwnError& own : OwnErrors) {
        if (error.Number() != own.number) continue;
        // ADO has some of these numbers too, with words of its own.
        const std::string words = data::RuntimeError(own.number).Description();
        return {Replaced(said, words, own.romanian), Replaced(said, words, own.english)};
    }
    return {Replaced(said, data::NamelessResult, "eroarea 0x"),
            Replaced(said, data::NamelessResult, "error 0x")};
}

}  // namespace tavrin::doctor
