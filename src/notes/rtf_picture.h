#pragma once

#include <optional>
#include <string_view>

#include "notes/note.h"

namespace tavrin::notes {

/// Takes in what a file says of a picture. PNG and JPEG are kept: they are checked here for their size, and
/// decoders expect them to come from anywhere. Metafiles are programs of a kind, bitmaps trust what their
/// heads say, and some editors cut a note short where one of them stands.
class RtfPicture {
  public:
    void SetKind(PictureKind kind) { kind_ = kind; }
    void SetWidth(int twips) { width_ = twips; }
    void SetHeight(int twips) { height_ = twips; }
    void SetScaleX(int percent) { scaleX_ = percent; }
    void SetScaleY(int percent) { scaleY_ = percent; }

    void AddDigits(std::string_view text);
    void AddBytes(std::string_view bytes);

    /// Whether there was anything of a picture at all.
    bool HasContent() const { return hasContent_; }
    /// The picture, if it is one that a note may hold.
    std::optional<NotePicture> Finish();

  private:
    bool TakesContent();

    std::optional<PictureKind> kind_;
    std::string bytes_;
    int width_ = 0;
    int height_ = 0;
    int scaleX_ = 100;
    int scaleY_ = 100;
    int firstDigit_ = -1;
    bool hasContent_ = false;
};

}  // namespace tavrin::notes
