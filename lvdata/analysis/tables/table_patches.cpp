#include <lvdata/analysis/tables/table_rows.h>
#include <lvdata/core/quantities.h>

namespace lv::analysis {
namespace {

struct PatchRow {
    const Parts& parts;
    std::string_view source;
    const MeasurementDataObject& patch;
    std::size_t index;
};

/// One of the numbers, if the array has the required length.
template <std::size_t Length, class Number>
void give(const std::vector<Number>& numbers, std::size_t index, const Quantity& quantity, Cell& cell) {
    if (numbers.size() == Length) {
        cell.number(numbers[index], quantity);
    }
}

template <std::size_t Index>
void giveRGB(const PatchRow& row, Cell& cell) {
    give<3>(row.patch.RGB, Index, quantities::codeValue, cell);
}

template <std::size_t Index>
void giveCMYK(const PatchRow& row, Cell& cell) {
    give<4>(row.patch.CMYK, Index, quantities::inkAmount, cell);
}

template <std::size_t Index>
void giveXYZ(const PatchRow& row, Cell& cell) {
    give<3>(row.patch.XYZ, Index, quantities::tristimulus, cell);
}

template <std::size_t Index>
void giveCIELAB(const PatchRow& row, Cell& cell) {
    give<3>(row.patch.CIELAB, Index, quantities::cielab, cell);
}

template <std::size_t Index>
void givePQR(const PatchRow& row, Cell& cell) {
    give<3>(row.patch.PQR, Index, quantities::pqr, cell);
}

const std::vector<ColumnOf<PatchRow>>& columns() {
    static const std::vector<ColumnOf<PatchRow>> all = withOrigin<PatchRow>({
        {{"source", "", "calibration_mode_result, standard_mode_result, standard_mode_result_secondary, or document"},
         [](const PatchRow& row, Cell& cell) {
             cell.text(row.source);
         }},
        {{"patch", "", "which measurement, counted from 0 in its list", Values::integer},
         [](const PatchRow& row, Cell& cell) {
             cell.count(row.index);
         }},
        {{"rgb_r", "of 255", "red code value", Values::integer}, &giveRGB<0>},
        {{"rgb_g", "of 255", "green code value", Values::integer}, &giveRGB<1>},
        {{"rgb_b", "of 255", "blue code value", Values::integer}, &giveRGB<2>},
        {{"cmyk_c", "", "cyan as a fraction", Values::fraction}, &giveCMYK<0>},
        {{"cmyk_m", "", "magenta as a fraction", Values::fraction}, &giveCMYK<1>},
        {{"cmyk_y", "", "yellow as a fraction", Values::fraction}, &giveCMYK<2>},
        {{"cmyk_k", "", "black as a fraction", Values::fraction}, &giveCMYK<3>},
        {{"xyz_x", notRecorded, "CIE X", Values::fraction}, &giveXYZ<0>},
        {{"xyz_y", notRecorded, "CIE Y", Values::fraction}, &giveXYZ<1>},
        {{"xyz_z", notRecorded, "CIE Z", Values::fraction}, &giveXYZ<2>},
        {{"lab_l", "", "CIELAB L*", Values::fraction}, &giveCIELAB<0>},
        {{"lab_a", "", "CIELAB a*", Values::fraction}, &giveCIELAB<1>},
        {{"lab_b", "", "CIELAB b*", Values::fraction}, &giveCIELAB<2>},
        {{"pqr_p", notRecorded, "P, defined by the application", Values::fraction}, &givePQR<0>},
        {{"pqr_q", notRecorded, "Q, defined by the application", Values::fraction}, &givePQR<1>},
        {{"pqr_r", notRecorded, "R, defined by the application", Values::fraction}, &givePQR<2>},
        {{"sensor_serial", "", "serial number of the colour sensor"},
         [](const PatchRow& row, Cell& cell) {
             if (row.parts.basicData != nullptr) {
                 cell.text(row.parts.basicData->colorSensorSerial);
             }
         }},
    });
    return all;
}

void addPatches(const Parts& parts, std::string_view source, const MeasurementData& list, Sink& sink) {
    for (std::size_t index = 0; index < list.objects.size(); ++index) {
        addRow(columns(), {parts, source, list.objects[index], index}, sink);
    }
}

void addModePatches(const Parts& parts, const CalibrationModeResultObject& mode, Sink& sink) {
    Parts ofMode = parts;
    ofMode.modeIndex = &mode.index;
    ofMode.basicData = mode.hasBasicData ? &mode.basicData : nullptr;
    if (mode.hasMeasurementData) {
        addPatches(ofMode, "calibration_mode_result", mode.measurementData, sink);
    }
}

void addStandardPatches(const Parts& parts, const StandardModeResult& result, Sink& sink) {
    Parts ofResult = parts;
    ofResult.basicData = result.hasBasicData ? &result.basicData : nullptr;
    if (result.hasMeasurementData) {
        addPatches(ofResult, "standard_mode_result", result.measurementData, sink);
    }
    if (result.hasMeasurementDataSecondary) {
        addPatches(ofResult, "standard_mode_result_secondary", result.measurementDataSecondary, sink);
    }
}

}  // namespace

std::vector<Column> patchColumns() {
    return columnsOf(columns());
}

void addPatchRows(const Parts& parts, Sink& sink) {
    if (parts.measurements != nullptr) {
        addPatches(parts, "document", *parts.measurements, sink);
    }
    if (parts.results != nullptr) {
        for (const CalibrationModeResultObject& mode : parts.results->objects) {
            addModePatches(parts, mode, sink);
        }
    }
    if (parts.standardResult != nullptr) {
        addStandardPatches(parts, *parts.standardResult, sink);
    }
}

}  // namespace lv::analysis
