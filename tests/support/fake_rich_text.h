#pragma once

#include <cstddef>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "forms/controls/rich_text_box.h"
#include "forms/model/peer.h"

namespace tavrin::tests {

/// An editor for formatted text without a platform. It behaves as the platform's does: what is typed takes
/// the format set for the caret, else that of the text before it; a selection's properties that differ have
/// no value; of a document that it cannot read it holds a part. Pictures and paragraphs' looks are lost in
/// it.
class FakeRichText : public forms::ControlPeer, public forms::RichTextEditor {
  public:
    /// Gives a rich text box such an editor, which the box owns from then on.
    static FakeRichText& Give(forms::RichTextBox& box);

    explicit FakeRichText(forms::RichTextBox& box);

    void Changed(forms::Aspect) override {}
    void TakeFocus() override {}

    std::string Text() const override;
    void SetText(const std::string& text) override;
    forms::CharacterFormat SelectionFormat() const override;
    void FormatSelection(const forms::CharacterFormat& format) override;
    void Load(std::string_view rtf) override;
    std::string Save() const override;

    // A user's hands.
    void Type(std::string_view text);
    void Select(std::size_t start, std::size_t length);
    void SelectAll() { Select(0, characters_.size()); }

    /// The format of the character at that place.
    const forms::CharacterFormat& FormatAt(std::size_t place) const { return characters_[place].format; }

    int loads = 0;
    bool ExchangesIndents() const override { return exchangesIndents; }

    bool exchangesIndents = false;
    int loadsToFail = 0;  ///< the next ones
    bool failsToSave = false;
    std::string written;                  ///< what is saved whatever the text is, unless it is empty
    std::function<void()> whenStreaming;  ///< before a document comes or goes; may throw

  private:
    struct Character {
        char letter;
        forms::CharacterFormat format;
    };

    std::vector<Character> characters_;
    std::size_t start_ = 0;
    std::size_t length_ = 0;
    forms::CharacterFormat typing_;
    forms::RichTextBox& box_;
};

}  // namespace tavrin::tests
