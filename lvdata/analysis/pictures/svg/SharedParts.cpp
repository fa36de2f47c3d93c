#include <lvdata/analysis/pictures/svg/SharedParts.h>

namespace lv::analysis::svg {

std::string SharedParts::idOf(const std::string& part) {
    const auto [entry, isNew] = ids_.emplace(part, "p" + std::to_string(ids_.size() + 1));
    if (isNew) {
        definitions_ += "<g id=" + entry->second + ">" + part + "</g>\n";
    }
    return entry->second;
}

void SharedParts::define(const std::string& part) {
    if (defined_.insert(part).second) {
        definitions_ += part + '\n';
    }
}

std::string SharedParts::definitions() const {
    // Not display:none, which would switch off its gradients.
    return definitions_.empty() ? ""
                                : "<svg class=\"lv-picture lv-parts\" width=\"0\" height=\"0\" aria-hidden=\"true\">\n"
                                  "<defs>\n" +
                                      definitions_ + "</defs>\n</svg>\n";
}

}  // namespace lv::analysis::svg
