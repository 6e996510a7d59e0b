#include "data/error.h"

#include <algorithm>
#include <iterator>
#include <new>

namespace tavrin::data {
namespace {

struct Description {
    std::int32_t number;
    std::string_view text;
};

// All that the component itself has to say of errors. What a provider or the platform says is passed on as it
// is.
constexpr Description Descriptions[] = {
    {error_number::InternalError, "Eroare interna"},  // the first: it serves for numbers that are not listed
    {error_number::Overflow, "Depasire: rezultatul este prea mare"},
    {error_number::OutOfMemory, "Memorie insuficienta"},
    {error_number::DivisionByZero, "Impartire la zero"},
    {error_number::TypeMismatch, "Tip de data nepotrivit"},
    {error_number::ObjectNotSet, "Lipseste conexiunea la baza de date sau obiectul necesar"},
    {error_number::InvalidUseOfNull, "Valoare lipsa (NULL) acolo unde este nevoie de una"},
    {error_number::InvalidFile, "Fisierul nu este o nota valida"},
    {error_number::MemberNotSupported, "Obiectul primit nu are membrul cerut"},
    {error_number::NoCurrentRecord, "Raspunsul bazei de date nu are inregistrarea ceruta"},
    {error_number::ItemNotFound, "Raspunsul bazei de date nu are campul cerut"},
    {error_number::ObjectClosed, "Baza de date nu a dat niciun raspuns"},
    {error_number::InvalidConnection,
     "Intre timp programul a trecut la alta baza de date. Nu s-a salvat nimic !"},
};

std::string_view TextOf(std::int32_t number) {
    const auto* const found = std::ranges::find(Descriptions, number, &Description::number);
    return found != std::end(Descriptions) ? found->text : Descriptions[0].text;
}

}  // namespace

Error RuntimeError(std::int32_t number, std::string_view detail) {
    std::string text(TextOf(number));
    if (!detail.empty()) text.append(": ").append(detail);
    return {number, text};
}

Error CurrentError() {
    try {
        throw;
    } catch (const Error& error) {
        return error;
    } catch (const std::bad_alloc&) {
        return RuntimeError(error_number::OutOfMemory);
    } catch (...) {
        return RuntimeError(error_number::InternalError);
    }
}

}  // namespace tavrin::data
