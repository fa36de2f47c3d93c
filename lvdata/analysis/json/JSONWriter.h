#pragma once

#include <lvdata/analysis/Sink.h>

#include <cstddef>
#include <string>
#include <string_view>

namespace lv::analysis {

/// The layout of JSON text.
struct JSONForm {
    bool compact =
        false;  ///< All on one line without spaces. Otherwise two spaces a level, numbers of arrays on one line.
    bool isLine = false;  ///< A line break after it, for texts of one object a line.
};

/// Appends JSON text to a string: one value, or several, each with its own writer. Text that is not UTF-8 makes
/// `isUTF8` false; then do not use what was appended.
class JSONWriter final : public Sink {
public:
    /// \param out  the text is appended here; it must outlive the writer
    explicit JSONWriter(std::string& out, JSONForm form = {})
        : out_(out),
          isCompact_(form.compact),
          isLine_(form.isLine) {}

    void beginObject() override;
    void key(std::string_view name) override;
    void endObject() override;
    void beginArray(Entries entries) override;
    void endArray() override;
    void string(std::string_view text) override;
    void number(std::string_view text, NumberKind kind) override;
    void boolean(bool value) override;
    void null() override;

    /// Whether all texts were UTF-8.
    [[nodiscard]] bool isUTF8() const { return isUTF8_; }

private:
    void beforeValue();
    void separate();
    void begin(char bracket);
    void end(char bracket);
    void startLine();
    void append(std::string_view text) { out_.append(text); }
    void appendQuoted(std::string_view text);
    void appendEscaped(char character);

    std::string& out_;
    bool isCompact_;
    bool isLine_;
    bool isUTF8_ = true;
    bool isAfterKey_ = false;
    bool isEmpty_ = true;     // the object or array that is open has nothing yet
    bool inNumbers_ = false;  // inside an array of numbers
    std::size_t depth_ = 0;
};

}  // namespace lv::analysis
