#include "forms/controls/command_button.h"

#include <algorithm>

#include "data/text/utf8.h"
#include "forms/controls/look.h"
#include "forms/model/form.h"

namespace tavrin::forms {

namespace {

constexpr int LargestIconBesideCaption = 300;  ///< twips
constexpr int LargestIcon = 480;

/// The byte of the caption to underline, -1 for none.
int FindAccelerator(std::string_view caption, char32_t letter) {
    if (letter == 0) return -1;
    const auto matches = [letter](char byte) {
        return data::LowerCase(static_cast<unsigned char>(byte)) == data::LowerCase(letter);
    };
    const auto* const found = std::ranges::find_if(caption, matches);
    return found == caption.end() ? -1 : static_cast<int>(found - caption.begin());
}

std::string_view WithoutLeadingBlanks(std::string_view text) {
    return text.substr(std::min(text.find_first_not_of(' '), text.size()));
}

}  // namespace

CommandButton::CommandButton(Container& parent, std::string_view name, std::string_view caption, Rect bounds)
    : Control(parent, name, bounds), caption_(caption) {}

void CommandButton::SetCaption(std::string_view caption) {
    if (caption_ == caption) return;
    caption_ = caption;
    Repaint();
}

void CommandButton::SetAccelerator(char32_t letter) {
    if (accelerator_ == letter) return;
    accelerator_ = letter;
    Repaint();
}

void CommandButton::SetPicture(Icon picture) {
    if (picture_ == picture) return;
    picture_ = picture;
    Repaint();
}

Color CommandButton::FaceColor() const {
    if (!IsEffectivelyEnabled()) return scheme::Window;
    if (IsPressed() && IsHot()) return scheme::FacePressed;
    return IsHot() || HasFocus() ? scheme::FaceHot : scheme::Face;
}

void CommandButton::Draw(Surface& surface) const {
    surface.FillRectangle(look::AreaOf(*this), FaceColor());
    look::DrawBorder(surface, *this);
    if (caption_.empty()) {
        DrawPicture(surface);
    } else if (picture_ == Icon::None) {
        DrawCaption(surface, look::AreaOf(*this).Inset(look::Padding, look::FocusWidth), caption_,
                    Align::Center);
    } else {
        DrawPictureAndCaption(surface);
    }
}

void CommandButton::DrawPicture(Surface& surface) const {
    const Rect inner = look::AreaOf(*this).Inset(look::Padding);
    const int side = std::min({inner.width, inner.height, LargestIcon});
    DrawIcon(surface, picture_, {(Bounds().width - side) / 2, (Bounds().height - side) / 2, side, side},
             look::TextStyleOf(*this).color);
}

void CommandButton::DrawPictureAndCaption(Surface& surface) const {
    const Rect inner = look::AreaOf(*this).Inset(look::Padding);
    const int side = std::min({inner.width, inner.height, LargestIconBesideCaption});
    DrawIcon(surface, picture_, {inner.left, (Bounds().height - side) / 2, side, side},
             look::TextStyleOf(*this).color);
    const int left = inner.left + side + look::Padding;
    const Rect text{left, look::FocusWidth, std::max(0, inner.Right() - left),
                    std::max(0, Bounds().height - 2 * look::FocusWidth)};
    DrawCaption(surface, text, WithoutLeadingBlanks(caption_), Align::Left);
}

void CommandButton::DrawCaption(Surface& surface, const Rect& area, std::string_view text,
                                Align align) const {
    TextStyle style = look::TextStyleOf(*this);
    style.align = align;
    style.accelerator = FindAccelerator(text, accelerator_);
    surface.DrawText(text, area, style);
}

AccessibleNode CommandButton::Accessible() const {
    AccessibleNode node = Control::Accessible();
    node.role = Role::PushButton;
    node.accelerator = accelerator_;
    const std::string_view caption = WithoutLeadingBlanks(caption_);
    if (AccessibleName().empty() && !caption.empty()) node.name = caption;
    return node;
}

KeyOutcome CommandButton::DefaultKeyDown(int keyCode, Modifiers modifiers) {
    if (modifiers.alt || modifiers.control) return Control::DefaultKeyDown(keyCode, modifiers);
    switch (keyCode) {
        case key::Enter:
        case key::Space:
            Click();
            break;
        case key::Down:
        case key::Right:
            OwnerForm().FocusNext();
            break;
        case key::Up:
        case key::Left:
            OwnerForm().FocusPrevious();
            break;
        default:
            return Control::DefaultKeyDown(keyCode, modifiers);
    }
    return KeyOutcome::Done;
}

}  // namespace tavrin::forms
