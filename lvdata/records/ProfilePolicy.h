#pragma once

#include <lvdata/core/DataObject.h>
#include <lvdata/export.h>

#include <string>

namespace lv {

/// Rules for creating and updating the colour profile of a colour mode.
///
/// All members are texts or booleans that the library does not interpret: the possible texts are defined by the
/// application. Version 2.0.
class LVDATA_EXPORT ProfilePolicy : public DataObject {
public:
    /// The name of the root element, compared exactly.
    static constexpr const char* rootElementName = "ProfilePolicy";

    /// A fresh record with nothing set, version 2.0.
    ProfilePolicy();

    /// Reads an element "ProfilePolicy". False, with nothing changed, when the element has a different name.
    bool parseXMLElement(XMLElement element) override;

    /// Appends an element "ProfilePolicy" to a document or an element and returns it; invalid when `parent` cannot take
    /// it.
    XMLElement appendXMLElement(XMLNode& parent) const override;

    /// Everything that a document of this record can contain, as a tree of its elements and attributes; the same for
    /// every record of the class.
    [[nodiscard]] static Description describe();

    /// The rule for updating the profile: attribute "Type" of the element "UpdateRule". Written when set; without it
    /// the whole element is omitted.
    property<std::string> updateRule;

    /// Description of the profile that the rule produces, element "ProfileDescription" inside "UpdateRule". Written
    /// when it and `updateRule` are set; without a rule it is lost.
    property<std::string> profileDescription;

    /// Name of the profile that the rule produces, element "ProfileName" inside "UpdateRule". Written when it and
    /// `updateRule` are set; without a rule it is lost.
    property<std::string> profileName;

    /// Content of the profile that the rule produces, element "Content" inside "UpdateRule". Written when it and
    /// `updateRule` are set; without a rule it is lost.
    property<std::string> content;

    /// Version of the profile format, element "ProfileVersion". Written when set.
    property<std::string> profileVersion;

    /// Kind of the profile's tone curve, element "ToneCurve". Written when set.
    property<std::string> toneCurve;

    /// Whether the profile reflects black levels, element "ReflectBlackLevels". Written when set, even if false.
    property<bool> reflectBlackLevels;

    /// Whether to create a 3D look-up table, element "Create3DLut". Written when set, even if false.
    property<bool> create3DLut;

    /// Whether to create a luminance tag, element "CreateLuminanceTag". Written when set, even if false.
    property<bool> createLuminanceTag;
};

/// \name Equality
/// Two records are equal when all members that documents hold are equal, including flags and version numbers.
/// Values with clear flags are compared, too. Not compared: `writeHLGSystemGamma`.
/// @{
[[nodiscard]] LVDATA_EXPORT bool operator==(const ProfilePolicy& left, const ProfilePolicy& right);
[[nodiscard]] inline bool operator!=(const ProfilePolicy& left, const ProfilePolicy& right) {
    return !(left == right);
}
/// @}

}  // namespace lv
