#pragma once

namespace tavrin::addressbook::text {

// Every text that the address book shows in a message.

inline constexpr char NumeRequired[] = "Numele este obligatoriu !";
inline constexpr char PrenumeRequired[] = "Prenumele este obligatoriu !";

inline constexpr char LeaveQuestion[] = "Doriti sa parasiti forma?";
inline constexpr char LeaveTitle[] = "Iesire";

/// The names follow, then the end.
inline constexpr char DeleteQuestion[] = "Doriti sa stergeti din agenda persoana ";
inline constexpr char DeleteQuestionEnd[] = " ?";

/// For a delete that the database refuses. Never shown: such a refusal is reported in the provider's words.
inline constexpr char PersonInUse[] =
    "Nu poate fi stearsa aceasta inregistrare deoarece exista inregistrari conexe care o utilizeaza ! ";

}  // namespace tavrin::addressbook::text
