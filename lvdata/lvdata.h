#pragma once

/// The whole public interface of the library.

#include <lvdata/core/DataArrayObject.h>
#include <lvdata/core/DataObject.h>
#include <lvdata/core/ParseResult.h>
#include <lvdata/core/ParsedDocument.h>
#include <lvdata/core/PrimaryColours.h>
#include <lvdata/core/colour.h>
#include <lvdata/export.h>
#include <lvdata/records/AssetInfo.h>
#include <lvdata/records/BasicData.h>
#include <lvdata/records/CalibrationModeResult.h>
#include <lvdata/records/CandelaMap.h>
#include <lvdata/records/ColorModeSettings.h>
#include <lvdata/records/CorrelationInfo.h>
#include <lvdata/records/MeasurementData.h>
#include <lvdata/records/MeasurementDataSecondary.h>
#include <lvdata/records/MonitorConfiguration.h>
#include <lvdata/records/MonitorInfo.h>
#include <lvdata/records/MonitorParameter.h>
#include <lvdata/records/ParameterSetting.h>
#include <lvdata/records/ProfileData.h>
#include <lvdata/records/ProfilePolicy.h>
#include <lvdata/records/SelfCalibrationSchedule.h>
#include <lvdata/records/StandardModeResult.h>
#include <lvdata/records/TargetSetting.h>
#include <lvdata/version.h>
#include <lvdata/xml/XMLDocument.h>
#include <lvdata/xml/XMLElement.h>
#include <lvdata/xml/XMLNode.h>
#include <lvdata/xml/lexical_cast.h>
#include <lvdata/xml/property.h>
#include <lvdata/xml/split_string.h>
