#include <tests/support/model/Found.h>

#include <tinyxml2.h>

namespace lv::test {

std::string Found::name() const {
    return exists() ? element_->Name() : "";
}

Found Found::child(const std::string& name) const {
    return Found(exists() ? element_->FirstChildElement(name.c_str()) : nullptr);
}

std::vector<Found> Found::children(const std::string& name) const {
    std::vector<Found> all;
    for (Found next = child(name); next.exists(); next = Found(next.element_->NextSiblingElement(name.c_str()))) {
        all.push_back(next);
    }
    return all;
}

const char* Found::attribute(const std::string& name) const {
    return exists() ? element_->Attribute(name.c_str()) : nullptr;
}

const char* Found::text() const {
    return exists() ? element_->GetText() : nullptr;
}

}  // namespace lv::test
