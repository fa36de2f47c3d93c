#pragma once

#include <tests/analysis/catalogue.h>

#include <tests/support/DescribedNode.h>

#include <string>
#include <vector>

#include <lvdata/analysis/Catalogue.h>

// Documents that records print, to be judged by schemas.

namespace lv::test {

/// A document, with a name for messages.
struct NamedDocument {
    std::string name;
    std::string text;
};

/// The expected golden documents of the record, and its samples.
[[nodiscard]] std::vector<NamedDocument> storedDocuments(const std::string& record);

/// What a record prints that has read a document in which the node's conditions hold, so that the node is in it.
[[nodiscard]] std::string printedWith(const DescribedNode& node, const analysis::Catalogue::Entry& entry);

}  // namespace lv::test
