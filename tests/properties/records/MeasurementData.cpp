#include <tests/properties/records.h>

#include <algorithm>

namespace lv::test {
namespace {

using Row = MeasurementDataObject;

/// Other numbers of entries than these are not written.
void loseInRow(Row& row) {
    keepWhen(row.RGB.size() == 3, row.RGB);
    keepWhen(row.CMYK.size() == 4, row.CMYK);
    keepWhen(row.XYZ.size() == 3, row.XYZ);
    keepWhen(row.CIELAB.size() == 3, row.CIELAB);
    keepWhen(row.PQR.size() == 3, row.PQR);
}

bool isEmpty(const Row& row) {
    return row.RGB.empty() && row.CMYK.empty() && row.XYZ.empty() && row.CIELAB.empty() && row.PQR.empty();
}

bool readRow(const Found& element, Row& row) {
    const bool rgb = element("RGB", row.RGB);
    const bool cmyk = element("CMYK", row.CMYK);
    const bool xyz = element("XYZ", row.XYZ);
    const bool cielab = element("CIELAB", row.CIELAB);
    const bool pqr = element("PQR", row.PQR);
    return rgb || cmyk || xyz || cielab || pqr;
}

}  // namespace

void members(Members& visit, Row& row) {
    visit(row.RGB, likelyLengths({3}));
    visit(row.CMYK, likelyLengths({4}));
    visit(row.XYZ, likelyLengths({3}));
    visit(row.CIELAB, likelyLengths({3}));
    visit(row.PQR, likelyLengths({3}));
}

void members(Members& visit, MeasurementData& record) {
    membersOfBase(visit, record);
    visit(record.parsed);
    visit.rows(record.objects);
}

void lose(MeasurementData& record, bool /*hlgSwitch*/) {
    auto& rows = record.objects;
    std::for_each(rows.begin(), rows.end(), loseInRow);
    rows.erase(std::remove_if(rows.begin(), rows.end(), isEmpty), rows.end());
    record.parsed = true;
    loseInGeneral(record);
}

void read(const Found& element, MeasurementData& record) {
    record.objects.clear();
    record.parsed = true;
    for (const Found& child : element.children("Measurements")) {
        Row row;
        if (readRow(child, row)) {
            record.objects.push_back(row);
        }
    }
}

}  // namespace lv::test
