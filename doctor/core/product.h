#pragma once

namespace tavrin::doctor {

/// The version that this program was built as: of the product, which the packages' names have, and with the
/// number of the build.
extern const char* const ProductVersion;
extern const char* const BuildVersion;

}  // namespace tavrin::doctor
