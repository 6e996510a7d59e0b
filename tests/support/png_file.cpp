#include "support/png_file.h"

#include <algorithm>
#include <array>
#include <fstream>
#include <stdexcept>
#include <string_view>
#include <vector>

namespace tavrin::tests {

namespace {

using Bytes = std::vector<std::uint8_t>;

void AppendNumber(Bytes& bytes, std::uint32_t number) {
    for (const int shift : {24, 16, 8, 0})
        bytes.push_back(static_cast<std::uint8_t>(number >> shift & 0xFF));
}

std::uint32_t Crc(std::span<const std::uint8_t> bytes) {
    std::uint32_t crc = 0xFFFFFFFF;
    for (const std::uint8_t byte : bytes) {
        crc ^= byte;
        for (int bit = 0; bit < 8; ++bit)
            crc = (crc & 1) != 0 ? crc >> 1 ^ 0xEDB88320 : crc >> 1;
    }
    return ~crc;
}

std::uint32_t Adler(std::span<const std::uint8_t> bytes) {
    std::uint32_t low = 1;
    std::uint32_t high = 0;
    for (const std::uint8_t byte : bytes) {
        low = (low + byte) % 65521;
        high = (high + low) % 65521;
    }
    return high << 16 | low;
}

void AppendChunk(Bytes& file, std::string_view type, std::span<const std::uint8_t> content) {
    AppendNumber(file, static_cast<std::uint32_t>(content.size()));
    Bytes checked(type.begin(), type.end());
    checked.insert(checked.end(), content.begin(), content.end());
    file.insert(file.end(), checked.begin(), checked.end());
    AppendNumber(file, Crc(checked));
}

/// A zlib stream of stored blocks.
Bytes Stored(std::span<const std::uint8_t> content) {
    constexpr std::size_t LargestBlock = 65535;
    Bytes stream{0x78, 0x01};
    for (std::size_t start = 0; start < content.size(); start += LargestBlock) {
        const std::size_t length = std::min(LargestBlock, content.size() - start);
        stream.push_back(start + length == content.size() ? 1 : 0);
        for (const std::size_t number : {length, ~length}) {
            stream.push_back(static_cast<std::uint8_t>(number & 0xFF));
            stream.push_back(static_cast<std::uint8_t>(number >> 8 & 0xFF));
        }
        const auto block = content.subspan(start, length);
        stream.insert(stream.end(), block.begin(), block.end());
    }
    AppendNumber(stream, Adler(content));
    return stream;
}

}  // namespace

void WritePngFile(const std::string& path, int width, int height, std::span<const std::uint8_t> rgb) {
    const auto rowLength = static_cast<std::size_t>(width) * 3;
    Bytes rows;
    for (int y = 0; y < height; ++y) {
        rows.push_back(0);  // no filter
        const auto row = rgb.subspan(static_cast<std::size_t>(y) * rowLength, rowLength);
        rows.insert(rows.end(), row.begin(), row.end());
    }
    Bytes header;
    AppendNumber(header, static_cast<std::uint32_t>(width));
    AppendNumber(header, static_cast<std::uint32_t>(height));
    for (const std::uint8_t byte :
         std::initializer_list<std::uint8_t>{8, 2, 0, 0, 0})  // 8 bits a channel, red, green, blue
        header.push_back(byte);

    Bytes file{0x89, 'P', 'N', 'G', '\r', '\n', 0x1A, '\n'};
    AppendChunk(file, "IHDR", header);
    AppendChunk(file, "IDAT", Stored(rows));
    AppendChunk(file, "IEND", {});
    std::ofstream stream(path, std::ios::binary);
    stream.write(reinterpret_cast<const char*>(file.data()), static_cast<std::streamsize>(file.size()));
    if (!stream.flush()) throw std::runtime_error("cannot write " + path);
}

}  // namespace tavrin::tests
