#include <lvdata/core/detail/colour_notation.h>
#include <lvdata/core/detail/record.h>
#include <lvdata/records/MeasurementData.h>
#include <lvdata/records/MeasurementDataSecondary.h>

namespace lv {
namespace {

constexpr double codeFactor = 255.0;
constexpr double percentFactor = 100.0;
constexpr double tristimulusFactor = 1e6;

constexpr auto visitRow = [](auto& io, auto& row) {
    bool any = io.array("RGB", row.RGB, 3);
    any |= io.array("CMYK", row.CMYK, 4);
    any |= io.array("XYZ", row.XYZ, 3);
    any |= io.array("CIELAB", row.CIELAB, 3);
    any |= io.array("PQR", row.PQR, 3);
    return any;
};

/// Visits a row without writing it, only to learn whether there is something to write.
struct Probe {
    template <class Number>
    bool array(const char* /*name*/, const std::vector<Number>& member, std::size_t length) const {
        return member.size() == length;
    }
};

constexpr auto hasContent = [](const MeasurementDataObject& row) {
    const Probe probe;
    return visitRow(probe, row);
};

constexpr auto visit = [](auto& io, auto& self) {
    io.rows("Measurements", self, visitRow, hasContent);
};

bool isLibrarysOwn(const DataObject& record) {
    return detail::isOfClass<MeasurementData>(record) || detail::isOfClass<MeasurementDataSecondary>(record);
}

}  // namespace

colour MeasurementDataObject::RGB_x() const {
    return detail::to_colour(detail::rgb, RGB, codeFactor);
}

void MeasurementDataObject::RGB_x(const colour& shown) {
    RGB = detail::from_colour<unsigned int>(detail::rgb, shown, codeFactor);
}

colour MeasurementDataObject::CMYK_x() const {
    return detail::to_colour(detail::cmyk, CMYK, percentFactor);
}

void MeasurementDataObject::CMYK_x(const colour& shown) {
    CMYK = detail::from_colour<unsigned int>(detail::cmyk, shown, percentFactor);
}

colour MeasurementDataObject::XYZ_x() const {
    return detail::to_colour(detail::xyz, XYZ, tristimulusFactor);
}

void MeasurementDataObject::XYZ_x(const colour& measured) {
    XYZ = detail::from_colour<int>(detail::xyz, measured, tristimulusFactor);
}

colour MeasurementDataObject::CIELAB_x() const {
    return detail::to_colour(detail::cielab, CIELAB, tristimulusFactor);
}

void MeasurementDataObject::CIELAB_x(const colour& measured) {
    CIELAB = detail::from_colour<int>(detail::cielab, measured, tristimulusFactor);
}

colour MeasurementDataObject::PQR_x() const {
    return detail::to_colour(detail::xyz, PQR, tristimulusFactor);
}

void MeasurementDataObject::PQR_x(const colour& measured) {
    PQR = detail::from_colour<int>(detail::xyz, measured, tristimulusFactor);
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

std::string MeasurementData::getRootElementName() const {
    return rootElementName;
}

}  // namespace lv
