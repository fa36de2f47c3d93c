#pragma once

#include <lvdata/core/DataArrayObject.h>
#include <lvdata/export.h>
#include <lvdata/records/ParameterSetting.h>
#include <lvdata/records/ProfilePolicy.h>
#include <lvdata/records/TargetSetting.h>

#include <string>

namespace lv {

/// One colour mode: what it is, and the records that define it.
///
/// The text of `type` alone, set or not, chooses which nested records are written; their flags are not consulted, so an
/// unset one is written with its defaults. Parsing takes all three whatever the type says; each flag is whether the
/// record was found.
class ColorModeSettingsObject {
public:
    /// The kind of mode, attribute "Type": written always. "Standard", "SyncSignal" and "Calibration" steer what is
    /// written; any other text is kept and written back.
    property<std::string> type{};

    /// Elements "Index", "Name" and "Availability", written when set.
    property<unsigned int> index{};
    property<std::string> name{};
    property<unsigned int> availability{};

    /// Device parameters, element "ParameterSetting", written for "Standard" and "SyncSignal".
    property<ParameterSetting> parameterSetting{};

    /// Calibration target, element "TargetSetting" inside an element "Target" whose attribute "Type" is "Lumivale";
    /// written for "Calibration".
    property<TargetSetting> targetSetting{};

    /// Profile-making policy, element "ProfilePolicy", written always.
    property<ProfilePolicy> profilePolicy{};
};

/// A monitor's colour modes, one element "ColorMode" per mode in list order; every such element makes a row, however
/// empty. The record's own `writeHLGSystemGamma` is in force for the parameters and targets of all rows. Version 2.0.
class LVDATA_EXPORT ColorModeSettings : public DataArrayObject<ColorModeSettingsObject> {
public:
    /// The name of the root element.
    static constexpr const char* rootElementName = "ColorModeSettings";

    ColorModeSettings();

    bool parseXMLElement(XMLElement element) override;
    XMLElement appendXMLElement(XMLNode& parent) const override;

    /// What a document of this record consists of.
    [[nodiscard]] static Description describe();
};

/// \name Equality
/// Two records are equal when all members that documents hold are, flags and version numbers included. Not compared:
/// `writeHLGSystemGamma` and `parsed`.
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
