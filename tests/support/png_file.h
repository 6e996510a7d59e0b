#pragma once

#include <cstdint>
#include <span>
#include <string>

namespace tavrin::tests {

/// Writes a picture as PNG, uncompressed. `rgb` holds three bytes a pixel, rows from the top.
/// \throws std::runtime_error when the file cannot be written
void WritePngFile(const std::string& path, int width, int height, std::span<const std::uint8_t> rgb);

}  // namespace tavrin::tests
