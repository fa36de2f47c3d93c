#include <tests/properties/Found.h>
#include <tests/support/stream.h>

#include <sstream>

#include <tinyxml2.h>

namespace lv::test {
namespace {

template <class Number>
std::vector<Number> numbersIn(const std::string& text) {
    std::vector<Number> numbers;
    std::istringstream pieces(text);
    for (std::string piece; std::getline(pieces, piece, '|');) {
        if (!piece.empty()) {
            numbers.push_back(extracted<Number>(piece));
        }
    }
    return numbers;
}

}  // namespace

std::string Found::name() const {
    return exists() ? element_->Name() : "";
}

Found Found::child(const char* name) const {
    return Found(exists() ? element_->FirstChildElement(name) : nullptr);
}

std::vector<Found> Found::children(const char* name) const {
    std::vector<Found> all;
    for (Found next = child(name); next.exists(); next = Found(next.element_->NextSiblingElement(name))) {
        all.push_back(next);
    }
    return all;
}

std::string Found::text() const {
    const char* const text = exists() ? element_->GetText() : nullptr;
    return text != nullptr ? text : "";
}

bool Found::text(std::string& value) const {
    if (exists() && element_->GetText() != nullptr) {
        value = text();
    }
    return exists();
}

bool Found::text(int& value) const {
    if (!text().empty()) {
        value = extracted<int>(text());
    }
    return !text().empty();
}

bool Found::text(unsigned int& value) const {
    if (!text().empty()) {
        value = extracted<unsigned int>(text());
    }
    return !text().empty();
}

bool Found::text(bool& value) const {
    if (!text().empty()) {
        value = text() == "true" || text() == "TRUE";
    }
    return !text().empty();
}

bool Found::text(std::vector<int>& values) const {
    if (!text().empty()) {
        values = numbersIn<int>(text());
    }
    return !text().empty();
}

bool Found::text(std::vector<unsigned int>& values) const {
    if (!text().empty()) {
        values = numbersIn<unsigned int>(text());
    }
    return !text().empty();
}

bool Found::attribute(const char* name, std::string& value) const {
    const char* const text = exists() ? element_->Attribute(name) : nullptr;
    if (text != nullptr) {
        value = text;
    }
    return text != nullptr;
}

bool Found::attribute(const char* name, unsigned int& value) const {
    std::string text;
    if (!attribute(name, text) || text.empty()) {
        return false;
    }
    value = extracted<unsigned int>(text);
    return true;
}

void readBase(const Found& element, DataObject& record) {
    element.attribute("Version", record.version);
    element.attribute("MinorVersion", record.minorVersion);
}

}  // namespace lv::test
