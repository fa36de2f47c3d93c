#pragma once

#include <lvdata/core/DataObject.h>
#include <lvdata/export.h>

#include <string>
#include <vector>

namespace lv {

/// One map of luminance values over the screen, inside the element "Uniformity" or "Brightness".
///
/// To have a map written, fill `values` and set `valid`.
struct CandelaMapEntry {
    /// The values in stored order, element "Values", stored as they are: shape of the grid and unit not recorded.
    /// Written when `valid`, also when empty.
    std::vector<unsigned int> values{};

    /// When the map was last updated, element "UpdatedAt": any text, its form is not recorded. Written when `valid`,
    /// also when empty.
    std::string updatedAt{};

    /// Whether there is a map; not an element of its own. Set it for the map to be written. Parsing sets it to whether
    /// `values` then holds any number, an earlier document's included: an update time alone does not make a map.
    bool valid = false;
};

/// Two maps of luminance over the screen, flat lists of numbers that are stored as they are.
///
/// The elements "Uniformity" and "Brightness" are always written; they are empty when the map is not valid.
/// Version 1.0.
class LVDATA_EXPORT CandelaMap : public DataObject {
public:
    /// The name of the root element, compared exactly.
    static constexpr const char* rootElementName = "CandelaMap";

    /// A fresh record with nothing set, version 1.0.
    CandelaMap();

    /// Reads an element "CandelaMap". False, with nothing changed, when the element has a different name.
    bool parseXMLElement(XMLElement element) override;

    /// Appends an element "CandelaMap" to a document or an element and returns it; invalid when `parent` cannot take
    /// it.
    XMLElement appendXMLElement(XMLNode& parent) const override;

    /// Everything that a document of this record can contain, as a tree of its elements and attributes; the same for
    /// every record of the class.
    [[nodiscard]] static Description describe();

    /// The map of uniformity, element "Uniformity". The element is always written, its children when the map is valid.
    CandelaMapEntry uniformity;

    /// The map of brightness, element "Brightness". The element is always written, its children when the map is valid.
    CandelaMapEntry brightness;
};

/// \name Equality
/// Two records are equal when all members that documents hold are equal, flags and version numbers included. Values
/// whose flags are clear count, too. Not compared: `writeHLGSystemGamma`.
/// @{
[[nodiscard]] LVDATA_EXPORT bool operator==(const CandelaMapEntry& left, const CandelaMapEntry& right);
[[nodiscard]] inline bool operator!=(const CandelaMapEntry& left, const CandelaMapEntry& right) {
    return !(left == right);
}
[[nodiscard]] LVDATA_EXPORT bool operator==(const CandelaMap& left, const CandelaMap& right);
[[nodiscard]] inline bool operator!=(const CandelaMap& left, const CandelaMap& right) {
    return !(left == right);
}
/// @}

}  // namespace lv
