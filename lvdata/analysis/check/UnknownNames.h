#pragma once

#include <lvdata/analysis/Shape.h>
#include <lvdata/analysis/check/Reporter.h>

#include <string>
#include <string_view>
#include <unordered_map>

namespace lv::analysis {

/// Makes findings about elements and attributes that the record does not know, with a suggestion for the intended name.
class UnknownNames {
public:
    /// The shape of the root element, which must outlive the object.
    explicit UnknownNames(const Shape& root) : root_(root) {}

    /// An element that its parent, the current element, does not know.
    void reportElement(Reporter& reporter, const Shape& parent, const Node& element);

    /// An attribute that its element, the current element, does not know.
    static void reportAttribute(Reporter& reporter, const Shape& parent, const Node& attribute);

private:
    [[nodiscard]] const Shape* placeOf(std::string_view name);

    const Shape& root_;
    std::unordered_map<std::string_view, const Shape*> places_{};  // of all elements by name, made when first needed
};

}  // namespace lv::analysis
