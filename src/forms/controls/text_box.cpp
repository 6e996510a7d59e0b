#include "forms/controls/text_box.h"

#include <algorithm>
#include <utility>

#include "data/text/utf8.h"
#include "forms/model/form.h"

namespace tavrin::forms {

TextBox::TextBox(Container& parent, std::string_view name, Rect bounds) : Control(parent, name, bounds) {
    SetBackColor(scheme::Field);
    SetForeColor(scheme::Value);
}

void TextBox::SetText(std::string text) {
    if (text_ == text) return;
    text_ = std::move(text);
    selStart_ = 0;
    selLength_ = 0;
    Notify(Aspect::Text);
    Raise(event::Change, onChange);
}

int TextBox::TextLength() const {
    return data::CountCharacters(text_);
}

void TextBox::SetLocked(bool locked) {
    if (locked_ == locked) return;
    locked_ = locked;
    Notify(Aspect::Locked);
}

void TextBox::SetBordered(bool bordered) {
    if (bordered_ == bordered) return;
    bordered_ = bordered;
    Repaint();
}

void TextBox::SetAlignment(Align align) {
    if (align_ == align) return;
    align_ = align;
    Repaint();
}

void TextBox::Select(int start, int length) {
    HandleSelection(start, length);
    Notify(Aspect::Selection);
}

std::string TextBox::SelText() const {
    const std::size_t from = data::OffsetOfCharacter(text_, selStart_);
    return text_.substr(from, data::OffsetOfCharacter(text_, selStart_ + selLength_) - from);
}

void TextBox::HandleSelection(int selStart, int selLength) {
    const int characters = TextLength();
    selStart_ = std::clamp(selStart, 0, characters);
    selLength_ = std::clamp(selLength, 0, characters - selStart_);
}

void TextBox::HandleEdited(std::string text, int selStart, int selLength) {
    if (locked_ || !AcceptsInput()) {
        Notify(Aspect::Text);
        return;
    }
    const bool differs = text_ != text;
    text_ = std::move(text);
    HandleSelection(selStart, selLength);
    if (differs) Raise(event::Change, onChange);
}

void TextBox::ReplaceSelection(const std::string& text) {
    if (locked_ || !OwnerForm().AcceptsInput()) return;
    const std::size_t from = data::OffsetOfCharacter(text_, selStart_);
    const std::size_t to = data::OffsetOfCharacter(text_, selStart_ + selLength_);
    std::string edited = text_;
    edited.replace(from, to - from, text);
    const bool differs = text_ != edited;
    text_ = std::move(edited);
    HandleSelection(selStart_ + data::CountCharacters(text), 0);
    Notify(Aspect::Text);
    Notify(Aspect::Selection);
    if (differs) Raise(event::Change, onChange);
}

void TextBox::HandleWheel(int notches) {
    Raise(event::Wheel, onWheel, notches);
}

AccessibleNode TextBox::Accessible() const {
    AccessibleNode node = Control::Accessible();
    node.role = Role::EditableText;
    node.value = text_;
    node.readOnly = locked_;
    return node;
}

}  // namespace tavrin::forms
