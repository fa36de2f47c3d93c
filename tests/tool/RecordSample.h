#pragma once

#include <tests/support/samples.h>

#include <lvdata/records/EveryRecord.h>

#include <ostream>
#include <string>
#include <vector>

/// A document of a record class, with everything that it can hold: just as the tool prints it, compact and without a
/// declaration, and without the elements that are left out unless they are asked for.
struct RecordSample {
    std::string name;
    std::string (*document)();
};

inline void PrintTo(const RecordSample& sample, std::ostream* out) {
    *out << sample.name;
}

template <class Record>
std::string documentOfSample() {
    return lv::test::compact(lv::test::filledAndParsedBack<Record>());
}

template <class... Records>
std::vector<RecordSample> recordSamples(lv::RecordTypes<Records...> /*list*/) {
    return {{Records::rootElementName, &documentOfSample<Records>}...};
}
