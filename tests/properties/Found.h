#pragma once

#include <lvdata/core/DataObject.h>
#include <lvdata/xml/property.h>

#include <string>
#include <vector>

namespace tinyxml2 {
class XMLElement;
}

namespace lv::test {

/// An element of a document, or none: the rules of reading as the format states them, word for word and without a
/// thought of speed. It shares no code with the library. Numbers are extracted from a stream.
class Found {
public:
    explicit Found(const tinyxml2::XMLElement* element) : element_(element) {}

    [[nodiscard]] bool exists() const { return element_ != nullptr; }
    [[nodiscard]] std::string name() const;
    [[nodiscard]] Found child(const char* name) const;
    [[nodiscard]] std::vector<Found> children(const char* name) const;

    /// The text of this very element. A string is found when the element exists; one without a text keeps its value.
    bool text(std::string& value) const;
    /// Numbers, booleans and arrays are found when there is a text that is not empty.
    bool text(int& value) const;
    bool text(unsigned int& value) const;
    bool text(bool& value) const;
    bool text(std::vector<int>& values) const;
    bool text(std::vector<unsigned int>& values) const;

    /// An attribute of text is found when it exists, one of a number when it is not empty.
    bool attribute(const char* name, std::string& value) const;
    bool attribute(const char* name, unsigned int& value) const;

    template <class T>
    bool attribute(const char* name, property<T>& member) const {
        member.hasValue = attribute(name, member.value);
        return member.hasValue;
    }

    /// The text of the first child of that name.
    template <class T>
    bool operator()(const char* name, T& value) const {
        return child(name).text(value);
    }

    /// What is found replaces the value; what is not clears the flag and keeps the value.
    template <class T>
    bool operator()(const char* name, property<T>& member) const {
        member.hasValue = child(name).text(member.value);
        return member.hasValue;
    }

    /// A nested record is found when its element exists; it keeps what it held when it does not.
    template <class Record>
    [[nodiscard]] bool record(Record& nested) const;

    template <class Record>
    void record(property<Record>& nested) const {
        nested.hasValue = record(nested.value);
    }

private:
    [[nodiscard]] std::string text() const;

    const tinyxml2::XMLElement* element_;
};

void readBase(const Found& element, DataObject& record);

/// Fills the record as the format demands; false, with nothing changed, when the element bears another name.
template <class Record>
[[nodiscard]] bool readRecord(const Found& element, Record& record) {
    if (element.name() != Record::rootElementName) {
        return false;
    }
    readBase(element, record);
    read(element, record);
    return true;
}

template <class Record>
bool Found::record(Record& nested) const {
    return readRecord(child(Record::rootElementName), nested);
}

}  // namespace lv::test
