#include "forms/model/keys.h"
#include "host/windows/catalogue.h"

namespace tavrin::host {

Utility DescribeAddressBook() {
    constexpr ButtonClick open{"Utilitati", "cmdAction(1)"};
    return {
        "src/addressbook",
        {{"Agenda",
          {{"AddressBook", "Agenda", {open}},
           {"AddressBookEntry", "Agenda", {open, {"Agenda", "cmdAction(2)"}}},
           {"AddressBookModify", "Agenda", {open, {"Agenda", "cmdAction(3)"}}}},
          {"Numele este obligatoriu !", "Prenumele este obligatoriu !", "Doriti sa parasiti forma?",
           "Doriti sa stergeti din agenda persoana ", "Nu poate fi stearsa aceasta inregistrare",
           "Eroare 94\n",                         // a person that another user has entered lacks a text
           "Eroare -2147217833 (80040E57)\n",     // a person's text is too long
           "Eroare -2147217873 (80040E2F)\n"}}},  // a person is entered who is there already
        {
            {"address-book", {{"EvolutieCurs", "cmdAction(0)"}, {"Utilitati", "cmdAction(1)"}}, {"Agenda"}},
            {"address-book-modify", {{"Agenda", "cmdAction(3)"}}, {"Agenda"}},
            {"address-book-entry", {{"Agenda", "cmdAction(1)"}, {"Agenda", "cmdAction(2)"}}, {"Agenda"}},
            {"address-book-compact",
             {{"Agenda", "cmdAction(1)"}, {"Agenda", "TextBoxes(0)", "NIMENI" + Key(forms::key::Enter)}},
             {"Agenda"}},
        }};
}

}  // namespace tavrin::host
