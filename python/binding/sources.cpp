#include "sources.h"

#include "failures.h"
#include "shared.h"

#include <lvdata/analysis/files/files.h>
#include <lvdata/xml/Limits.h>

#include <utility>

namespace lv::python {
namespace {

using analysis::Document;
using analysis::Refusal;

ParseFailure failureOf(const Refusal& refusal, const std::string& file) {
    const bool isUnknown = refusal.kind == Refusal::Kind::unknownRoot;
    const std::string reason = isUnknown ? analysis::unknownRootElement(refusal.reason) : refusal.reason;
    return {reason, isUnknown ? 0 : refusal.line, file};
}

}  // namespace

std::string readDocument(const std::string& file) {
    const Limits limits;
    analysis::FileContent content = analysis::readFile(file, limits.bytes + 1);
    if (!content) {
        throw FileFailure{content.error, content.error.message(), file};
    }
    if (content.text.size() > limits.bytes) {
        throw ParseFailure{Excess{Excess::What::bytes, limits.bytes, limits.bytes, 0}.toString(), 0, file};
    }
    return std::move(content.text);
}

void refuseExcess(const std::string& text, const std::string& file) {
    if (const auto excess = findExcess(text)) {
        throw ParseFailure{excess->toString(), excess->line, file};
    }
}

std::unique_ptr<DataObject> recordIn(const std::string& text, const std::string& file) {
    analysis::LoadedRecord loaded = analysis::loadText(text, catalogue());
    if (!loaded) {
        static_cast<void>(documentOf(text, file));  // throws, with the words that all others have for it
        throw ParseFailure{loaded.result.reason, loaded.result.line, file};
    }
    return std::move(loaded.record);
}

Document documentOf(const std::string& text, const std::string& file) {
    refuseExcess(text, file);
    Document document(text, catalogue());
    if (const Refusal* const refusal = document.refusal()) {
        throw failureOf(*refusal, file);
    }
    return document;
}

std::string inFile(const std::string& file, const std::string& reason) {
    return (file.empty() ? "" : file + ": ") + reason;
}

}  // namespace lv::python
