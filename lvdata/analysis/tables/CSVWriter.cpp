#include <lvdata/analysis/tables/CSVWriter.h>

namespace lv::analysis {

void CSVWriter::plain(std::string_view text) {
    out_ += isFirst_ ? "" : ",";
    out_ += text;
    isFirst_ = false;
}

void CSVWriter::string(std::string_view text) {
    if (text.find_first_of(",\"\r\n") == std::string_view::npos) {
        plain(text);
        return;
    }
    plain("\"");
    for (const char character : text) {
        out_.append(character == '"' ? 2 : 1, character);
    }
    out_ += '"';
}

}  // namespace lv::analysis
