#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <functional>
#include <memory>
#include <numeric>
#include <string>
#include <string_view>
#include <type_traits>
#include <utility>

#include "forms/model/control.h"

namespace tavrin::forms {

/// Controls that share a name and a role; one handler serves them all and is told the element's index.
/// Indices start at 0 unless the array is given others: they may have gaps.
template <class Element, std::size_t Count>
class ControlArray {
  public:
    using Indices = std::array<int, Count>;

    ControlArray(Container& parent, std::string_view name) : ControlArray(parent, name, Counted()) {}

    ControlArray(Container& parent, std::string_view name, const Indices& indices) {
        for (std::size_t i = 0; i < Count; ++i) {
            elements_[i] = std::make_unique<Element>(parent, name);
            elements_[i]->SetIndex(indices[i]);
        }
    }

    /// Elements that stand in different containers: `parentOf(index)` gives each one's.
    template <class ParentOf>
    requires std::is_invocable_r_v<Container&, ParentOf, int> ControlArray(ParentOf parentOf,
                                                                           std::string_view name) {
        for (std::size_t i = 0; i < Count; ++i) {
            const int index = static_cast<int>(i);
            elements_[i] = std::make_unique<Element>(parentOf(index), name);
            elements_[i]->SetIndex(index);
        }
    }

    /// The element with that index; there must be one.
    Element& operator[](int index) { return **Find(index); }
    const Element& operator[](int index) const { return **Find(index); }

    /// Sets the handler of one event of every element: `OnEach(&Control::onClick, [this](int index) {...})`.
    template <class... Arguments, class Handler>
    void OnEach(std::function<void(Arguments...)> Control::*event, Handler handler) {
        for (auto& element : elements_) {
            element.get()->*event = [handler, index = element->Index()](Arguments... arguments) {
                handler(index, std::forward<Arguments>(arguments)...);
            };
        }
    }

    auto begin() { return elements_.begin(); }
    auto end() { return elements_.end(); }
    auto begin() const { return elements_.begin(); }
    auto end() const { return elements_.end(); }

  private:
    static Indices Counted() {
        Indices indices;
        std::iota(indices.begin(), indices.end(), 0);
        return indices;
    }

    auto Find(int index) const {
        return std::ranges::find_if(elements_,
                                    [index](const auto& element) { return element->Index() == index; });
    }

    std::array<std::unique_ptr<Element>, Count> elements_;
};

}  // namespace tavrin::forms
