#pragma once

#include "forms/widget_control.h"

#include <map>
#include <memory>

namespace quarvel {

/// A control array: elements of one name, each with its index, made in the order of the control list, which
/// need not be the order of their indexes.
template <class Kind>
class ControlArray {
public:
    /// Makes an element; further arguments go to the kind's constructor.
    template <class... More>
    Kind& add(Container& container, const ControlSpec& spec, More&&... more) {
        auto made = std::make_unique<Kind>(container, spec, std::forward<More>(more)...);
        Kind& element = *made;
        elements_[*spec.index] = std::move(made);
        return element;
    }

    [[nodiscard]] Kind& operator[](int index) const { return *elements_.at(index); }
    [[nodiscard]] bool has(int index) const { return elements_.count(index) != 0; }
    [[nodiscard]] int size() const { return static_cast<int>(elements_.size()); }

    /// Calls `what(index, element)` for every element, by index.
    template <class What>
    void forEach(What&& what) const {
        for (const auto& [index, element] : elements_) what(index, *element);
    }

private:
    std::map<int, std::unique_ptr<Kind>> elements_;
};

} // namespace quarvel
