#include <benchmarks/Monitor.h>
#include <benchmarks/pugixml/handle.h>

#include <lvdata/records/MonitorInfo.h>

#include <cstddef>
#include <utility>

// Compiled with `lv` renamed: this is the record over the sources beside this file.

namespace benchmarks {
namespace {

/// Elements that hold only text keep it in their own node.
constexpr unsigned int parseOptions = pugi::parse_default | pugi::parse_embed_pcdata;
constexpr unsigned int printOptions = pugi::format_raw | pugi::format_no_declaration;

class StringWriter final : public pugi::xml_writer {
public:
    explicit StringWriter(std::size_t expectedSize) { text.reserve(expectedSize); }

    void write(const void* data, std::size_t size) override { text.append(static_cast<const char*>(data), size); }

    std::string text;
};

class PugixmlMonitor final : public Monitor {
public:
    [[nodiscard]] bool parse(const std::string& text) override {
        textSize_ = text.size();
        pugi::xml_document document;
        return document.load_buffer(text.data(), text.size(), parseOptions, pugi::encoding_utf8) &&
               record_.parseXMLElement(lv::detail::toElement(document.document_element()));
    }

    [[nodiscard]] std::string print() const override {
        pugi::xml_document document;
        lv::XMLNode parent(lv::detail::toElement(document));
        record_.appendXMLElement(parent);
        StringWriter writer(textSize_);
        document.save(writer, "", printOptions, pugi::encoding_utf8);
        return std::move(writer.text);
    }

private:
    lv::MonitorInfo record_;
    std::size_t textSize_ = 0;  // of the text parsed last: what is printed will hardly be longer
};

}  // namespace

std::unique_ptr<Monitor> pugixmlMonitor() {
    return std::make_unique<PugixmlMonitor>();
}

}  // namespace benchmarks
