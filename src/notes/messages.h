#pragma once

namespace tavrin::notes::text {

// Every text that the note pad shows in a message or a dialog.

inline constexpr char NewNoteQuestion[] = "Doriti sa creati o nota noua ?";
inline constexpr char OpenTitle[] = "Alegeti fisierul dorit !";
inline constexpr char SaveTitle[] = "Alegeti calea si numele fisierului in care se va salva !";
inline constexpr char NoteFilter[] = "Nota (*.rtf)|*.rtf";

// What went wrong with a file. The reason follows on a line of its own where the platform or the editor gave
// one.
inline constexpr char NotLoaded[] = "Nota nu a putut fi incarcata !";
inline constexpr char NotSaved[] = "Nota nu a putut fi salvata !";
inline constexpr char NoNote[] = "Fisierul ales nu este o nota RTF !";
inline constexpr char NothingLeft[] = "Fisierul ales este incomplet si nu mai poate fi citit !";
inline constexpr char TooLarge[] = "Nota este prea mare !";
inline constexpr char EditorFailed[] = "Textul nu a putut fi citit in intregime din fereastra !";
inline constexpr char FileDamaged[] =
    "Fisierul ales nu mai are nici vechiul continut. Salvati nota intr-un alt fisier !";
inline constexpr char NotKept[] = "Nici textul din fereastra nu a putut fi pastrat in intregime !";

// What a note that is shown all the same has lost, or has otherwise than its file.
inline constexpr char CutNote[] = "Fisierul ales este incomplet. S-a incarcat numai inceputul notei !";
inline constexpr char ParagraphsDivided[] =
    "Paragrafele foarte lungi din fisier au fost impartite in mai multe !";
inline constexpr char PicturesNotShown[] =
    "Unele imagini din fisier nu pot fi pastrate si lipsesc din nota !";
inline constexpr char PicturesUnknown[] =
    "Nota a fost incarcata, dar nu s-a putut afla daca imaginile ei pot fi pastrate !";
inline constexpr char PicturesNotSaved[] =
    "Nota a fost salvata fara unele imagini, care nu pot fi pastrate !";

}  // namespace tavrin::notes::text
