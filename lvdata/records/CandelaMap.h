#pragma once

#include <lvdata/core/DataObject.h>
#include <lvdata/export.h>

#include <string>
#include <vector>

namespace lv {

/// One map of luminance values over the screen.
struct CandelaMapEntry {
    /// The values in stored order, element "Values"; grid and unit are the application's.
    std::vector<unsigned int> values{};

    /// When the map was last updated, as any text, element "UpdatedAt".
    std::string updatedAt{};

    /// Whether the map is present: the caller sets it for the map to be written. After parsing it tells whether
    /// `values` then holds any; an update time alone does not make a map.
    bool valid = false;
};

/// The maps of luminance over the screen, flat lists that are stored and handed on as they stand.
///
/// The elements "Uniformity" and "Brightness" are written always; both their children, also when empty, when the map is
/// valid. Version 1.0.
class LVDATA_EXPORT CandelaMap : public DataObject {
public:
    /// The name of the root element.
    static constexpr const char* rootElementName = "CandelaMap";

    CandelaMap();

    bool parseXMLElement(XMLElement element) override;
    XMLElement appendXMLElement(XMLNode& parent) const override;

    /// What a document of this record consists of.
    [[nodiscard]] static Description describe();

    /// Element "Uniformity".
    CandelaMapEntry uniformity;

    /// Element "Brightness".
    CandelaMapEntry brightness;
};

/// \name Equality
/// Two records are equal when all members that documents hold are, flags and version numbers included. Not compared:
/// `writeHLGSystemGamma`.
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
