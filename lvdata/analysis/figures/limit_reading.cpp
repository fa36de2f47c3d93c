#include <lvdata/analysis/figures/LimitSet.h>

#include <lvdata/analysis/json/CountingIterator.h>
#include <lvdata/analysis/printable.h>

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <set>

#include <nlohmann/json.hpp>

namespace lv::analysis {
namespace {

using nlohmann::json;

/// Long texts would make long messages.
std::string inQuotes(const std::string& text) {
    constexpr std::size_t most = 60;
    return '\'' + printable(text.size() > most ? text.substr(0, most) + "..." : text) + '\'';
}

bool isFigure(const std::string& key) {
    const std::vector<std::string>& keys = figureKeys();
    return std::find(keys.begin(), keys.end(), key) != keys.end();
}

/// Takes the values of a limit set one after the other: an object, in it an array of limits, which are objects.
class Reader final : public nlohmann::json_sax<json> {
public:
    explicit Reader(const Lines& lines) : lines_(lines) {}

    bool null() override { return isNot("null"); }
    bool boolean(bool /*value*/) override { return isNot("true or false"); }
    bool number_integer(json::number_integer_t value) override { return number(static_cast<double>(value)); }
    bool number_unsigned(json::number_unsigned_t value) override { return number(static_cast<double>(value)); }
    bool number_float(json::number_float_t value, const std::string& /*text*/) override { return number(value); }
    bool string(std::string& text) override;
    bool binary(json::binary_t& /*value*/) override { return false; }  // not in texts
    bool start_object(std::size_t /*size*/) override;
    bool key(std::string& name) override;
    bool end_object() override { return place_ == Place::limit ? endLimit() : endSet(); }
    bool start_array(std::size_t /*size*/) override;
    bool end_array() override;
    bool parse_error(std::size_t /*position*/, const std::string& /*text*/, const json::exception& error) override {
        constexpr int numberOverflow = 406;
        return fail(error.id == numberOverflow ? "number out of range" : "not JSON: " + plainReason(error.what()));
    }

    LimitSetResult result() {
        return reason_.empty() ? LimitSetResult{set_, 0, ""} : LimitSetResult{{}, line_, reason_};
    }

private:
    /// What is open.
    enum class Place { nothing, set, limits, limit };

    bool fail(const std::string& reason) {
        line_ = lines_.current();
        reason_ = reason;
        return false;
    }

    bool isNot(const std::string& what) {
        const std::string where = place_ == Place::limits ? "an entry of 'limits'"
                                  : key_.empty()          ? "the text"
                                                          : inQuotes(key_);
        return fail(where + " is " + what + ", not " + expected());
    }

    [[nodiscard]] std::string expected() const {
        const bool isObject = place_ == Place::nothing || place_ == Place::limits;
        const bool isNumber = key_ == "minimum" || key_ == "maximum";
        return isObject ? "an object" : key_ == "limits" ? "an array" : isNumber ? "a number" : "a text";
    }

    std::string* textOfKey();
    bool number(double value);
    bool endLimit();
    bool endSet();

    const Lines& lines_;
    Place place_ = Place::nothing;
    std::string key_;
    std::set<std::string> seen_;       // keys of the set
    std::set<std::string> limitSeen_;  // keys of the limit that is open
    LimitSet set_;
    FigureLimit limit_;
    int line_ = 0;
    std::string reason_;
};

bool Reader::start_object(std::size_t /*size*/) {
    if (place_ == Place::nothing) {
        place_ = Place::set;
        return true;
    }
    if (place_ != Place::limits) {
        return isNot("an object");
    }
    place_ = Place::limit;
    limit_ = {};
    limitSeen_.clear();
    return true;
}

bool Reader::key(std::string& name) {
    static const std::set<std::string> ofSet = {"name", "title", "notice", "limits"};
    static const std::set<std::string> ofLimit = {"figure", "minimum", "maximum", "source"};
    const bool inLimit = place_ == Place::limit;
    if ((inLimit ? ofLimit : ofSet).count(name) == 0) {
        return fail("unknown key " + inQuotes(name));
    }
    key_ = name;
    const bool isFirst = (inLimit ? limitSeen_ : seen_).insert(name).second;
    return isFirst || fail("duplicate key " + inQuotes(name));
}

bool Reader::start_array(std::size_t /*size*/) {
    if (place_ != Place::set || key_ != "limits") {
        return isNot("an array");
    }
    place_ = Place::limits;
    return true;
}

bool Reader::end_array() {
    place_ = Place::set;
    return true;
}

std::string* Reader::textOfKey() {
    if (place_ == Place::limit) {
        return key_ == "figure" ? &limit_.key : key_ == "source" ? &limit_.source : nullptr;
    }
    if (place_ != Place::set) {
        return nullptr;
    }
    return key_ == "name" ? &set_.name : key_ == "title" ? &set_.title : key_ == "notice" ? &set_.notice : nullptr;
}

bool Reader::string(std::string& text) {
    std::string* const member = textOfKey();
    if (member == nullptr) {
        return isNot("a text");
    }
    if (key_ == "figure" && !isFigure(text)) {
        return fail("unknown figure " + inQuotes(text));
    }
    if (key_ == "figure" && set_.limitOf(text) != nullptr) {
        return fail("the figure " + inQuotes(text) + " has two limits");
    }
    *member = text;
    return true;
}

bool Reader::number(double value) {
    if (place_ != Place::limit || (key_ != "minimum" && key_ != "maximum")) {
        return isNot("a number");
    }
    (key_ == "minimum" ? limit_.minimum : limit_.maximum) = value;
    return true;
}

bool Reader::endLimit() {
    if (limit_.key.empty()) {
        return fail("a limit has no 'figure'");
    }
    if (!limit_.minimum && !limit_.maximum) {
        return fail("the limit of " + inQuotes(limit_.key) + " has neither 'minimum' nor 'maximum'");
    }
    if (limit_.minimum && limit_.maximum && *limit_.minimum > *limit_.maximum) {
        return fail("the minimum of " + inQuotes(limit_.key) + " is above the maximum");
    }
    set_.limits.push_back(limit_);
    place_ = Place::limits;
    return true;
}

bool Reader::endSet() {
    for (const char* const needed : {"name", "title", "notice", "limits"}) {
        if (seen_.count(needed) == 0) {
            return fail("missing key '" + std::string(needed) + '\'');
        }
    }
    std::sort(set_.limits.begin(), set_.limits.end(),
              [](const FigureLimit& left, const FigureLimit& right) { return left.key < right.key; });
    return true;
}

}  // namespace

LimitSetResult readLimitSet(std::string_view text) {
    Lines lines;
    Reader reader(lines);
    const char* const end = std::next(text.data(), static_cast<std::ptrdiff_t>(text.size()));
    static_cast<void>(json::sax_parse(CountingIterator(text.data(), lines), CountingIterator(end, lines), &reader));
    return reader.result();
}

}  // namespace lv::analysis
