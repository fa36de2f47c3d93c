#pragma once

#include <lvdata/core/DataObject.h>
#include <lvdata/export.h>

#include <string>
#include <vector>

namespace lv {

/// One map of luminance values over the screen, inside the element "Uniformity" or "Brightness".
///
/// A map is written only if `valid` is set: fill `values` and set `valid`.
struct CandelaMapEntry {
    /// The values in stored order, element "Values", unscaled. The shape of the grid and the unit are not recorded.
    /// Written when `valid` is set, even if empty.
    std::vector<unsigned int> values{};

    /// When the map was last updated, element "UpdatedAt": any text; the format is not recorded. Written when `valid`
    /// is set, even if empty.
    std::string updatedAt{};

    /// Whether there is a map; it has no element. Set it to have the map written. Parsing sets it to whether
    /// `values` then holds any number, even one from an earlier document: an update time alone is not a map.
    bool valid = false;
};

/// Two maps of luminance over the screen: flat lists of unscaled numbers.
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

    /// The map of uniformity, element "Uniformity". The element is always written, its children only when the map is
    /// valid.
    CandelaMapEntry uniformity;

    /// The map of brightness, element "Brightness". The element is always written, its children only when the map is
    /// valid.
    CandelaMapEntry brightness;
};

/// \name Equality
/// Two records are equal when all members that documents hold are equal, including flags and version numbers.
/// Values with clear flags are compared, too. Not compared: `writeHLGSystemGamma`.
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
