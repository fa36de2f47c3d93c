#pragma once

#include <lvdata/analysis/Catalogue.h>
#include <lvdata/analysis/Document.h>
#include <lvdata/analysis/check/Finding.h>

#include <cstddef>
#include <set>
#include <string>
#include <string_view>

namespace lv::analysis {

/// What to look for, and how much of it to list.
struct CheckOptions {
    std::set<std::string, std::less<>> ignored{};  ///< Ids of rules that are skipped.
    bool roundtrip = false;         ///< Also compare the text with what the record prints, byte for byte.
    std::size_t mostListed = 1000;  ///< Maximum number of listed findings per severity; all are counted.
};

/// Options without the rules about values that are kept: the remaining rules are about content that is lost, changed or
/// added when the document is written back.
[[nodiscard]] CheckOptions lossOptions();

/// The same, and also without the rules where no content of the document is lost.
[[nodiscard]] CheckOptions pureLossOptions();

/// Finds what would be lost, changed or added if the text was read as a record and written back, and values that are
/// probably a mistake. If no finding is a warning or an error, the record holds everything in the text: the text is
/// compared with the document that the record prints, and each difference is a finding. The order of elements and
/// attributes, white space between elements and the spelling of characters (entities, CDATA) do not count as
/// differences.
///
/// Takes any text; check untrusted texts against limits first (`findExcess`). Any number of threads may call it with
/// one catalogue. Time is proportional to the length of the text.
[[nodiscard]] Findings check(const std::string& text, const Catalogue& catalogue, const CheckOptions& options = {});

/// The same for a document that was already read. The record is printed with its current `writeHLGSystemGamma`: when
/// the switch is off, the elements that are then dropped are among the findings.
[[nodiscard]] Findings checkDocument(const Document& document, const CheckOptions& options = {});

/// The same for the nodes of a document that was not read from a text, and the record that was read from it.
[[nodiscard]] Findings checkTree(const Tree& source, const Catalogue::Entry& entry, const DataObject& record,
                                 const CheckOptions& options = {});

}  // namespace lv::analysis
