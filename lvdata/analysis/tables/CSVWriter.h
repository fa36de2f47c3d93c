#pragma once

#include <lvdata/analysis/Sink.h>

#include <string>
#include <string_view>

namespace lv::analysis {

/// Appends rows to CSV text as in RFC 4180: each object is a line with its values in order; keys are omitted, and null
/// is an empty value. Lines end with CR LF. Texts with a comma, a quotation mark or a line break are in quotation
/// marks. Values must be plain: rows hold no arrays or objects.
class CSVWriter final : public Sink {
public:
    /// \param out  the text is appended here; it must outlive the writer
    explicit CSVWriter(std::string& out) : out_(out) {}

    void beginObject() override { isFirst_ = true; }
    void key(std::string_view /*name*/) override {}
    void endObject() override { out_ += "\r\n"; }
    void beginArray(Entries /*entries*/) override {}
    void endArray() override {}
    void string(std::string_view text) override;
    void number(std::string_view text, NumberKind /*kind*/) override { plain(text); }
    void boolean(bool value) override { plain(value ? "true" : "false"); }
    void null() override { plain({}); }

private:
    void plain(std::string_view text);

    std::string& out_;
    bool isFirst_ = true;
};

}  // namespace lv::analysis
