#include "documents.h"

#include "Failure.h"
#include "files.h"
#include "limit_options.h"

#include <lvdata/analysis/check/wording.h>

namespace tool {
namespace {

using lv::analysis::Catalogue;
using lv::analysis::Document;
using lv::analysis::Refusal;

Failure failureOf(const std::string& name, const Refusal& refusal, const Catalogue& catalogue) {
    if (refusal.kind != Refusal::Kind::unknownRoot) {
        return {name, refusal.reason, refusal.line};
    }
    return {name, "unknown root element " + lv::analysis::quoted(refusal.reason) +
                      ", known are: " + knownRootElements(catalogue)};
}

void refuseExcess(const std::string& text, const std::string& name, const lv::Limits& limits) {
    if (const auto excess = lv::findExcess(text, limits)) {
        throw Failure(name, excessReason(*excess), excess->line);
    }
}

}  // namespace

std::string readText(const std::string& file, const lv::Limits& limits) {
    std::string text = readInput(file, limits.bytes);
    refuseExcess(text, inputName(file), limits);
    return text;
}

Document documentOf(const std::string& text, const std::string& name, const lv::Limits& limits,
                    const Catalogue& catalogue) {
    refuseExcess(text, name, limits);
    Document document(text, catalogue);
    if (const Refusal* const refusal = document.refusal()) {
        throw failureOf(name, *refusal, catalogue);
    }
    return document;
}

Document readDocument(const std::string& file, const lv::Limits& limits, const Catalogue& catalogue) {
    return documentOf(readInput(file, limits.bytes), inputName(file), limits, catalogue);
}

}  // namespace tool
