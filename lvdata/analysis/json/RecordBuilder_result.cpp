#include <lvdata/analysis/Tree.h>
#include <lvdata/analysis/check/check.h>
#include <lvdata/analysis/json/RecordBuilder.h>

#include <lvdata/xml/XMLDocument.h>
#include <lvdata/xml/XMLView.h>

#include <algorithm>

namespace lv::analysis {
namespace {

/// Remarks are omitted: they are not losses.
Findings lossesOf(const XMLDocument& document, const Catalogue::Entry& entry, const DataObject& record) {
    Findings losses = checkTree(Tree(XMLView(document)), entry, record, pureLossOptions());
    const auto isRemark = [](const Finding& finding) {
        return finding.severity == Severity::info;
    };
    losses.listed.erase(std::remove_if(losses.listed.begin(), losses.listed.end(), isRemark), losses.listed.end());
    losses.infos = 0;
    return losses;
}

}  // namespace

FromJSON RecordBuilder::result() const {
    FromJSON result;
    result.error = error_;
    if (!error_ && !isComplete_) {
        result.error = JSONError{line_, {}, "there is no record", std::nullopt};
    }
    if (!result.error) {
        const XMLDocument document;
        const XMLElement element = document.appendChild(entry_->recordClass->name);
        appendContent(element, *root_);
        result.entry = entry_;
        result.record = entry_->recordClass->make();
        result.record->writeHLGSystemGamma = hlgSwitch_;
        static_cast<void>(result.record->parseXMLElement(element));
        result.losses = lossesOf(document, *entry_, *result.record);
    }
    return result;
}

}  // namespace lv::analysis
