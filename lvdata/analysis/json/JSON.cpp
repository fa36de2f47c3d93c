#include <lvdata/analysis/Projection.h>
#include <lvdata/analysis/json/EventPath.h>
#include <lvdata/analysis/json/JSON.h>
#include <lvdata/analysis/utf8.h>

namespace lv::analysis {
namespace {

/// Notes where the first text is that is not UTF-8.
class PathOfOtherBytes final : public Sink {
public:
    [[nodiscard]] const std::string& path() const { return found_; }

    void beginObject() override { path_.beginObject(); }
    void key(std::string_view name) override { path_.key(name); }
    void endObject() override { path_.end(); }
    void beginArray(Entries /*entries*/) override { path_.beginArray(); }
    void endArray() override { path_.end(); }
    void number(std::string_view /*text*/, NumberKind /*kind*/) override {}
    void boolean(bool /*value*/) override {}
    void null() override {}

    void string(std::string_view text) override {
        if (found_.empty() && !isUTF8(text)) {
            found_ = path_.toString();
        }
    }

private:
    EventPath path_{};
    std::string found_{};
};

JSONResult failure(std::string path, std::string reason) {
    JSONResult result;
    result.error = JSONError{0, std::move(path), std::move(reason), std::nullopt};
    return result;
}

}  // namespace

std::string JSONError::toString() const {
    return (line > 0 ? "line " + std::to_string(line) + ": " : "") + (path.empty() ? "" : path + ": ") + reason;
}

JSONResult toJSON(const DataObject& record, const Catalogue& catalogue, JSONForm form) {
    std::string text = record.toXMLString(false, false);
    const std::size_t length = text.size();
    const Tree printed = Tree::ofPrinted(std::move(text));
    const Node* const root = printed.root();
    const Catalogue::Entry* const entry = root == nullptr ? nullptr : catalogue.find(root->name);
    if (entry == nullptr) {
        return failure("", "no record class has the root element of this record");
    }
    JSONResult result;
    result.text.reserve(length);  // compact JSON is shorter
    JSONWriter writer(result.text, form);
    project(printed, *entry->shape, writer);
    if (!writer.isUTF8()) {
        PathOfOtherBytes finder;
        project(printed, *entry->shape, finder);
        return failure(finder.path(), "JSON cannot carry bytes that are not UTF-8");
    }
    return result;
}

}  // namespace lv::analysis
