#pragma once

#include <windows.h>

#include <richedit.h>

#include "forms/model/character_format.h"

namespace tavrin::win32 {

// The model's character formats and those of the platform's rich text control.

forms::CharacterFormat ToCharacterFormat(const CHARFORMAT2W& format);
CHARFORMAT2W ToPlatformFormat(const forms::CharacterFormat& format);

}  // namespace tavrin::win32
