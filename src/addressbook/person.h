#pragma once

#include <array>
#include <cstddef>
#include <string>
#include <string_view>

namespace tavrin::addressbook {

/// The table's columns, in the order of the list's fields. The first two identify a person.
inline constexpr std::array<std::string_view, 16> Columns = {
    "Nume",         "Prenume", "AdresaHome",     "OrasHome",    "JudetHome", "TelefonAcasa",
    "TelefonMobil", "Email",   "DescriereFirma", "AdresaFirma", "OrasFirma", "JudetFirma",
    "Telefon",      "Fax",     "Departament",    "Functie"};
inline constexpr std::size_t NumeColumn = 0;
inline constexpr std::size_t PrenumeColumn = 1;
inline constexpr std::size_t FirstDetailColumn = 2;

/// One person's texts, by column.
using Person = std::array<std::string, Columns.size()>;

}  // namespace tavrin::addressbook
