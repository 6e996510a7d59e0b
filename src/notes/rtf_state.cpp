#include "notes/rtf_state.h"

#include <algorithm>
#include <cstdlib>
#include <utility>

namespace tavrin::notes {

namespace {

constexpr int LargestHalfPoints = 3276;  // what editors take
constexpr int StandardHalfPoints = 24;
constexpr int OneLine = 240;
constexpr int LowestLine = 20;  // less is no line that anybody could read

std::int16_t ToLength(int number) {
    return static_cast<std::int16_t>(std::clamp(number, -LongestLength, LongestLength));
}

std::uint16_t ToHalfPoints(int number) {
    return static_cast<std::uint16_t>(number > 0 ? std::clamp(number, 2, LargestHalfPoints)
                                                 : StandardHalfPoints);
}

void SetFont(RtfState& state, int number) {
    state.fontNumber = number;
    state.fontIsKnown = false;
    state.page = 0;
}

void BePlain(RtfState& state) {
    state.run = {};
    SetFont(state, RtfState::DefaultFont);
    state.capitals = false;
    state.smallCapitals = false;
    state.hidden = false;
    state.deleted = false;
}

void BePlainParagraph(RtfState& state) {
    state.paragraph = {};
    state.leftIndent = 0;
    state.firstLineIndent = 0;
    state.lineHeight = 0;
    state.lineMultiple = false;
    state.nextTab = TabAlignment::Left;
}

void SetIndents(RtfState& state, RtfIndents indents) {
    const bool exchanged = indents == RtfIndents::Exchanged;
    const int left = exchanged ? state.leftIndent + state.firstLineIndent : state.leftIndent;
    state.paragraph.leftIndent = ToLength(left);
    state.paragraph.firstLineIndent = ToLength(exchanged ? -state.leftIndent : state.firstLineIndent);
}

/// A multiple has no sign; else a positive height is the least and a negative one exact.
void SetLineHeight(RtfState& state) {
    const int height = std::abs(state.lineHeight);
    const bool own = height < LowestLine || (state.lineMultiple && height == OneLine);
    state.paragraph.lineHeight = own ? std::int16_t{0} : ToLength(height);
    state.paragraph.lineSpacing = own || state.lineMultiple ? LineSpacing::Multiple
                                  : state.lineHeight > 0    ? LineSpacing::AtLeast
                                                            : LineSpacing::Exact;
}

void AddTab(RtfState& state, int number) {
    TabStops& tabs = state.paragraph.tabs;
    const TabStop stop{ToLength(number), std::exchange(state.nextTab, TabAlignment::Left)};
    if (stop.position <= 0 || tabs.count == tabs.stops.size()) return;
    std::size_t place = tabs.count;
    while (place > 0 && tabs.stops[place - 1].position > stop.position)
        --place;
    if (place > 0 && tabs.stops[place - 1].position == stop.position) return;
    std::copy_backward(tabs.stops.begin() + place, tabs.stops.begin() + tabs.count,
                       tabs.stops.begin() + tabs.count + 1);
    tabs.stops[place] = stop;
    ++tabs.count;
}

}  // namespace

bool ApplyToCharacters(RtfState& state, const RtfWord& word, int number, bool hasNumber) {
    const bool on = !hasNumber || number != 0;
    switch (word.action) {
        case RtfAction::Plain:
            BePlain(state);
            return true;
        case RtfAction::Font:
            SetFont(state, number);
            return true;
        case RtfAction::FontSize:
            state.run.halfPoints = ToHalfPoints(hasNumber ? number : StandardHalfPoints);
            return true;
        case RtfAction::Bold:
            state.run.bold = on;
            return true;
        case RtfAction::Italic:
            state.run.italic = on;
            return true;
        case RtfAction::Underline:
            state.run.underline = on;
            return true;
        case RtfAction::NoUnderline:
            state.run.underline = false;
            return true;
        case RtfAction::StrikeThru:
            state.run.strikeThru = on;
            return true;
        case RtfAction::Script:
            state.run.script = on ? static_cast<Script>(word.value) : Script::Normal;
            return true;
        case RtfAction::Raised:
            // By how much does not matter; without a number it is a good deal.
            state.run.script = !on ? Script::Normal : word.value > 0 ? Script::Super : Script::Sub;
            return true;
        case RtfAction::Capitals:
            state.capitals = on;
            return true;
        case RtfAction::SmallCapitals:
            state.smallCapitals = on;
            return true;
        case RtfAction::Hidden:
            state.hidden = on;
            return true;
        case RtfAction::Deleted:
            state.deleted = on;
            return true;
        default:
            return false;
    }
}

bool ApplyToParagraphs(RtfState& state, const RtfWord& word, int number, RtfIndents indents) {
    number = std::clamp(number, -LongestLength, LongestLength);
    switch (word.action) {
        case RtfAction::ParagraphPlain:
            BePlainParagraph(state);
            return true;
        case RtfAction::Alignment:
            state.paragraph.alignment = static_cast<Alignment>(word.value);
            return true;
        case RtfAction::LeftIndent:
            state.leftIndent = number;
            SetIndents(state, indents);
            return true;
        case RtfAction::FirstLineIndent:
            state.firstLineIndent = number;
            SetIndents(state, indents);
            return true;
        case RtfAction::RightIndent:
            state.paragraph.rightIndent = ToLength(number);
            return true;
        case RtfAction::SpaceBefore:
            state.paragraph.spaceBefore = ToLength(number);
            return true;
        case RtfAction::SpaceAfter:
            state.paragraph.spaceAfter = ToLength(number);
            return true;
        case RtfAction::LineHeight:
            state.lineHeight = number;
            SetLineHeight(state);
            return true;
        case RtfAction::LineMultiple:
            state.lineMultiple = number != 0;
            SetLineHeight(state);
            return true;
        case RtfAction::Tab:
            AddTab(state, number);
            return true;
        case RtfAction::TabAlignment:
            state.nextTab = static_cast<TabAlignment>(word.value);
            return true;
        default:
            return false;
    }
}

}  // namespace tavrin::notes
