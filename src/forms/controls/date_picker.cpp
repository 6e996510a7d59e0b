#include "forms/controls/date_picker.h"

#include <algorithm>
#include <cmath>

#include "data/text/digits.h"
#include "forms/controls/look.h"
#include "forms/model/form.h"

namespace tavrin::forms {

namespace {

/// The platform's calendar begins in the autumn of 1752, dates in a database with the next year.
constexpr data::CalendarDay FirstDay{1753, 1, 1};
constexpr data::CalendarDay LastDay{9999, 12, 31};

int Wrapped(int number, int count) {
    return ((number - 1) % count + count) % count + 1;
}

/// The nearest day that exists.
data::CalendarDay Existing(data::CalendarDay day) {
    day.year = std::clamp(day.year, FirstDay.year, LastDay.year);
    day.month = std::clamp(day.month, 1, 12);
    day.day = std::clamp(day.day, 1, data::DaysInMonth(day.year, day.month));
    return day;
}

data::OleDate WholeDay(data::OleDate date) {
    return data::ToOleDate(data::ToCalendarDay(date));
}

/// A day that every calendar takes.
data::OleDate CalendarDate(data::OleDate date) {
    return {std::clamp(WholeDay(date).days, data::ToOleDate(FirstDay).days, data::ToOleDate(LastDay).days)};
}

/// Keys that carry no character of a date: they end the typing of a part.
bool EndsTyping(int keyCode) {
    return keyCode < '0' && keyCode != key::Space;
}

}  // namespace

DatePicker::DatePicker(Container& parent, std::string_view name, const std::string& customFormat, Rect bounds)
    : Control(parent, name, bounds),
      pieces_(data::ParseDateFormat(customFormat)),
      minDate_(data::ToOleDate(FirstDay)),
      maxDate_(data::ToOleDate(LastDay)) {
    SetBackColor(scheme::Field);
    SetForeColor(scheme::Value);
    while (active_ < pieces_.size() && pieces_[active_].part == data::DatePart::None)
        ++active_;
}

// The value.

void DatePicker::SetDate(data::OleDate date) {
    if (!std::isfinite(date.days)) return;
    typed_.clear();
    Take(date);
    wanted_ = data::ToCalendarDay(value_);
}

void DatePicker::SetRange(data::OleDate minDate, data::OleDate maxDate) {
    minDate_ = CalendarDate(minDate);
    maxDate_ = {std::max(minDate_.days, CalendarDate(maxDate).days)};
    SetDate(value_);
}

void DatePicker::Take(data::OleDate date) {
    const data::OleDate day{std::clamp(WholeDay(date).days, minDate_.days, maxDate_.days)};
    const bool differs = day != value_;
    value_ = day;
    Repaint();
    if (differs) Raise(event::Change, onChange);
}

std::string DatePicker::Text() const {
    const data::CalendarDay day = data::ToCalendarDay(value_);
    std::string text;
    for (const data::DatePiece& piece : pieces_)
        text += piece.Text(day, OwnerForm().UserLocale());
    return text;
}

data::DatePart DatePicker::ActivePart() const {
    return active_ < pieces_.size() ? pieces_[active_].part : data::DatePart::None;
}

// Up, Down and the wheel.

void DatePicker::HandleWheel(int notches) {
    if (HasFocus()) Step(notches);
}

void DatePicker::Step(int step) {
    EndTyping();
    data::CalendarDay day = data::ToCalendarDay(value_);
    switch (ActivePart()) {
        case data::DatePart::Day:
            day.day = Wrapped(day.day + step, data::DaysInMonth(day.year, day.month));
            break;
        case data::DatePart::Month:
            day.month = Wrapped(day.month + step, 12);
            break;
        case data::DatePart::Year:
            day.year += step;
            break;
        case data::DatePart::None:
            return;
    }
    SetDate(data::ToOleDate(Existing(day)));
}

// Typing.

void DatePicker::TypeDigit(int digit) {
    if (ActivePart() == data::DatePart::None) return;
    const data::DatePiece& piece = pieces_[active_];
    const int most = piece.part == data::DatePart::Day ? 31 : piece.part == data::DatePart::Month ? 12 : 9999;
    // Digits that can name no day or month begin anew with the last one.
    if (!typed_.empty() && std::stoi(typed_) * 10 + digit > most) typed_.clear();
    typed_ += static_cast<char>('0' + digit);
    ApplyTyped();
    if (static_cast<int>(typed_.size()) < piece.digits) return;
    typed_.clear();
    ActivateNeighbour(1);
}

void DatePicker::ApplyTyped() {
    const int number = std::stoi(typed_);
    Repaint();
    switch (ActivePart()) {
        case data::DatePart::Day:
            if (number == 0) return;
            wanted_.day = number;
            break;
        case data::DatePart::Month:
            if (number == 0) return;
            wanted_.month = number;
            break;
        default:
            // Three digits are on the way to four.
            if (typed_.size() == 3) return;
            wanted_.year = typed_.size() < 3 ? data::FullYear(number) : number;
            break;
    }
    Take(data::ToOleDate(Existing(wanted_)));
}

void DatePicker::EndTyping() {
    typed_.clear();
    Repaint();
}

// Keys.

KeyOutcome DatePicker::DefaultKeyDown(int keyCode, Modifiers modifiers) {
    if (keyCode == key::F4 || (modifiers.alt && keyCode == key::Down)) {
        DropDown();
        return KeyOutcome::Done;
    }
    if (modifiers.alt || modifiers.control) return Control::DefaultKeyDown(keyCode, modifiers);
    switch (keyCode) {
        case key::Up:
            Step(1);
            return KeyOutcome::Done;
        case key::Down:
            Step(-1);
            return KeyOutcome::Done;
        case key::Left:
            ActivateNeighbour(-1);
            return KeyOutcome::Done;
        case key::Right:
            ActivateNeighbour(1);
            return KeyOutcome::Done;
        default:
            return Control::DefaultKeyDown(keyCode, modifiers);
    }
}

KeyOutcome DatePicker::DefaultKeyPress(char32_t character) {
    if (data::IsDigit(character)) {
        TypeDigit(static_cast<int>(character - U'0'));
        return KeyOutcome::Done;
    }
    // A separator ends a part that is being typed; after a complete part it has been passed already.
    const bool separates = character == U'/' || character == U'.' || character == U'-' || character == U' ';
    if (!separates) return Control::DefaultKeyPress(character);
    if (!typed_.empty()) ActivateNeighbour(1);
    return KeyOutcome::Done;
}

void DatePicker::CompleteInput(int keyCode) {
    if (EndsTyping(keyCode)) typed_.clear();
    if (keyCode == 0) wanted_ = data::ToCalendarDay(value_);
}

void DatePicker::ActivatePiece(std::size_t piece) {
    active_ = piece;
    EndTyping();
}

void DatePicker::ActivateNeighbour(int step) {
    EndTyping();
    const auto count = static_cast<std::ptrdiff_t>(pieces_.size());
    for (auto i = static_cast<std::ptrdiff_t>(active_) + step; i >= 0 && i < count; i += step) {
        if (pieces_[static_cast<std::size_t>(i)].part == data::DatePart::None) continue;
        ActivatePiece(static_cast<std::size_t>(i));
        return;
    }
}

void DatePicker::DropDown() {
    EndTyping();
    if (Peer() != nullptr) Peer()->DropDown();
}

void DatePicker::HandleDropped(bool dropped) {
    dropped_ = dropped;
    Repaint();
}

// The mouse.

void DatePicker::DefaultMouseDown(const MouseInput& input) {
    if (input.button != MouseButton::Left) return;
    if (input.at.x >= Bounds().width - look::FocusWidth - look::ArrowWidth) {
        DropDown();
        return;
    }
    for (std::size_t i = std::min(drawnAt_.size(), pieces_.size()); i-- > 0;) {
        if (pieces_[i].part == data::DatePart::None || input.at.x < drawnAt_[i]) continue;
        ActivatePiece(i);
        return;
    }
}

// The look.

std::string DatePicker::ShownText(std::size_t piece) const {
    if (piece == active_ && !typed_.empty() && HasFocus()) return typed_;
    return pieces_[piece].Text(data::ToCalendarDay(value_), OwnerForm().UserLocale());
}

void DatePicker::Draw(Surface& surface) const {
    look::DrawField(surface, *this);
    look::DrawDropArrow(surface, *this);
    const TextStyle style = look::TextStyleOf(*this);
    const int left = look::Padding + look::FocusWidth / 2;
    const int right = Bounds().width - look::FocusWidth - look::ArrowWidth;
    const int height = std::max(0, Bounds().height - 2 * look::TextInset);
    const ClipScope clip(surface, {left, look::TextInset, std::max(0, right - left), height});
    drawnAt_.clear();
    int x = left;
    for (std::size_t i = 0; i < pieces_.size(); ++i) {
        const std::string text = ShownText(i);
        drawnAt_.push_back(x);
        const Rect place{x, look::TextInset, surface.MeasureText(text, style.font).width, height};
        if (i == active_ && HasFocus()) surface.FillRectangle(place, scheme::CurrentRow);
        surface.DrawText(text, place, style);
        x = place.Right();
    }
}

AccessibleNode DatePicker::Accessible() const {
    AccessibleNode node = Control::Accessible();
    node.role = Role::DateField;
    node.value = Text();
    node.expandable = true;
    node.expanded = dropped_;
    return node;
}

}  // namespace tavrin::forms
