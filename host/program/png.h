#pragma once

#include <windows.h>

#include <string>

namespace tavrin::host {

/// Saves what stands in a rectangle of the screen, in pixels. \throws data::Error
void SavePng(const RECT& place, const std::wstring& path);

}  // namespace tavrin::host
