#pragma once

/// The texts and numbers that determine what a record writes, grouped by the member that they are used for.
///
/// A record compares its types exactly. An unknown text is kept and written back, but the values that belong to a type
/// are not written with it, and no error is reported: with a misspelt type, the value is lost when the record is
/// printed. So use the constants; a misspelt constant does not compile.
///
///     setting.gamma.value.type = lv::types::gamma::value;
///     mode.type.set(lv::types::colorMode::calibration);
///     if (curve.type == lv::types::targetCurve::lut24) ...
///
/// The constants are C strings: assign them to the `std::string` members and compare them with these members. Do not
/// compare two constants with each other.
namespace lv::types {

/// For `ColorModeSettingsObject::type`, the kind of a colour mode. `CalibrationModeResultObject::type` takes any text.
namespace colorMode {
inline constexpr const char* standard = "Standard";        ///< The `ParameterSetting` is written.
inline constexpr const char* syncSignal = "SyncSignal";    ///< The `ParameterSetting` is written.
inline constexpr const char* calibration = "Calibration";  ///< The `TargetSetting` is written.
}  // namespace colorMode

/// For `ParameterSetting::brightness_t::type`.
namespace brightness {
inline constexpr const char* candela = "Candela";        ///< `value` is written.
inline constexpr const char* percent = "Percent";        ///< `value` is written, in per cent.
inline constexpr const char* syncSignal = "SyncSignal";  ///< It has no value: none is written or read.
}  // namespace brightness

/// For `ParameterSetting::white_point_t::type`.
namespace whitePoint {
inline constexpr const char* temperature = "Temperature";  ///< `temperature` is written.
inline constexpr const char* fixed = "Fixed";              ///< `fixed` is written, the name of a standard.
}  // namespace whitePoint

/// For `ParameterSetting::gamma_t::type`.
namespace gamma {
inline constexpr const char* value = "Value";            ///< `value` is written, the exponent.
inline constexpr const char* fixed = "Fixed";            ///< `fixed` is written, the name of a standard.
inline constexpr const char* syncSignal = "SyncSignal";  ///< It has no value: none is written or read.
}  // namespace gamma

/// For `ParameterSetting::gamma_t::fixed`: the standard curves (ITU-R BT.2100) that `pqhlgClipping` is written with.
namespace fixedGamma {
inline constexpr const char* pq = "PQ";    ///< Perceptual quantization, also SMPTE ST 2084.
inline constexpr const char* hlg = "HLG";  ///< Hybrid log-gamma.
}  // namespace fixedGamma

/// For `ParameterSetting::gamut_t::type`.
namespace gamut {
inline constexpr const char* fixed = "Fixed";            ///< `fixed` is written, the name of a standard.
inline constexpr const char* syncSignal = "SyncSignal";  ///< It has no gamut: `fixed` is neither written nor read.
}  // namespace gamut

/// For `TargetSetting::level_t::type`: brightness and black level.
namespace targetLevel {
inline constexpr const char* value = "Value";  ///< `value` is written.
}  // namespace targetLevel

/// For `TargetSetting::standard_t::type`: white point, gamma and gamut in the newer form.
namespace targetStandard {
inline constexpr const char* standard = "Standard";  ///< `standard` is written, the name of a standard.
}  // namespace targetStandard

/// For `TargetSetting::white_point_t::type`.
namespace targetWhitePoint {
inline constexpr const char* temperature = "Temperature";  ///< `temperature` is written.
inline constexpr const char* coordinate = "Coordinate";    ///< `x` and `y` are written.
}  // namespace targetWhitePoint

/// For `TargetSetting::gamma_t::gamma_color::type`, the tone curve of one channel. The type of the red channel also
/// applies to `TargetSetting::gamma_t`.
namespace targetCurve {
inline constexpr const char* formula = "Formula";  ///< `formula` is written, the exponent.
inline constexpr const char* lut = "Lut";          ///< `lut` is written; if red, `importedLutFile`, too.
inline constexpr const char* lut24 = "Lut24";      ///< `lut24` is written; if red, `importedLutFile`, too.
inline constexpr const char* pq = "PQ";            ///< The curve has no value; if red, `pqhlgClipping` is written.
inline constexpr const char* hlg = "HLG";          ///< The curve has no value; if red, `pqhlgClipping` is written.
}  // namespace targetCurve

/// For `ProfileData::target_curve::type`. Other types are not written.
namespace profileCurve {
inline constexpr const char* formula = "Formula";  ///< `formula` is written, the curve's parameter.
inline constexpr const char* lut = "Lut";          ///< `lut` is written.
inline constexpr const char* lStar = "LStar";      ///< Only the type is written: the lightness curve of CIE 15.
}  // namespace profileCurve

/// For `SelfCalibrationSchedule::type`, the kind of a schedule; the class documents which fields each kind writes.
namespace schedule {
inline constexpr unsigned int everySomeMonths = 0x01;   ///< 1, at an interval in months.
inline constexpr unsigned int everySomeWeeks = 0x02;    ///< 2, at an interval in weeks.
inline constexpr unsigned int everySomeHours = 0x03;    ///< 3, at an interval in hours.
inline constexpr unsigned int once = 0x11;              ///< 17, on one date.
inline constexpr unsigned int everySomeHours1F = 0x1F;  ///< 31, also at an interval in hours.
inline constexpr unsigned int daily = 0x20;             ///< 32, every day.
inline constexpr unsigned int weekly = 0x21;            ///< 33, every week.
inline constexpr unsigned int monthly = 0x32;           ///< 50, every month.
inline constexpr unsigned int quarterly = 0x33;         ///< 51, every quarter.
inline constexpr unsigned int halfYearly = 0x34;        ///< 52, twice a year.
inline constexpr unsigned int yearly = 0x35;            ///< 53, every year.
}  // namespace schedule

/// For `MonitorParameter::isHDRLUT`, the scale of the look-up tables.
namespace tableScale {
inline constexpr unsigned int hdr = 1;  ///< `quantities::hdrTableEntry`; any other number: `quantities::tableEntry`.
}  // namespace tableScale

}  // namespace lv::types
