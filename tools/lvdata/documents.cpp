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

}  // namespace

std::string readText(const std::string& file, const lv::Limits& limits) {
    std::string text = readInput(file, limits.bytes);
    if (const auto excess = lv::findExcess(text, limits)) {
        throw Failure(inputName(file), excessReason(*excess), excess->line);
    }
    return text;
}

Document readDocument(const std::string& file, const lv::Limits& limits, const Catalogue& catalogue) {
    Document document(readText(file, limits), catalogue);
    if (const Refusal* const refusal = document.refusal()) {
        throw failureOf(inputName(file), *refusal, catalogue);
    }
    return document;
}

}  // namespace tool
