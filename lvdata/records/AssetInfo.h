#pragma once

#include <lvdata/core/DataObject.h>
#include <lvdata/export.h>

#include <string>

namespace lv {

/// Eight free labels that a user or an organisation attaches to a monitor: inventory numbers, locations and the like.
///
/// The library gives them no meaning. Each is written when it is set, also when its text is empty, as the child
/// "Asset1" to "Asset8" of the root element. Version 1.0.
class LVDATA_EXPORT AssetInfo : public DataObject {
public:
    /// The name of the root element.
    static constexpr const char* rootElementName = "AssetInfo";

    AssetInfo();

    bool parseXMLElement(XMLElement element) override;
    XMLElement appendXMLElement(XMLNode& parent) const override;

    /// What a document of this record consists of.
    [[nodiscard]] static Description describe();

    /// The labels, elements "Asset1" to "Asset8".
    property<std::string> asset1;
    property<std::string> asset2;
    property<std::string> asset3;
    property<std::string> asset4;
    property<std::string> asset5;
    property<std::string> asset6;
    property<std::string> asset7;
    property<std::string> asset8;
};

/// \name Equality
/// Two records are equal when all members that documents hold are, flags and version numbers included. Not compared:
/// `writeHLGSystemGamma`.
/// @{
[[nodiscard]] LVDATA_EXPORT bool operator==(const AssetInfo& left, const AssetInfo& right);
[[nodiscard]] inline bool operator!=(const AssetInfo& left, const AssetInfo& right) {
    return !(left == right);
}
/// @}

}  // namespace lv
