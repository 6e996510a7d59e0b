#include "forms/controls/combo_box.h"

#include <algorithm>
#include <utility>

#include "data/text/utf8.h"
#include "forms/controls/look.h"
#include "forms/model/form.h"

namespace tavrin::forms {

namespace {

constexpr int PageStep = 10;

bool BeginsWith(const std::string& item, char32_t letter) {
    return !item.empty() && letter < 0x80 &&
           data::LowerCase(static_cast<unsigned char>(item.front())) == data::LowerCase(letter);
}

}  // namespace

ComboBox::ComboBox(Container& parent, std::string_view name, ComboStyle style, Rect bounds)
    : Control(parent, name, bounds), style_(style) {
    SetBackColor(scheme::Field);
    SetForeColor(scheme::Value);
}

// The list.

void ComboBox::Clear() {
    items_.clear();
    TakeEntry(-1);
}

void ComboBox::AddItem(std::string item) {
    items_.push_back(std::move(item));
    Notify(Aspect::List);
}

void ComboBox::SetListIndex(int index) {
    if (index < 0 || index >= ListCount()) index = -1;
    if (index == listIndex_) return;
    TakeEntry(index);
    Raise(event::Click, onClick);
}

void ComboBox::HandleChosen(int index) {
    if (index < 0 || index >= ListCount() || !AcceptsInput()) return;
    TakeEntry(index);
    Raise(event::Click, onClick);
}

void ComboBox::HandleDropped(bool dropped) {
    dropped_ = dropped;
    Repaint();
}

void ComboBox::TakeEntry(int index) {
    listIndex_ = index;
    text_ = index < 0 ? std::string() : Item(index);
    selStart_ = 0;
    selLength_ = data::CountCharacters(text_);
    Notify(Aspect::List);
    Notify(Aspect::Selection);
}

// The text.

void ComboBox::SetText(std::string text) {
    if (style_ == ComboStyle::DropDownList) {
        const auto entry = std::ranges::find(items_, text);
        if (entry != items_.end() && text != text_) SetListIndex(static_cast<int>(entry - items_.begin()));
        return;
    }
    if (text_ == text) return;
    TakeText(std::move(text));
    selStart_ = 0;
    Notify(Aspect::List);
    Notify(Aspect::Text);
    Raise(event::Change, onChange);
}

void ComboBox::HandleTyped(std::string text) {
    if (style_ == ComboStyle::DropDownList || text_ == text) return;
    if (!AcceptsInput()) {
        Notify(Aspect::Text);
        return;
    }
    TakeText(std::move(text));
    selStart_ = data::CountCharacters(text_);
    Raise(event::Change, onChange);
}

void ComboBox::TakeText(std::string text) {
    text_ = std::move(text);
    listIndex_ = -1;
    selLength_ = 0;
}

void ComboBox::Select(int start, int length) {
    const int characters = data::CountCharacters(text_);
    selStart_ = std::clamp(start, 0, characters);
    selLength_ = std::clamp(length, 0, characters - selStart_);
    Notify(Aspect::Selection);
}

// Keys.

KeyOutcome ComboBox::DefaultKeyDown(int keyCode, Modifiers modifiers) {
    const bool opens = keyCode == key::F4 || (modifiers.alt && (keyCode == key::Down || keyCode == key::Up));
    if (opens && Peer() != nullptr) {
        if (!dropped_) Peer()->DropDown();
        return KeyOutcome::Done;
    }
    if (dropped_ || modifiers.alt || modifiers.control) return Control::DefaultKeyDown(keyCode, modifiers);
    const int target = TargetOf(keyCode);
    if (target < 0) return Control::DefaultKeyDown(keyCode, modifiers);
    if (target != listIndex_ && target < ListCount()) HandleChosen(target);
    return KeyOutcome::Done;
}

int ComboBox::TargetOf(int keyCode) const {
    const bool caretMoves = style_ == ComboStyle::DropDown;
    const int last = std::max(0, ListCount() - 1);
    switch (keyCode) {
        case key::Up:
            return std::max(0, listIndex_ - 1);
        case key::Down:
            return std::min(last, listIndex_ + 1);
        case key::PageUp:
            return std::max(0, listIndex_ - PageStep);
        case key::PageDown:
            return std::min(last, listIndex_ + PageStep);
        case key::Left:
            return caretMoves ? -1 : std::max(0, listIndex_ - 1);
        case key::Right:
            return caretMoves ? -1 : std::min(last, listIndex_ + 1);
        case key::Home:
            return caretMoves ? -1 : 0;
        case key::End:
            return caretMoves ? -1 : last;
        default:
            return -1;
    }
}

KeyOutcome ComboBox::DefaultKeyPress(char32_t character) {
    if (style_ != ComboStyle::DropDownList || dropped_) return Control::DefaultKeyPress(character);
    for (int step = 1; step <= ListCount(); ++step) {
        const int index = (listIndex_ + step) % ListCount();
        if (!BeginsWith(Item(index), character)) continue;
        if (index != listIndex_) HandleChosen(index);
        return KeyOutcome::Done;
    }
    if (character < U' ') return Control::DefaultKeyPress(character);
    OwnerForm().OwnerDesktop().Beep();
    return KeyOutcome::Done;
}

// The look.

Rect ComboBox::TextArea() const {
    const int left = look::Padding + look::FocusWidth / 2;
    const int right = Bounds().width - look::FocusWidth - look::ArrowWidth;
    return {left, look::TextInset, std::max(0, right - left),
            std::max(0, Bounds().height - 2 * look::TextInset)};
}

void ComboBox::Draw(Surface& surface) const {
    look::DrawField(surface, *this);
    look::DrawDropArrow(surface, *this);
    if (style_ == ComboStyle::DropDownList) surface.DrawText(text_, TextArea(), look::TextStyleOf(*this));
}

AccessibleNode ComboBox::Accessible() const {
    AccessibleNode node = Control::Accessible();
    node.role = Role::ComboBox;
    node.value = text_;
    node.expandable = true;
    node.expanded = dropped_;
    return node;
}

}  // namespace tavrin::forms
