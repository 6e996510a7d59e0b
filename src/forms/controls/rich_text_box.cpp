#include "forms/controls/rich_text_box.h"

#include "data/error.h"
#include "forms/model/form.h"

namespace tavrin::forms {

RichTextBox::RichTextBox(Container& parent, std::string_view name, Rect bounds)
    : Control(parent, name, bounds) {}

RichTextEditor* RichTextBox::FindEditor() const {
    return dynamic_cast<RichTextEditor*>(Peer());
}

RichTextEditor& RichTextBox::Editor() const {
    RichTextEditor* const editor = FindEditor();
    if (editor == nullptr) throw data::ObjectNotSet();
    return *editor;
}

std::string RichTextBox::Text() const {
    return Editor().Text();
}

void RichTextBox::SetText(const std::string& text) {
    Editor().SetText(text);
    HandleSelectionChange();
}

CharacterFormat RichTextBox::SelectionFormat() const {
    return Editor().SelectionFormat();
}

void RichTextBox::FormatSelection(const CharacterFormat& format) {
    Editor().FormatSelection(format);
    HandleSelectionChange();
}

void RichTextBox::Load(std::string_view rtf) {
    Editor().Load(rtf);
    HandleSelectionChange();
}

std::string RichTextBox::Save() const {
    return Editor().Save();
}

bool RichTextBox::ExchangesIndents() const {
    return Editor().ExchangesIndents();
}

void RichTextBox::HandleSelectionChange() {
    Raise(event::SelChange, onSelChange);
}

AccessibleNode RichTextBox::Accessible() const {
    AccessibleNode node = Control::Accessible();
    node.role = Role::EditableText;
    if (const RichTextEditor* editor = FindEditor()) node.value = editor->Text();
    return node;
}

}  // namespace tavrin::forms
