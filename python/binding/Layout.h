#pragma once

#include <lvdata/analysis/Catalogue.h>

#include <cstddef>
#include <memory>
#include <string>
#include <vector>

namespace lv::python {

struct Layout;

/// One place in an element, with the facts that Python needs often.
struct Member {
    /// The kind of its content.
    enum class Kind {
        attribute,  ///< The text of an attribute.
        ownText,    ///< The text of the element itself.
        plain,      ///< The text of a child element that has nothing else.
        element,    ///< A child element.
        rows,       ///< Any number of child elements.
    };

    const analysis::Shape* shape = nullptr;  ///< What the description says of it.
    const analysis::Shape* text = nullptr;   ///< The shape of its text, or the first of several; null when it has none.
    Kind kind = Kind::plain;                 ///< What stands in the place.
    const Layout* nested = nullptr;          ///< Of the child elements; null for texts.
    bool isGoverned = false;                 ///< Whether the switch `writeHLGSystemGamma` decides that it is written.
    bool isShadowed = false;  ///< A further text of the same element: it is kept in the place of the first.

    /// The name of the attribute in Python.
    [[nodiscard]] std::string key() const;

    /// Whether it is one of several that have the same name and different keys.
    [[nodiscard]] bool isKeyed() const;
};

/// A class of elements: the places that its objects have. A record inside another one has the layout of its own class,
/// so that the same objects fit into both. Never changes.
struct Layout {
    const analysis::Shape* shape = nullptr;             ///< What the description says of it.
    const analysis::Catalogue::Entry* entry = nullptr;  ///< The record class; null for anything else.
    const Layout* parent = nullptr;                     ///< Of the element that it is described in; null for a record.
    std::size_t id = 0;                                 ///< Its index among all layouts.
    std::string className{};                            ///< The name of the class in Python: "ColorMode".
    std::string name{};                                 ///< The same within its record: "ColorModeSettings.ColorMode".
    std::vector<Member> members{};                      ///< One for each child of the shape, in their order.

    /// The same, with the name of a member: "ColorModeSettings.ColorMode.type".
    [[nodiscard]] std::string pathOf(std::size_t index) const;
};

/// All layouts, each record class before the elements in it. Made when it is first needed.
[[nodiscard]] const std::vector<std::unique_ptr<Layout>>& layouts();

/// The layout of a record class of that name; null when there is none.
[[nodiscard]] const Layout* layoutOfRecord(std::string_view rootElementName);

}  // namespace lv::python
