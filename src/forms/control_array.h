#pragma once

#include <array>
#include <cstddef>
#include <functional>
#include <memory>
#include <string>
#include <utility>

#include "forms/control.h"

namespace tavrin::forms {

/// Controls that share a name and a role; one handler serves them all and is told the element's index.
/// `First` is the index of the first element.
template <class Element, std::size_t Count>
class ControlArray {
  public:
    ControlArray(Container& parent, const std::string& name) {
        for (std::size_t i = 0; i < Count; ++i) {
            elements_[i] = std::make_unique<Element>(parent, name);
            elements_[i]->SetIndex(static_cast<int>(i));
        }
    }

    Element& operator[](int index) { return *elements_[static_cast<std::size_t>(index)]; }
    const Element& operator[](int index) const { return *elements_[static_cast<std::size_t>(index)]; }
    static constexpr int Size() { return static_cast<int>(Count); }

    /// Sets the handler of one event of every element: `OnEach(&Control::onClick, [this](int index) {...})`.
    template <class... Arguments, class Handler>
    void OnEach(std::function<void(Arguments...)> Control::*event, Handler handler) {
        for (int i = 0; i < Size(); ++i) {
            (*this)[i].*event = [handler, i](Arguments... arguments) {
                handler(i, std::forward<Arguments>(arguments)...);
            };
        }
    }

    auto begin() { return elements_.begin(); }
    auto end() { return elements_.end(); }

  private:
    std::array<std::unique_ptr<Element>, Count> elements_;
};

}  // namespace tavrin::forms
