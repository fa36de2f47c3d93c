#include <lvdata/analysis/Catalogue.h>

#include <algorithm>

namespace lv::analysis {

Catalogue::Catalogue() {
    for (const RecordClass& recordClass : RecordClasses()) {
        auto facts = std::make_unique<const Description>(recordClass.describe());
        auto shape = std::make_unique<const Shape>(*facts);
        entries_.push_back({&recordClass, std::move(facts), std::move(shape)});
    }
}

const Catalogue::Entry* Catalogue::find(std::string_view rootElementName) const {
    const auto found = std::find_if(entries_.begin(), entries_.end(),
                                    [&](const Entry& entry) { return entry.recordClass->name == rootElementName; });
    return found == entries_.end() ? nullptr : &*found;
}

}  // namespace lv::analysis
