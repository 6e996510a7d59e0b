#include "e2e/proofs/other_users.h"

#include <array>

namespace tavrin::e2e {

std::string AnyWrite(Random& random) {
    const std::string number = std::to_string(random.Below(1000));
    const std::string day = std::to_string(1 + random.Below(28));
    switch (random.Below(8)) {
        case 0:
            return "DELETE FROM Agenda WHERE Nume > 'M'";
        case 1:
            return "DELETE FROM [Curs Valutar] WHERE Data > '06-" + day + "-2003'";
        case 2:
        case 3:
            return "INSERT INTO Agenda (Nume, Prenume) VALUES ('Om" + number + "', 'Nou')";
        case 4:
        case 5:
            return "INSERT INTO [Curs Valutar] (Data, EUR) VALUES ('06-" + day + "-2003', 37" + number + ")";
        case 6:
            return "UPDATE [Curs Valutar] SET EUR = NULL WHERE Data > '06-" + day + "-2003'";
        default:
            return "UPDATE AdmQuadrel.dbo.Societati SET Curs = '05-" + day + "-2003'";
    }
}

HostValues AnyHostValues(Random& random) {
    constexpr std::array<int, 4> companies = {1, 2, 2, 2};
    HostValues values;
    values.month = 1 + static_cast<int>(random.Below(12));
    values.day = 1 + static_cast<int>(random.Below(28));
    values.company = random.Pick(companies);
    if (random.OnceIn(16)) values.year = 2050;
    return values;
}

}  // namespace tavrin::e2e
