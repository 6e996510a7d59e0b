#pragma once

namespace tavrin::notes::text {

// Every text that the note pad shows in a message or a dialog.

inline constexpr char NewNoteQuestion[] = "Doriti sa creati o nota noua ?";
inline constexpr char OpenTitle[] = "Alegeti fisierul dorit !";
inline constexpr char SaveTitle[] = "Alegeti calea si numele fisierului in care se va salva !";
inline constexpr char NoteFilter[] = "Nota (*.rtf)|*.rtf";

}  // namespace tavrin::notes::text
