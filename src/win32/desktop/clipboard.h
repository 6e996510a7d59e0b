#pragma once

#include <windows.h>

#include <string>

#include "forms/model/copied.h"
#include "win32/base/handles.h"
#include "win32/paint/dib_canvas.h"
#include "win32/paint/font_cache.h"
#include "win32/system/scale.h"

namespace tavrin::win32 {

/// The clipboard, opened and emptied for as long as this is there.
class Clipboard {
  public:
    /// \throws data::Error where another program keeps it open
    explicit Clipboard(HWND owner);
    ~Clipboard() { CloseClipboard(); }
    Clipboard(const Clipboard&) = delete;
    Clipboard& operator=(const Clipboard&) = delete;

    /// \throws data::Error where the system does not take it
    void Put(UINT format, OwnedGlobal memory) const;
};

/// For CF_UNICODETEXT. \throws std::bad_alloc
OwnedGlobal TextMemory(const std::string& text);
/// For CF_DIB, 32 bits a pixel: what the picture's function draws at that scale. \throws std::bad_alloc
OwnedGlobal PictureMemory(const forms::Copied& copied, DibCanvas& canvas, FontCache& fonts, Scale scale);

}  // namespace tavrin::win32
