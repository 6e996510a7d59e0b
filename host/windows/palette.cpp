#include "host/windows/catalogue.h"

namespace tavrin::host {

Utility DescribePalette() {
    return {"src/shell",
            {{"Utilitati", {{"Palette", "Utilitati", {}}}, {}}},
            {
                {"palette", {}, {"Utilitati"}},
                {"palette-rolled-up", {{"Utilitati", "imgRollup(0)"}}, {"Utilitati"}},
            }};
}

}  // namespace tavrin::host
