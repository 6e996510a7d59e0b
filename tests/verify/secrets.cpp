#include "verify/secrets.h"

#include "doctor/core/connection_secrets.h"

namespace tavrin::verify {

Secrets::Secrets(const std::string& connectionString)
    : secrets_(doctor::HiddenTexts(connectionString, doctor::Withhold::SecretsServersAndUsers)) {
    secrets_.push_back(connectionString);
}

std::string Secrets::Withheld(std::string_view text) const {
    return doctor::TakenOut(secrets_, text, "(withheld)");
}

}  // namespace tavrin::verify
