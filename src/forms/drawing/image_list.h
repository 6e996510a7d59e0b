#pragma once

#include <cstddef>
#include <initializer_list>
#include <utility>
#include <vector>

#include "forms/drawing/icon.h"

namespace tavrin::forms {

/// The pictures of a window by their one-based number; a number that the list lacks gives none.
class ImageList {
  public:
    ImageList(std::initializer_list<Icon> images) : images_(images) {}

    /// Pictures under numbers of their own; the numbers between have none.
    ImageList(std::initializer_list<std::pair<int, Icon>> numbered) {
        for (const auto& [number, icon] : numbered) {
            const auto place = static_cast<std::size_t>(number);
            if (images_.size() < place) images_.resize(place, Icon::None);
            images_[place - 1] = icon;
        }
    }

    Icon Picture(int number) const {
        return number >= 1 && number <= static_cast<int>(images_.size())
                   ? images_[static_cast<std::size_t>(number - 1)]
                   : Icon::None;
    }

  private:
    std::vector<Icon> images_;
};

}  // namespace tavrin::forms
