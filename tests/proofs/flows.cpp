#include "proofs/flows.h"

#include <string_view>
#include <vector>

#include "forms/controls/grid.h"
#include "rates/curs_valutar.h"
#include "support/fake_rich_text.h"

namespace tavrin::tests {
namespace {

namespace key = forms::key;
using Session = UserSession;

constexpr const char* Palette = "Utilitati";
constexpr const char* List = "CursValutar";
constexpr const char* Entry = "CursValutarDetaliu";
constexpr const char* Currency = "CereMoneda";
constexpr const char* Evolution = "EvolutieCurs";
constexpr const char* Chooser = "AlegeMoneda";
constexpr const char* Calculator = "frmCalculator";
constexpr const char* Book = "Agenda";
constexpr const char* Note = "Notes";

void NoPreparation(Session& /*user*/) {}

void OpenBook(Session& user) {
    user.Click(Palette, "cmdAction(1)");
}
void OpenCalculator(Session& user) {
    user.Click(Palette, "cmdAction(2)");
}
void OpenList(Session& user) {
    user.Click(Palette, "cmdAction(3)");
}
void OpenNote(Session& user) {
    user.Click(Palette, "cmdAction(0)");
}
void OpenAll(Session& user) {
    OpenNote(user);
    OpenBook(user);
    OpenCalculator(user);
    OpenList(user);
}

/// The row of the rate list that shows a day, made the current one by the keyboard.
void SelectRow(Session& user, int row) {
    user.Click(List, "Grid");
    user.Press(key::Home);
    user.Press(key::Up, 10);
    user.Press(key::Down, row - 1);
}
constexpr int FrozenRow = 1;
constexpr int FreeRow = 4;

void OpenEntry(Session& user) {
    OpenList(user);
    user.Click(List, "cmdAction(0)");
}
void OpenCurrency(Session& user) {
    OpenList(user);
    user.Click(List, "cmdAction(3)");
}
void OpenEvolution(Session& user) {
    OpenList(user);
    user.Click(List, "cmdAction(5)");
}
void OpenChooser(Session& user) {
    OpenCalculator(user);
    user.Click(Calculator, "cmdVal");
}
void OpenEmptyBook(Session& user) {
    user.EmptyAgenda();
    OpenBook(user);
}

void TypeRates(Session& user) {
    user.Press(key::Enter);  // in the day's field: on to the first rate
    user.Type("38000\r33000\r5\r");
}

void AddDay(Session& user, data::CalendarDay day) {
    user.ChooseDay(Entry, "DataCurs", day);
    TypeRates(user);
    user.Click(Entry, "cmdAction(0)");
}

void TypeName(Session& user, const char* nume, const char* prenume) {
    user.Click(Book, "TextBoxes(2)");
    user.Type(nume);
    user.Press(key::Enter);
    user.Type(prenume);
}

void AddPerson(Session& user, const char* nume, const char* prenume) {
    user.Click(Book, "cmdAction(2)");
    TypeName(user, nume, prenume);
    user.Click(Book, "cmdAction(0)");
}

void Search(Session& user, const char* nume) {
    user.Click(Book, "TextBoxes(0)");
    user.Type(nume);
    user.Press(key::Enter);
}

std::vector<Flow> PaletteFlows() {
    return {
        {"palette: called once more", NoPreparation, [](Session& user) { user.Apel(); }},
        {"palette: called once more over all windows", OpenAll, [](Session& user) { user.Apel(); }},
        {"palette: opens all windows by mouse", NoPreparation, OpenAll},
        {"palette: opens windows by keyboard", NoPreparation,
         [](Session& user) {
             for (int i = 0; i < 4; ++i) {
                 user.Activate(Palette);
                 user.Press(key::Down, i);
                 user.Press(key::Enter);
             }
         }},
        {"palette: opens what is open", OpenAll, OpenAll},
        {"palette: rolls up and down", NoPreparation,
         [](Session& user) {
             user.Click(Palette, "imgRollup(0)");
             user.Click(Palette, "imgRollup(1)");
         }},
        {"palette: closed over all windows", OpenAll, [](Session& user) { user.Click(Palette, "imgClose"); }},
        {"palette: left with Escape over all windows", OpenAll,
         [](Session& user) {
             user.Activate(Palette);
             user.Press(key::Escape);
         }},
        {"palette: closed over windows in windows",
         [](Session& user) {
             OpenEntry(user);
             OpenChooser(user);
         },
         [](Session& user) { user.Click(Palette, "imgClose"); }},
        {"palette: the host has no connection", [](Session& user) { user.host.connected = false; },
         [](Session& user) {
             user.Apel();
             OpenAll(user);
             user.Click(List, "cmdAction(0)");
             user.Click(Calculator, "cmdVal");
         }},
    };
}

std::vector<Flow> ListFlows() {
    return {
        {"list: opens", NoPreparation, OpenList},
        {"list: filters", OpenList,
         [](Session& user) {
             user.ChooseDay(List, "dpDataIn", {2003, 4, 1});
             user.Press(key::Enter);
             user.Press(key::Enter);
             user.Press(key::Enter);
         }},
        {"list: filters to nothing and back", OpenList,
         [](Session& user) {
             user.ChooseDay(List, "dpDataFin", {2003, 1, 2});
             user.Click(List, "cmdRefresh");
             user.ChooseDay(List, "dpDataFin", {2003, 5, 31});
             user.Click(List, "cmdRefresh");
         }},
        {"list: deletes a day", OpenList,
         [](Session& user) {
             SelectRow(user, FreeRow);
             user.answers = {true};
             user.Click(List, "cmdAction(2)");
         }},
        {"list: thinks better of deleting", OpenList,
         [](Session& user) {
             SelectRow(user, FreeRow);
             user.Click(List, "cmdAction(2)");
         }},
        {"list: may not delete a frozen day", OpenList,
         [](Session& user) {
             SelectRow(user, FrozenRow);
             user.Click(List, "cmdAction(2)");
         }},
        {"list: may not change a frozen day", OpenList,
         [](Session& user) {
             SelectRow(user, FrozenRow);
             user.Click(List, "cmdAction(1)");
         }},
        {"list: another company has no frozen day", [](Session& user) { user.host.companyId = 8; },
         [](Session& user) {
             user.Apel();
             OpenList(user);
             SelectRow(user, FrozenRow);
             user.answers = {true};
             user.Click(List, "cmdAction(2)");
         }},
        {"list: a company that nobody knows", [](Session& user) { user.host.companyId = 99; },
         [](Session& user) {
             user.Apel();
             OpenList(user);
             user.Click(List, "cmdAction(1)");
             user.Click(List, "cmdAction(2)");
         }},
        {"list: left with Escape", OpenList,
         [](Session& user) {
             user.Activate(List);
             user.Press(key::Escape);
         }},
    };
}

std::vector<Flow> EntryFlows() {
    return {
        {"entry: adds a day", OpenList,
         [](Session& user) {
             user.Click(List, "cmdAction(0)");
             AddDay(user, {2003, 5, 16});
         }},
        {"entry: adds another day by mouse", OpenEntry,
         [](Session& user) {
             user.ChooseDay(Entry, "DataCurs", {2003, 5, 16});
             user.Click(Entry, "Grid");
             user.Type("41000");
             user.Click(Entry, "cmdAction(0)");
         }},
        {"entry: the day exists", OpenEntry,
         [](Session& user) {
             AddDay(user, {2003, 5, 14});
         }},
        {"entry: the day is frozen", OpenEntry,
         [](Session& user) {
             AddDay(user, {2003, 5, 2});
         }},
        {"entry: a rate is missing, then negative", OpenEntry,
         [](Session& user) {
             user.Click(Entry, "Grid");
             user.Paste(" ");
             user.Press(key::Enter);
             user.Paste("-5");
             user.Click(Entry, "cmdAction(0)");
             user.Paste("5");
             user.Press(key::Enter);
         }},
        {"entry: modifies a day", OpenList,
         [](Session& user) {
             SelectRow(user, FreeRow);
             user.Click(List, "cmdAction(1)");
             user.Click(Entry, "Grid");
             user.Type("39000\r");
             user.Click(Entry, "cmdAction(0)");
         }},
        {"entry: cancelled", OpenEntry,
         [](Session& user) {
             user.Activate(Entry);
             user.Press(key::Escape);
         }},
        {"entry: the list is gone when it saves", OpenEntry,
         [](Session& user) {
             if (forms::Form* list = user.Window(List)) list->HandleClose();
             AddDay(user, {2003, 5, 16});
         }},
    };
}

std::vector<Flow> CurrencyFlows() {
    return {
        {"currency: added", OpenList,
         [](Session& user) {
             user.Click(List, "cmdAction(3)");
             user.Type("GBP\r");
             user.Press(key::Enter);
         }},
        {"currency: exists", OpenCurrency,
         [](Session& user) {
             user.Click(Currency, "txtMoneda");
             user.Type("EUR\r");
             user.Press(key::Enter);
         }},
        {"currency: a name with a bracket", OpenCurrency,
         [](Session& user) {
             user.Click(Currency, "txtMoneda");
             user.Type("A]B");
             user.Click(Currency, "cmdAction(0)");
         }},
        {"currency: no name", OpenCurrency,
         [](Session& user) {
             user.Click(Currency, "cmdAction(0)");
             user.Press(key::Escape);
         }},
        {"currency: cancelled", OpenCurrency, [](Session& user) { user.Click(Currency, "cmdAction(1)"); }},
        {"currency: removal", OpenList,
         [](Session& user) {
             auto* list = user.application.Loaded<rates::CursValutar>();
             if (list != nullptr && list->Enabled())
                 user.desktop.Guard([&] { list->cmdAction_Click(rates::CursValutar::RemoveCurrency); });
             user.Choose(Currency, "cmbMoneda", 1);
             user.Click(Currency, "cmdAction(0)");
         }},
    };
}

std::vector<Flow> EvolutionFlows() {
    return {
        {"evolution: opens and closes", OpenList,
         [](Session& user) {
             user.Click(List, "cmdAction(5)");
             user.Click(Evolution, "cmdAction(0)");
             OpenList(user);
         }},
        {"evolution: a month", OpenEvolution,
         [](Session& user) {
             user.Choose(Evolution, "cmbLuna", 4);
             user.Click(Evolution, "cmdAction(1)");
         }},
        {"evolution: a month whose first currency has a gap", OpenEvolution,
         [](Session& user) {
             user.Choose(Evolution, "cmbLuna", 4);
             user.Choose(Evolution, "cmbMoneda", 1);
             user.Click(Evolution, "cmdAction(1)");
         }},
        {"evolution: a year, then a month without rates", OpenEvolution,
         [](Session& user) {
             user.Choose(Evolution, "cmbLuna", 12);
             user.Click(Evolution, "cmdAction(1)");
             user.Choose(Evolution, "cmbLuna", 10);
             user.Click(Evolution, "cmdAction(1)");
             user.Activate(Evolution);
             user.Press(key::Escape);
         }},
        {"evolution: no rates at all", [](Session& user) { user.Run("DELETE FROM [Curs Valutar]"); },
         [](Session& user) {
             OpenEvolution(user);
             user.Click(Evolution, "cmdAction(1)");
         }},
    };
}

std::vector<Flow> ChooserFlows() {
    return {
        {"chooser: takes the newest rate", OpenCalculator,
         [](Session& user) {
             user.Type("12");
             user.Click(Calculator, "cmdVal");
             user.Press(key::Enter);
             user.Type("+3=");
         }},
        {"chooser: takes an older rate of another currency", OpenChooser,
         [](Session& user) {
             user.Choose(Chooser, "cmbMoneda", 0);
             user.Click(Chooser, "Grid");
             user.Press(key::Down, 2);
             user.DoubleClick(Chooser, "Grid");
         }},
        {"chooser: a currency that nobody knows", OpenChooser,
         [](Session& user) {
             user.Click(Chooser, "cmbMoneda");
             user.Type("X");
             user.Click(Chooser, "cmdAction(0)");
             user.Click(Chooser, "cmdAction(1)");
         }},
        {"chooser: no rates at all", [](Session& user) { user.Run("DELETE FROM [Curs Valutar]"); },
         [](Session& user) {
             OpenChooser(user);
             user.Click(Chooser, "cmdAction(0)");
             user.Press(key::Escape);
         }},
        {"chooser: left for the palette and come back to", OpenChooser,
         [](Session& user) {
             user.Activate(Palette);
             user.Activate(Chooser);
             user.Click(Chooser, "cmdAction(0)");
         }},
        {"chooser: left with Escape", OpenChooser,
         [](Session& user) {
             user.Activate(Chooser);
             user.Press(key::Escape);
         }},
        {"chooser: the calculator goes first", OpenChooser,
         [](Session& user) {
             if (forms::Form* window = user.Window(Calculator)) window->HandleClose();
             user.Click(Chooser, "cmdAction(0)");
         }},
    };
}

std::vector<Flow> CalculatorFlows() {
    return {
        {"calculator: a sum by keyboard", NoPreparation,
         [](Session& user) {
             OpenCalculator(user);
             user.Type("12.5+7.25\r*3=");
         }},
        {"calculator: memory and percent by mouse", OpenCalculator,
         [](Session& user) {
             for (const char* key : {"Number(7)", "cmdMPlus", "Operator(0)", "cmdMR", "Operator(5)",
                                     "cmdMMinus", "cmdMC", "Cancel", "CancelEntry"})
                 user.Click(Calculator, key);
         }},
        {"calculator: a division by zero", OpenCalculator,
         [](Session& user) {
             user.Type("8/0=");
             user.Type("5+5=");
         }},
        {"calculator: precision and unit", OpenChooser,
         [](Session& user) {
             user.Click(Chooser, "cmdAction(0)");
             user.Choose(Calculator, "cmbPrecizie", 3);
             user.Choose(Calculator, "cmbUM", 1);
             user.Click(Calculator, "Number(3)");
             user.Choose(Calculator, "cmbUM", 0);
         }},
        {"calculator: closed and opened again", OpenCalculator,
         [](Session& user) {
             user.Click(Calculator, "cmdUnload");
             OpenCalculator(user);
             user.Press(key::Escape);
         }},
    };
}

std::vector<Flow> BookFlows() {
    return {
        {"book: opens and browses", NoPreparation,
         [](Session& user) {
             OpenBook(user);
             user.Press(key::Down, 4);
             user.Press(key::PageUp);
             user.Press(key::Up);
         }},
        {"book: a click on a row", OpenBook,
         [](Session& user) {
             user.Click(Book, "Grid");
             user.Press(key::Enter);
         }},
        {"book: the first person of all", OpenEmptyBook,
         [](Session& user) {
             TypeName(user, "Dima", "Ion");
             user.Click(Book, "cmdAction(0)");
         }},
        {"book: opens empty and is left", [](Session& user) { user.EmptyAgenda(); },
         [](Session& user) {
             OpenBook(user);
             user.Press(key::Escape);
         }},
        {"book: a search", OpenBook, [](Session& user) { Search(user, "I"); }},
        {"book: a search that finds nobody, then a person", OpenBook,
         [](Session& user) {
             Search(user, "Z");
             TypeName(user, "Zaharia", "Ion");
             user.Click(Book, "cmdAction(0)");
         }},
        {"book: adds a person", OpenBook, [](Session& user) { AddPerson(user, "Dima", "Ion"); }},
        {"book: a person without names", OpenBook,
         [](Session& user) {
             user.Click(Book, "cmdAction(2)");
             user.Click(Book, "cmdAction(0)");
             user.Type("Dima");
             user.Click(Book, "cmdAction(0)");
             user.Press(key::Escape);
         }},
        {"book: a person who is there", OpenBook, [](Session& user) { AddPerson(user, "Popa", "Ana"); }},
        {"book: an apostrophe", OpenBook,
         [](Session& user) {
             user.Click(Book, "cmdAction(2)");
             user.Paste("D'Artagnan");
             user.Press(key::Enter);
             user.Type("Ion");
             user.Click(Book, "cmdAction(0)");
             user.Press(key::Escape);
         }},
        {"book: modifies a person", OpenBook,
         [](Session& user) {
             user.Press(key::Down);
             user.Click(Book, "cmdAction(3)");
             user.Type("Strada Mare");
             user.Click(Book, "cmdAction(0)");
         }},
        {"book: gives up a change", OpenBook,
         [](Session& user) {
             user.Click(Book, "cmdAction(3)");
             user.Type("Strada Mare");
             user.Click(Book, "cmdAction(1)");
         }},
        {"book: deletes a person", OpenBook,
         [](Session& user) {
             user.answers = {true};
             user.Click(Book, "cmdAction(4)");
         }},
        {"book: deletes the last person",
         [](Session& user) {
             user.Run("DELETE FROM Agenda WHERE Nume <> 'Albu'");
             OpenBook(user);
         },
         [](Session& user) {
             user.answers = {true};
             user.Click(Book, "cmdAction(4)");
         }},
        {"book: thinks better of deleting", OpenBook,
         [](Session& user) { user.Click(Book, "cmdAction(4)"); }},
        {"book: somebody else has emptied it", OpenBook,
         [](Session& user) {
             user.EmptyAgenda();
             user.Click(Book, "cmdAction(3)");
             user.Click(Book, "cmdAction(0)");
         }},
        {"book: left with Escape", OpenBook,
         [](Session& user) {
             user.answers = {true};
             user.Activate(Book);
             user.Press(key::Escape);
         }},
    };
}

FakeRichText* EditorOf(Session& user) {
    const forms::Control* box = user.Find(Note, "txtNota");
    return box != nullptr ? dynamic_cast<FakeRichText*>(box->Peer()) : nullptr;
}

void WriteNote(Session& user) {
    OpenNote(user);
    user.Type("De sunat la banca");
    if (FakeRichText* editor = EditorOf(user)) editor->Select(3, 5);
}

/// A note that was saved before, and another text in the window.
void KeepNote(Session& user) {
    user.ChooseFile("nota.rtf");
    WriteNote(user);
    user.Click(Note, "ImgBouton(1)");
    user.Type(", poimaine");
}

std::vector<Flow> NoteFlows() {
    return {
        {"note: written and left with Escape", NoPreparation,
         [](Session& user) {
             WriteNote(user);
             user.Press(key::Escape);
         }},
        {"note: bold, italic, underlined by mouse", WriteNote,
         [](Session& user) {
             for (const char* button : {"ImgBouton(4)", "ImgBouton(5)", "ImgBouton(6)", "ImgBouton(4)"})
                 user.Click(Note, button);
         }},
        {"note: bold, italic, underlined by keyboard", WriteNote,
         [](Session& user) {
             for (const char letter : std::string_view("BIUI"))
                 user.keyboard.Press(static_cast<unsigned char>(letter), {.control = true});
         }},
        {"note: a new one", WriteNote,
         [](Session& user) {
             user.answers = {true};
             user.Click(Note, "ImgBouton(0)");
             user.Type("Alta");
         }},
        {"note: saved",
         [](Session& user) {
             WriteNote(user);
             user.ChooseFile("nota.rtf");
         },
         [](Session& user) { user.Click(Note, "ImgBouton(1)"); }},
        {"note: saved over another", KeepNote,
         [](Session& user) { user.keyboard.Press('S', {.control = true}); }},
        {"note: not saved after all", WriteNote, [](Session& user) { user.Click(Note, "ImgBouton(1)"); }},
        {"note: the disk is full",
         [](Session& user) {
             KeepNote(user);
             user.desktop.files.failsToWrite = true;
         },
         [](Session& user) { user.Click(Note, "ImgBouton(1)"); }},
        {"note: opened", KeepNote, [](Session& user) { user.Click(Note, "ImgBouton(0)"); }},
        {"note: not opened after all", WriteNote, [](Session& user) { user.Click(Note, "ImgBouton(0)"); }},
        {"note: opened, but gone",
         [](Session& user) {
             WriteNote(user);
             user.ChooseFile("pierduta.rtf");
         },
         [](Session& user) { user.Click(Note, "ImgBouton(0)"); }},
        {"note: opened, but no note",
         [](Session& user) {
             WriteNote(user);
             user.desktop.files.contents["lista.txt"] = "o lista";
             user.ChooseFile("lista.txt");
         },
         [](Session& user) { user.Click(Note, "ImgBouton(0)"); }},
        {"note: another font and colour", WriteNote,
         [](Session& user) {
             user.desktop.dialogs.chosenFont = forms::CharacterFormat{.face = "Courier New", .points = 14.0};
             user.desktop.dialogs.chosenColor = forms::Color{0xFF};
             user.Click(Note, "ImgBouton(2)");
             user.Click(Note, "ImgBouton(3)");
         }},
        {"note: all closed while a dialog is up", KeepNote,
         [](Session& user) {
             user.whileShowing = [&user] { user.Click(Palette, "imgClose"); };
             user.Click(Note, "ImgBouton(1)");
             user.whileShowing = nullptr;
         }},
        {"note: called for again while a dialog is up", KeepNote,
         [](Session& user) {
             user.whileShowing = [&user] { OpenNote(user); };
             user.Click(Note, "ImgBouton(2)");
             user.whileShowing = nullptr;
         }},
        {"note: left by its button", WriteNote, [](Session& user) { user.Click(Note, "ImgBouton(7)"); }},
    };
}

std::vector<Flow> MakeFlows() {
    std::vector<Flow> flows;
    for (const auto& part : {PaletteFlows(), ListFlows(), EntryFlows(), CurrencyFlows(), EvolutionFlows(),
                             ChooserFlows(), CalculatorFlows(), BookFlows(), NoteFlows()})
        flows.insert(flows.end(), part.begin(), part.end());
    return flows;
}

}  // namespace

std::span<const Flow> AllFlows() {
    static const std::vector<Flow> flows = MakeFlows();
    return flows;
}

}  // namespace tavrin::tests
