#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace tavrin::doctor {

/// A connection string as its owner may pass it on: three stars stand for the values of all keywords that are
/// not known to be harmless, and for whatever belongs to no keyword.
std::string ShownConnection(std::string_view connection);

/// What else is kept from a report.
enum class Withhold { Secrets, SecretsServersAndUsers };

/// The values of a connection string that nobody may repeat. Of keywords that nobody knows only those of six
/// letters or more: what is shorter is a switch or a number, of which every text is full.
std::vector<std::string> HiddenTexts(std::string_view connection, Withhold withhold);

/// The text with the sign in the place of each of the hidden ones, whatever the case of their letters.
std::string TakenOut(std::vector<std::string> hidden, std::string_view text, std::string_view sign);

/// A text in which somebody may have repeated the connection string's secrets, with three stars for each.
std::string WithoutSecretsOf(std::string_view connection, std::string_view text);

}  // namespace tavrin::doctor
