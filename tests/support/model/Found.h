#pragma once

#include <string>
#include <vector>

namespace tinyxml2 {
class XMLElement;
}

namespace lv::test {

/// An element of a document, or none, and what stands there. It shares no code with the library and has no thought of
/// speed. What the XML library accepts, it accepts.
class Found {
public:
    Found() = default;
    explicit Found(const tinyxml2::XMLElement* element) : element_(element) {}

    [[nodiscard]] bool exists() const { return element_ != nullptr; }
    [[nodiscard]] std::string name() const;

    /// The first one of that name.
    [[nodiscard]] Found child(const std::string& name) const;
    [[nodiscard]] std::vector<Found> children(const std::string& name) const;

    /// Null when there is none.
    [[nodiscard]] const char* attribute(const std::string& name) const;
    [[nodiscard]] const char* text() const;

private:
    const tinyxml2::XMLElement* element_ = nullptr;
};

}  // namespace lv::test
