#pragma once

#include <lvdata/core/DataArrayObject.h>
#include <lvdata/export.h>
#include <lvdata/records/ParameterSetting.h>
#include <lvdata/records/ProfilePolicy.h>
#include <lvdata/records/TargetSetting.h>

#include <string>

namespace lv {

/// One colour mode, element "ColorMode": what it is, and the records that define it.
///
/// Only the text of `type` determines which nested records are written. Their flags do not matter: a record that is not
/// set is written with its defaults. Parsing reads all three, whatever the type; each flag says whether its element was
/// found. So reading and printing drops the records that do not belong to the type.
class ColorModeSettingsObject {
public:
    /// The kind of mode, attribute "Type". "Standard", "SyncSignal" and "Calibration", see `types::colorMode`,
    /// determine what is written; any other text is kept and written back. Always written, whatever the flag.
    property<std::string> type{};

    /// The index of the mode, element "Index". The meaning of the number is not recorded. Written when set.
    property<unsigned int> index{};

    /// The mode's name, element "Name". Written when set.
    property<std::string> name{};

    /// Availability of the mode, element "Availability". The meaning of the number is not recorded. Written when set.
    property<unsigned int> availability{};

    /// Device parameters, element "ParameterSetting". Written when `type` is "Standard" or "SyncSignal", whatever the
    /// flag.
    property<ParameterSetting> parameterSetting{};

    /// Calibration target, element "TargetSetting" inside an element "Target" with the attribute "Type" "Lumivale".
    /// Written when `type` is "Calibration", whatever the flag.
    property<TargetSetting> targetSetting{};

    /// How to make the colour profile, element "ProfilePolicy". Always written, whatever the flag.
    property<ProfilePolicy> profilePolicy{};
};

/// A monitor's colour modes, one element "ColorMode" per mode in list order. Every such element becomes a row, even an
/// empty one. When this record is printed, its `writeHLGSystemGamma` applies to the parameters and targets of all rows.
/// Version 2.0.
class LVDATA_EXPORT ColorModeSettings : public DataArrayObject<ColorModeSettingsObject> {
public:
    /// The name of the root element, compared exactly.
    static constexpr const char* rootElementName = "ColorModeSettings";

    /// A fresh record without rows, version 2.0.
    ColorModeSettings();

    /// Reads an element "ColorModeSettings", and replaces all rows. False, with nothing changed, when the element has a
    /// different name.
    bool parseXMLElement(XMLElement element) override;

    /// Appends an element "ColorModeSettings" to a document or an element and returns it; invalid when `parent` cannot
    /// take it.
    XMLElement appendXMLElement(XMLNode& parent) const override;

    /// Everything that a document of this record can contain, as a tree of its elements and attributes; the same for
    /// every record of the class.
    [[nodiscard]] static Description describe();
};

/// \name Equality
/// Two records are equal when all members that documents hold are equal, including flags and version numbers.
/// Values with clear flags are compared, too. Not compared: `writeHLGSystemGamma` and `parsed`.
/// @{
[[nodiscard]] LVDATA_EXPORT bool operator==(const ColorModeSettingsObject& left, const ColorModeSettingsObject& right);
[[nodiscard]] inline bool operator!=(const ColorModeSettingsObject& left, const ColorModeSettingsObject& right) {
    return !(left == right);
}
[[nodiscard]] LVDATA_EXPORT bool operator==(const ColorModeSettings& left, const ColorModeSettings& right);
[[nodiscard]] inline bool operator!=(const ColorModeSettings& left, const ColorModeSettings& right) {
    return !(left == right);
}
/// @}

}  // namespace lv
