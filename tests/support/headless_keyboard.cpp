#include "support/headless_keyboard.h"

#include <string>

#include "forms/controls/combo_box.h"
#include "forms/controls/text_box.h"
#include "support/fake_rich_text.h"
#include "support/shadow_peer.h"

namespace tavrin::tests {

namespace {

using forms::KeyOutcome;
namespace key = forms::key;

/// The key that carries a character on a common keyboard; 0xFF (no key) where it takes an input method.
int KeyCodeOf(char32_t character) {
    if (character >= U'a' && character <= U'z') return static_cast<int>(character - U'a' + U'A');
    if (character >= U'A' && character <= U'Z') return static_cast<int>(character);
    if (character >= U'0' && character <= U'9') return static_cast<int>(character);
    switch (character) {
        case U'\b':
            return key::Backspace;
        case U'\t':
            return key::Tab;
        case U'\r':
            return key::Enter;
        case U' ':
            return key::Space;
        case U'*':
            return 106;
        case U'+':
            return 107;
        case U'/':
            return 111;
        case U',':
            return 188;
        case U'-':
            return 189;
        case U'.':
            return 190;
        case U'%':
            return '5';
        default:
            return 0xFF;
    }
}

std::string Encode(char32_t character) {
    const auto code = static_cast<unsigned>(character);
    const auto byte = [](unsigned value) { return static_cast<char>(value); };
    if (code < 0x80) return {byte(code)};
    if (code < 0x800) return {byte(0xC0 | code >> 6), byte(0x80 | (code & 0x3F))};
    if (code < 0x10000) {
        return {byte(0xE0 | code >> 12), byte(0x80 | (code >> 6 & 0x3F)), byte(0x80 | (code & 0x3F))};
    }
    return {byte(0xF0 | code >> 18), byte(0x80 | (code >> 12 & 0x3F)), byte(0x80 | (code >> 6 & 0x3F)),
            byte(0x80 | (code & 0x3F))};
}

std::u32string Decode(std::string_view text) {
    std::u32string decoded;
    for (std::size_t i = 0; i < text.size();) {
        const auto lead = static_cast<unsigned char>(text[i]);
        const std::size_t length = lead < 0x80 ? 1 : lead < 0xE0 ? 2 : lead < 0xF0 ? 3 : 4;
        char32_t code = length == 1 ? lead : lead & (0xFFU >> (length + 1));
        for (std::size_t k = 1; k < length; ++k)
            code = code << 6 | (static_cast<unsigned char>(text[i + k]) & 0x3FU);
        decoded += code;
        i += length;
    }
    return decoded;
}

/// What the platform's edit field does with the keys that move its caret or delete.
void EditWithKey(forms::TextBox& field, int keyCode) {
    const int start = field.SelStart();
    const int length = field.SelLength();
    switch (keyCode) {
        case key::Left:
            field.HandleSelection(length > 0 ? start : std::max(0, start - 1), 0);
            break;
        case key::Right:
            field.HandleSelection(length > 0 ? start + length : std::min(field.TextLength(), start + 1), 0);
            break;
        case key::Home:
            field.HandleSelection(0, 0);
            break;
        case key::End:
            field.HandleSelection(field.TextLength(), 0);
            break;
        case key::Delete:
            if (length == 0) field.HandleSelection(start, start < field.TextLength() ? 1 : 0);
            if (field.SelLength() > 0) field.ReplaceSelection({});
            break;
        default:
            break;
    }
}

void EditWithCharacter(forms::TextBox& field, char32_t character) {
    if (character == U'\b') {
        if (field.SelLength() == 0 && field.SelStart() > 0) field.HandleSelection(field.SelStart() - 1, 1);
        if (field.SelLength() > 0) field.ReplaceSelection({});
    } else if (character >= U' ') {
        field.ReplaceSelection(Encode(character));
    }
}

bool CarriesCharacter(int keyCode) {
    return keyCode == key::Backspace || keyCode == key::Tab || keyCode == key::Enter ||
           keyCode == key::Escape || keyCode == key::Space;
}

}  // namespace

void HeadlessKeyboard::Press(int keyCode, forms::Modifiers modifiers) {
    forms::Form* form = desktop_.ActiveForm();
    if (form == nullptr || !form->Enabled()) return;
    const forms::Desktop::DispatchScope scope(desktop_);
    if (form->HandleKeyDown(keyCode, modifiers) == KeyOutcome::Done) return;
    if (CarriesCharacter(keyCode)) Character(static_cast<char32_t>(keyCode));
    if (desktop_.ActiveForm() == nullptr) return;
    if (auto* field = dynamic_cast<forms::TextBox*>(desktop_.ActiveForm()->ActiveControl())) {
        EditWithKey(*field, keyCode);
    }
}

void HeadlessKeyboard::Release() {
    if (forms::Form* form = desktop_.ActiveForm()) form->HandleKeyUp();
}

void HeadlessKeyboard::Type(std::string_view text) {
    for (const char32_t character : Decode(text))
        PressFor(character);
}

void HeadlessKeyboard::PressFor(char32_t character) {
    const int keyCode = KeyCodeOf(character);
    if (CarriesCharacter(keyCode)) {
        Press(keyCode);
        return;
    }
    forms::Form* form = desktop_.ActiveForm();
    if (form == nullptr || !form->Enabled()) return;
    const forms::Desktop::DispatchScope scope(desktop_);
    if (form->HandleKeyDown(keyCode, {}) == KeyOutcome::Default) Character(character);
}

void HeadlessKeyboard::Character(char32_t character) {
    forms::Form* form = desktop_.ActiveForm();
    if (form == nullptr || form->HandleKeyPress(character) == KeyOutcome::Done) return;
    if (auto* field = dynamic_cast<forms::TextBox*>(form->ActiveControl()))
        EditWithCharacter(*field, character);
    if (auto* note = dynamic_cast<forms::RichTextBox*>(form->ActiveControl())) {
        if (auto* editor = dynamic_cast<FakeRichText*>(note->Peer())) editor->Type(Encode(character));
    }
    if (auto* combo = dynamic_cast<forms::ComboBox*>(form->ActiveControl())) {
        if (combo->Style() == forms::ComboStyle::DropDown && character >= U' ') {
            const std::string text = combo->Text() + Encode(character);
            if (auto* shadow = dynamic_cast<ShadowPeer*>(combo->Peer())) shadow->ShowTyped(text);
            combo->HandleTyped(text);
        }
    }
}

void HeadlessKeyboard::Accelerator(char32_t letter) {
    if (desktop_.ActiveForm() != nullptr) desktop_.ActiveForm()->HandleAccelerator(letter);
}

void HeadlessKeyboard::Paste(std::string_view text) {
    forms::Form* form = desktop_.ActiveForm();
    if (form == nullptr) return;
    if (auto* field = dynamic_cast<forms::TextBox*>(form->ActiveControl()))
        field->ReplaceSelection(std::string(text));
}

void ClickWithMouse(forms::Control& control, forms::MouseButton button) {
    ClickWithMouse(control, {control.Bounds().width / 2, control.Bounds().height / 2}, button);
}

void ClickWithMouse(forms::Control& control, forms::Point at, forms::MouseButton button) {
    const forms::Desktop::DispatchScope scope(control.OwnerForm().OwnerDesktop());
    control.HandleMouseDown({button, at, {}});
    control.HandleMouseUp({button, at, {}});
}

}  // namespace tavrin::tests
