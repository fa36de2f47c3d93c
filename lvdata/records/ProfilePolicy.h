#pragma once

#include <lvdata/core/DataObject.h>
#include <lvdata/export.h>

#include <string>

namespace lv {

/// How the colour profile of a colour mode is to be made and kept up to date.
///
/// All fields are opaque text or switches; which texts there are is the application's choice. Version 2.0.
class LVDATA_EXPORT ProfilePolicy : public DataObject {
public:
    /// The name of the root element.
    static constexpr const char* rootElementName = "ProfilePolicy";

    ProfilePolicy();

    bool parseXMLElement(XMLElement element) override;
    XMLElement appendXMLElement(XMLNode& parent) const override;

    /// What a document of this record consists of.
    [[nodiscard]] static Description describe();

    /// The update rule: attribute "Type" of the element "UpdateRule", which is written only when this is set.
    property<std::string> updateRule;

    /// What the rule produces: "ProfileDescription", "ProfileName" and "Content" inside "UpdateRule". Written when both
    /// they and the rule are set: without a rule they are lost on a round trip.
    property<std::string> profileDescription;
    property<std::string> profileName;
    property<std::string> content;

    /// Version of the profile format and kind of tone curve, elements "ProfileVersion" and "ToneCurve", written when
    /// set.
    property<std::string> profileVersion;
    property<std::string> toneCurve;

    /// What the profile includes, elements "ReflectBlackLevels", "Create3DLut" and "CreateLuminanceTag", written when
    /// set, also when false.
    property<bool> reflectBlackLevels;
    property<bool> create3DLut;
    property<bool> createLuminanceTag;
};

/// \name Equality
/// Two records are equal when all members that documents hold are, flags and version numbers included. Not compared:
/// `writeHLGSystemGamma`.
/// @{
[[nodiscard]] LVDATA_EXPORT bool operator==(const ProfilePolicy& left, const ProfilePolicy& right);
[[nodiscard]] inline bool operator!=(const ProfilePolicy& left, const ProfilePolicy& right) {
    return !(left == right);
}
/// @}

}  // namespace lv
