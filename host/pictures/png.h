#pragma once

#include <string>

#include "host/pictures/screen_picture.h"

namespace tavrin::host {

/// \throws data::Error where the file cannot be written
void SavePng(ScreenPicture picture, const std::wstring& path);

}  // namespace tavrin::host
