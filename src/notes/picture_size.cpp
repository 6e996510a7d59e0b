#include "notes/picture_size.h"

#include <cstdint>

namespace tavrin::notes {

namespace {

using namespace std::string_view_literals;

constexpr std::string_view PngStart = "\x89PNG\r\n\x1A\n\0\0\0\rIHDR"sv;
constexpr std::string_view PngEnd = "IEND"sv;
constexpr std::size_t PngSizePlace = 16;

constexpr std::string_view JpegStart = "\xFF\xD8\xFF"sv;
constexpr unsigned char JpegScan = 0xDA;

std::size_t Number(std::string_view bytes, std::size_t place, std::size_t length) {
    std::size_t number = 0;
    for (const char byte : bytes.substr(place, length))
        number = number << 8U | static_cast<unsigned char>(byte);
    return number;
}

std::optional<PixelSize> Checked(PixelSize size) {
    const bool sound = size.width > 0 && size.height > 0 && size.width <= MaximumPixels &&
                       size.height <= MaximumPixels / size.width;
    return sound ? std::optional(size) : std::nullopt;
}

std::optional<PixelSize> SizeOfPng(std::string_view bytes) {
    const bool whole = bytes.starts_with(PngStart) && bytes.size() > PngSizePlace + 8 &&
                       bytes.rfind(PngEnd) != std::string_view::npos;
    if (!whole) return std::nullopt;
    return Checked({Number(bytes, PngSizePlace, 4), Number(bytes, PngSizePlace + 4, 4)});
}

/// The segments that tell the size of what follows; three of that row tell of other things.
bool TellsSize(unsigned char marker) {
    return marker >= 0xC0 && marker <= 0xCF && marker != 0xC4 && marker != 0xC8 && marker != 0xCC;
}

std::optional<PixelSize> SizeOfJpeg(std::string_view bytes) {
    if (!bytes.starts_with(JpegStart)) return std::nullopt;
    for (std::size_t place = 2; place + 9 <= bytes.size();) {
        const auto marker = static_cast<unsigned char>(bytes[place + 1]);
        if (bytes[place] != '\xFF' || marker == JpegScan) break;
        if (TellsSize(marker)) return Checked({Number(bytes, place + 7, 2), Number(bytes, place + 5, 2)});
        place += marker == 0xFF ? 1 : 2 + Number(bytes, place + 2, 2);
    }
    return std::nullopt;
}

}  // namespace

std::optional<PixelSize> SizeOfPicture(PictureKind kind, std::string_view bytes) {
    return kind == PictureKind::Png ? SizeOfPng(bytes) : SizeOfJpeg(bytes);
}

}  // namespace tavrin::notes
