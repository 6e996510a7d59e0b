#include "host/windows/catalogue.h"

namespace tavrin::host {

Utility DescribeNotes() {
    return {
        "src/notes",
        {{"Notes",
          {{"Notes", "Bloc Notes", {{"Utilitati", "cmdAction(0)"}}}},
          {"Doriti sa creati o nota noua ?", "Nota nu a putut fi incarcata !", "Nota nu a putut fi salvata !",
           "Fisierul ales nu este o nota RTF !", "Fisierul ales este incomplet", "Nota este prea mare !",
           "Unele imagini din fisier nu pot fi pastrate", "Nota a fost salvata fara unele imagini"}}},
        {
            {"notes",
             {{"Agenda", "cmdAction(1)"},
              {"Utilitati", "cmdAction(0)"},
              {"Notes", "ImgBouton(4)", "", "Luni, 1 decembrie"},
              {"Notes", "ImgBouton(4)", "", "\rBanca: curs EUR \u0219i USD, 500 \u20ac\r"},
              {"Notes", "ImgBouton(5)", "", "de trimis balan\u021ba pe noiembrie\r"},
              {"Notes", "ImgBouton(5)"},
              {"Notes", "ImgBouton(6)", "", "Sun\u0103 la Radu"}},
             {"Notes"}},
        }};
}

}  // namespace tavrin::host
