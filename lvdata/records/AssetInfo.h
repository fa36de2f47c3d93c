#pragma once

#include <lvdata/core/DataObject.h>
#include <lvdata/export.h>

#include <string>

namespace lv {

/// Eight free labels that a user or an organisation attaches to a monitor: inventory numbers, locations and the like.
///
/// The library does not interpret them. Each is a child of the root element, and is written when it is set, even if its
/// text is empty. Version 1.0.
class LVDATA_EXPORT AssetInfo : public DataObject {
public:
    /// The name of the root element, compared exactly.
    static constexpr const char* rootElementName = "AssetInfo";

    /// A fresh record with nothing set, version 1.0.
    AssetInfo();

    /// Reads an element "AssetInfo". False, with nothing changed, when the element has a different name.
    bool parseXMLElement(XMLElement element) override;

    /// Appends an element "AssetInfo" to a document or an element and returns it; invalid when `parent` cannot take it.
    XMLElement appendXMLElement(XMLNode& parent) const override;

    /// Everything that a document of this record can contain, as a tree of its elements and attributes; the same for
    /// every record of the class.
    [[nodiscard]] static Description describe();

    property<std::string> asset1;  ///< Label 1, element "Asset1". Written when set.
    property<std::string> asset2;  ///< Label 2, element "Asset2". Written when set.
    property<std::string> asset3;  ///< Label 3, element "Asset3". Written when set.
    property<std::string> asset4;  ///< Label 4, element "Asset4". Written when set.
    property<std::string> asset5;  ///< Label 5, element "Asset5". Written when set.
    property<std::string> asset6;  ///< Label 6, element "Asset6". Written when set.
    property<std::string> asset7;  ///< Label 7, element "Asset7". Written when set.
    property<std::string> asset8;  ///< Label 8, element "Asset8". Written when set.
};

/// \name Equality
/// Two records are equal when all members that documents hold are equal, including flags and version numbers.
/// Values with clear flags are compared, too. Not compared: `writeHLGSystemGamma`.
/// @{
[[nodiscard]] LVDATA_EXPORT bool operator==(const AssetInfo& left, const AssetInfo& right);
[[nodiscard]] inline bool operator!=(const AssetInfo& left, const AssetInfo& right) {
    return !(left == right);
}
/// @}

}  // namespace lv
