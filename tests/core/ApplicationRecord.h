#pragma once

#include <lvdata/core/DataObject.h>
#include <lvdata/records/CorrelationInfo.h>

#include <string>

namespace lv::test {

/// A record of the library, to be held by one of the application.
inline CorrelationInfo correlation(const std::string& sensor) {
    CorrelationInfo info;
    info.referenceSensorID.set(sensor);
    return info;
}

/// A record class of an application, which reads nothing unless it says so.
class ApplicationRecord : public DataObject {
public:
    ApplicationRecord() : DataObject(1, 0) {}
    bool parseXMLElement(XMLElement /*element*/) override { return false; }
};

}  // namespace lv::test
