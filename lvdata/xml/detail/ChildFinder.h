#pragma once

#include <vector>

namespace tinyxml2 {
class XMLElement;
}  // namespace tinyxml2

namespace lv::detail {

/// Whether the element has that name; false when it is null.
[[nodiscard]] bool isNamed(const tinyxml2::XMLElement* element, const char* name);

/// The first child element of that name; null when there is none or the parent is null.
[[nodiscard]] tinyxml2::XMLElement* findChild(tinyxml2::XMLElement* parent, const char* name);

/// All child elements of that name, in document order.
[[nodiscard]] std::vector<tinyxml2::XMLElement*> findChildren(tinyxml2::XMLElement* parent, const char* name);

/// Finds child elements by name. Ask for each name at most once: then each answer is the first child of that name, in
/// whatever order the children stand and are asked for; null when there is none or the parent is null.
///
/// Children that are found one after another, from the first on, are not looked at again. So in the usual order each is
/// found directly. A copy goes on from there by itself.
class ChildFinder {
public:
    explicit ChildFinder(tinyxml2::XMLElement* parent);

    [[nodiscard]] tinyxml2::XMLElement* find(const char* name);

private:
    tinyxml2::XMLElement* next_;  // the first child not yet found in unbroken order
};

}  // namespace lv::detail
