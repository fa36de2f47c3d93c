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
    std::set<std::string, std::less<>> ignored{};  ///< Ids of rules that are not looked for.
    bool roundtrip = false;                        ///< Also whether the text is what the record prints, byte for byte.
    std::size_t mostListed = 1000;                 ///< At most so many of each severity are listed; all are counted.
};

/// Options that leave out the rules about values which are kept as they are: what is left is lost, changed or added
/// when the document is written back.
[[nodiscard]] CheckOptions lossOptions();

/// The same without the rules where nothing that the document says is lost.
[[nodiscard]] CheckOptions pureLossOptions();

/// What would be lost, changed or added if the text was read as a record and written back, and what in it is hardly
/// meant. Without a finding of a warning or an error the record holds all that the text says: the text is compared with
/// the document that the record prints, and each difference is a finding. The order of elements and attributes, white
/// space between elements and the spelling of characters (entities, CDATA) do not count as differences.
///
/// Takes any text; look for the limits of hostile ones before (`findExcess`). May be called from any number of threads
/// with one catalogue. Time grows with the length of the text.
[[nodiscard]] Findings check(const std::string& text, const Catalogue& catalogue, const CheckOptions& options = {});

/// The same for a document that was read already. `record` is printed with its switch `writeHLGSystemGamma` as it is:
/// when it is off, the elements that it drops are among the findings.
[[nodiscard]] Findings checkDocument(const Document& document, const CheckOptions& options = {});

/// The same for the nodes of a document that was not read from a text, and the record that was read from it.
[[nodiscard]] Findings checkTree(const Tree& source, const Catalogue::Entry& entry, const DataObject& record,
                                 const CheckOptions& options = {});

}  // namespace lv::analysis
