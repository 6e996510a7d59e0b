#pragma once

#include <array>
#include <cstddef>
#include <string>
#include <string_view>

namespace tavrin::addressbook {

// The statements on the address book's table, in one place. The host's database sees them exactly as they are
// built here, runs of blanks included. Values are trimmed, and nothing is escaped: an apostrophe that was
// pasted into a box makes a statement that the server refuses.

/// The table's columns, in the order of the list's fields. The first two are what tells persons apart.
inline constexpr std::array<std::string_view, 16> Columns = {
    "Nume",         "Prenume", "AdresaHome",     "OrasHome",    "JudetHome", "TelefonAcasa",
    "TelefonMobil", "Email",   "DescriereFirma", "AdresaFirma", "OrasFirma", "JudetFirma",
    "Telefon",      "Fax",     "Departament",    "Functie"};
inline constexpr std::size_t NumeColumn = 0;
inline constexpr std::size_t PrenumeColumn = 1;
inline constexpr std::size_t FirstDetailColumn = 2;

/// One person's texts, by column.
using Person = std::array<std::string, Columns.size()>;

/// Everybody whose names match, in the order of their names. Patterns are the server's own: see
/// SearchPattern.
std::string ListStatement(std::string_view numePattern, std::string_view prenumePattern);

std::string InsertStatement(const Person& person);
/// Changes the details of the person of that name; a name never changes.
std::string UpdateStatement(const Person& person);
std::string DeleteStatement(std::string_view nume, std::string_view prenume);

}  // namespace tavrin::addressbook
