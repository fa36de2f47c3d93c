#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace lv::detail {

/// What separates the values of an array in every document.
inline constexpr const char* arraySeparator = "|";

/// The first child element of that name, as a handle; null when there is none or `parent` is no element.
[[nodiscard]] void* findChild(void* parent, const char* name);

/// The next element of that name among the siblings behind `element`; null when there is none.
[[nodiscard]] void* findNext(void* element, const char* name);

/// Finds child elements by name: at once where they are asked for in the order in which they stand, else by a walk over
/// those that are left.
///
/// The children found one after another from the first on are not looked at again, so no name may be asked for twice.
/// Each answer then is the first child of that name, in whatever order they stand and are asked for; null when there is
/// none or the parent is no element.
class ChildFinder {
public:
    explicit ChildFinder(void* parent);

    [[nodiscard]] void* find(const char* name);

private:
    void* next_;  // the first child not yet found in unbroken order
};

/// Reads the text of the element behind a handle. True when it was found, else `out` is untouched; the getters of
/// `XMLElement` state for each type what counts as found and how it is converted.
[[nodiscard]] bool readText(void* element, std::string& out);
[[nodiscard]] bool readText(void* element, int& out);
[[nodiscard]] bool readText(void* element, unsigned int& out);
[[nodiscard]] bool readText(void* element, bool& out);
[[nodiscard]] bool readText(void* element, std::vector<int>& out, std::string_view separator = arraySeparator);
[[nodiscard]] bool readText(void* element, std::vector<unsigned int>& out, std::string_view separator = arraySeparator);

/// The same for an attribute.
[[nodiscard]] bool readAttribute(void* element, const char* name, std::string& out);
[[nodiscard]] bool readAttribute(void* element, const char* name, int& out);
[[nodiscard]] bool readAttribute(void* element, const char* name, unsigned int& out);

}  // namespace lv::detail
