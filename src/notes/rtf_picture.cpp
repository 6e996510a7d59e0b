#include "notes/rtf_picture.h"

#include <algorithm>
#include <cstdint>
#include <utility>

#include "data/text/digits.h"
#include "notes/picture_size.h"

namespace tavrin::notes {

namespace {

constexpr int TwipsPerPixel = 15;

/// A length as the file says it, or that of the pixels.
int ToTwips(int said, int percent, std::size_t pixels) {
    const std::int64_t twips = said > 0 ? said : static_cast<std::int64_t>(pixels) * TwipsPerPixel;
    const std::int64_t scaled = percent > 0 ? twips * percent / 100 : twips;
    return static_cast<int>(std::clamp<std::int64_t>(scaled, 1, LongestLength));
}

}  // namespace

bool RtfPicture::TakesContent() {
    hasContent_ = true;
    return kind_ && bytes_.size() <= MaximumPictureBytes;
}

void RtfPicture::AddDigits(std::string_view text) {
    if (!TakesContent()) return;
    for (const char each : text) {
        const int digit = data::ValueOfHexDigit(each);
        if (digit < 0) continue;
        if (firstDigit_ < 0) {
            firstDigit_ = digit;
        } else {
            bytes_ += static_cast<char>(firstDigit_ << 4 | digit);
            firstDigit_ = -1;
        }
    }
}

void RtfPicture::AddBytes(std::string_view bytes) {
    if (TakesContent()) bytes_ += bytes;
}

std::optional<NotePicture> RtfPicture::Finish() {
    if (!kind_ || bytes_.size() > MaximumPictureBytes) return std::nullopt;
    const auto size = SizeOfPicture(*kind_, bytes_);
    if (!size) return std::nullopt;
    return NotePicture{*kind_, std::move(bytes_), ToTwips(width_, scaleX_, size->width),
                       ToTwips(height_, scaleY_, size->height)};
}

}  // namespace tavrin::notes
