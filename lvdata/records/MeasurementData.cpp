#include <lvdata/core/detail/colour_notation.h>
#include <lvdata/core/detail/record.h>
#include <lvdata/records/MeasurementData.h>
#include <lvdata/records/MeasurementDataSecondary.h>

namespace lv {
namespace {

constexpr auto visitRow = [](auto& io, auto& row) {
    auto any = io.array("RGB", row.RGB, 3, quantities::codeValue);
    any |= io.array("CMYK", row.CMYK, 4, quantities::inkAmount);
    any |= io.array("XYZ", row.XYZ, 3, quantities::tristimulus);
    any |= io.array("CIELAB", row.CIELAB, 3, quantities::cielab);
    any |= io.array("PQR", row.PQR, 3, quantities::pqr);
    return any;
};

constexpr auto visit = [](auto& io, auto& self) {
    io.rowsWithContent("Measurements", self, visitRow);
};

bool isLibrarysOwn(const DataObject& record) {
    return detail::isOfClass<MeasurementData>(record) || detail::isOfClass<MeasurementDataSecondary>(record);
}

}  // namespace

colour MeasurementDataObject::RGB_x() const {
    return detail::to_colour(detail::rgb, RGB, quantities::codeValue.factor);
}

void MeasurementDataObject::RGB_x(const colour& shown) {
    RGB = detail::from_colour<unsigned int>(detail::rgb, shown, quantities::codeValue.factor);
}

colour MeasurementDataObject::CMYK_x() const {
    return detail::to_colour(detail::cmyk, CMYK, quantities::inkAmount.factor);
}

void MeasurementDataObject::CMYK_x(const colour& shown) {
    CMYK = detail::from_colour<unsigned int>(detail::cmyk, shown, quantities::inkAmount.factor);
}

colour MeasurementDataObject::XYZ_x() const {
    return detail::to_colour(detail::xyz, XYZ, quantities::tristimulus.factor);
}

void MeasurementDataObject::XYZ_x(const colour& measured) {
    XYZ = detail::from_colour<int>(detail::xyz, measured, quantities::tristimulus.factor);
}

colour MeasurementDataObject::CIELAB_x() const {
    return detail::to_colour(detail::cielab, CIELAB, quantities::cielab.factor);
}

void MeasurementDataObject::CIELAB_x(const colour& measured) {
    CIELAB = detail::from_colour<int>(detail::cielab, measured, quantities::cielab.factor);
}

colour MeasurementDataObject::PQR_x() const {
    return detail::to_colour(detail::xyz, PQR, quantities::pqr.factor);
}

void MeasurementDataObject::PQR_x(const colour& measured) {
    PQR = detail::from_colour<int>(detail::xyz, measured, quantities::pqr.factor);
}

MeasurementData::MeasurementData() : DataArrayObject(2, 0) {}

bool MeasurementData::parseXMLElement(XMLElement element) {
    const std::string rootName = getRootElementName();
    // A class of an application may do anything there, also to the document: then the mark of the element is dropped.
    return isLibrarysOwn(*this) ? detail::parseRecord(*this, rootName.c_str(), element, visit)
                                : detail::parseRecord(*this, rootName.c_str(), XMLElement(element), visit);
}

XMLElement MeasurementData::appendXMLElement(XMLNode& parent) const {
    return detail::appendRecord(*this, getRootElementName().c_str(), parent, visit, &isLibrarysOwn);
}

Description MeasurementData::describe() {
    return detail::describeRecord<MeasurementData>(rootElementName, visit);
}

std::string MeasurementData::getRootElementName() const {
    return rootElementName;
}

bool operator==(const MeasurementDataObject& left, const MeasurementDataObject& right) {
    return detail::areEqual(left, right, visitRow);
}

bool operator==(const MeasurementData& left, const MeasurementData& right) {
    return detail::areEqualRecords(left, right, visit);
}

}  // namespace lv
