#include <lvdata/analysis/json/CountingIterator.h>
#include <lvdata/analysis/json/JSON.h>
#include <lvdata/analysis/json/RecordBuilder.h>

#include <cstddef>
#include <iterator>
#include <string>

#include <nlohmann/json.hpp>

namespace lv::analysis {
namespace {

using nlohmann::json;

/// Hands what the parser finds to the builder; stops when that refuses it.
class Handler final : public nlohmann::json_sax<json> {
public:
    Handler(RecordBuilder& builder, const Lines& lines) : builder_(builder), lines_(lines) {}

    bool null() override {
        return to([](RecordBuilder& builder) { builder.null(); });
    }
    bool boolean(bool value) override {
        return to([value](RecordBuilder& builder) { builder.boolean(value); });
    }
    bool number_integer(json::number_integer_t value) override { return number(std::to_string(value)); }
    bool number_unsigned(json::number_unsigned_t value) override { return number(std::to_string(value)); }
    bool number_float(json::number_float_t /*value*/, const std::string& text) override { return number(text); }
    bool string(std::string& text) override {
        return to([&](RecordBuilder& builder) { builder.string(text); });
    }
    bool binary(json::binary_t& /*value*/) override { return false; }  // not in texts
    bool start_object(std::size_t /*size*/) override {
        return to([](RecordBuilder& builder) { builder.beginObject(); });
    }
    bool key(std::string& name) override {
        return to([&](RecordBuilder& builder) { builder.key(name); });
    }
    bool end_object() override {
        return to([](RecordBuilder& builder) { builder.endObject(); });
    }
    bool start_array(std::size_t /*size*/) override {
        return to([](RecordBuilder& builder) { builder.beginArray(Sink::Entries::objects); });
    }
    bool end_array() override {
        return to([](RecordBuilder& builder) { builder.endArray(); });
    }

    /// A number that does not fit into a double is refused by the builder, which knows the range. The parser's message
    /// would quote all of its digits.
    bool parse_error(std::size_t /*position*/, const std::string& text, const json::exception& error) override {
        constexpr int numberOverflow = 406;
        if (error.id == numberOverflow) {
            number(text);
        }
        builder_.setLine(lines_.current());
        builder_.fail(error.id == numberOverflow ? "number out of range" : "not JSON: " + plainReason(error.what()));
        return false;
    }

private:
    bool number(const std::string& text) {
        return to([&](RecordBuilder& builder) { builder.number(text, Sink::NumberKind::fraction); });
    }

    template <class Call>
    bool to(Call call) {
        builder_.setLine(lines_.current());
        call(builder_);
        return !builder_.hasFailed();
    }

    RecordBuilder& builder_;
    const Lines& lines_;
};

}  // namespace

FromJSON fromJSON(std::string_view text, const Catalogue& catalogue, const Limits& limits) {
    RecordBuilder builder(catalogue, limits);
    if (text.size() > limits.bytes) {
        builder.failBeyond(Excess::What::bytes, limits.bytes);
        return builder.result();
    }
    Lines lines;
    Handler handler(builder, lines);
    const char* const end = std::next(text.data(), static_cast<std::ptrdiff_t>(text.size()));
    static_cast<void>(json::sax_parse(CountingIterator(text.data(), lines), CountingIterator(end, lines), &handler));
    return builder.result();
}

}  // namespace lv::analysis
