#pragma once

#include <gmock/gmock.h>

#include <string>
#include <vector>

#include "notes/notes.h"
#include "support/fake_rich_text.h"
#include "support/window_test.h"

namespace tavrin::tests {

/// The note pad on a headless desktop, with an editor, dialogs and files of the tests' own.
class NotesTest : public WindowTest {
  protected:
    using Notes = notes::Notes;

    ~NotesTest() override { desktop.UnloadAll(); }

    Notes& Open() {
        auto& window = application.Default<Notes>();
        editor = &FakeRichText::Give(window.txtNota);
        window.ShowForm();
        return window;
    }

    bool IsOpen() { return application.Loaded<Notes>() != nullptr; }

    void Answer(int answer) { messages.answers.push_back(answer); }

    /// Clicks the first button and answers Yes, respectively No.
    void NewNote(Notes& window) { ClickAndAnswer(window, shell::message::AnswerYes); }
    void OpenNote(Notes& window) { ClickAndAnswer(window, shell::message::AnswerNo); }

    static std::vector<forms::ToolLook> Looks(const Notes& window) {
        std::vector<forms::ToolLook> looks;
        for (const auto& button : window.ImgBouton)
            looks.push_back(button->Look());
        return looks;
    }

    static std::vector<forms::ToolLook> AllRestingBut(int index, forms::ToolLook look) {
        std::vector<forms::ToolLook> looks(8, forms::ToolLook::Resting);
        if (index >= 0) looks[static_cast<std::size_t>(index)] = look;
        return looks;
    }

    FakeRichText* editor = nullptr;

  private:
    void ClickAndAnswer(Notes& window, int answer) {
        Answer(answer);
        window.ImgBouton[Notes::NewOrOpen].Click();
    }
};

}  // namespace tavrin::tests
