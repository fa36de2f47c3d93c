#pragma once

#include <vector>

namespace tinyxml2 {
class XMLElement;
}  // namespace tinyxml2

namespace lv::detail {

/// The first child element of that name; null when there is none or the parent is null.
[[nodiscard]] tinyxml2::XMLElement* findChild(tinyxml2::XMLElement* parent, const char* name);

/// All child elements of that name, in document order.
[[nodiscard]] std::vector<tinyxml2::XMLElement*> findChildren(tinyxml2::XMLElement* parent, const char* name);

/// Finds child elements by name: at once where they are asked for in the order in which they stand, else by a walk over
/// those that are left.
///
/// The children found one after another from the first on are not looked at again, so no name may be asked for twice.
/// Each answer then is the first child of that name, in whatever order they stand and are asked for; null when there is
/// none or the parent is null.
class ChildFinder {
public:
    explicit ChildFinder(tinyxml2::XMLElement* parent);

    [[nodiscard]] tinyxml2::XMLElement* find(const char* name);

private:
    tinyxml2::XMLElement* next_;  // the first child not yet found in unbroken order
};

}  // namespace lv::detail
