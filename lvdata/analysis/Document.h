#pragma once

#include <lvdata/analysis/Catalogue.h>
#include <lvdata/analysis/Tree.h>
#include <lvdata/analysis/well_formed.h>
#include <lvdata/core/DataObject.h>
#include <lvdata/core/ParsedDocument.h>
#include <lvdata/xml/XMLView.h>

#include <memory>
#include <optional>
#include <string>
#include <string_view>

namespace lv::analysis {

/// Why a text is not the document of a record.
struct Refusal {
    /// What is wrong with it.
    enum class Kind {
        nulCharacter,  ///< It holds a NUL, where the XML library would stop reading.
        notXML,        ///< The XML library refuses it, or it has no element.
        unknownRoot,   ///< No record class has this root element.
    };

    Kind kind;           ///< What is wrong.
    int line;            ///< The line of the error, counted from 1; 0 when no line applies.
    std::string reason;  ///< In a few words; may hold the name of the root element, which can be as long as the text.
};

/// A text that was read as a record, for functions that need both: the record, and everything in the text.
///
/// The record's switch `writeHLGSystemGamma` is set when the text has an element "HLGSystemGamma" that the switch
/// governs, so that printing the record keeps it. Check untrusted texts against limits first (`findExcess`). Only one
/// thread at a time may use it.
class Document {
public:
    /// Reads the text. The catalogue must outlive the document.
    Document(const std::string& text, const Catalogue& catalogue);

    /// Why there is no record; null when there is one, and only then may the other functions be called.
    [[nodiscard]] const Refusal* refusal() const { return refusal_ ? &*refusal_ : nullptr; }

    /// The result of a strict parser. Even a document that is not well-formed can have a record, which may then hold
    /// less than the text.
    [[nodiscard]] const XMLVerdict& verdict() const { return verdict_; }

    /// The class of the record and what its documents can contain.
    [[nodiscard]] const Catalogue::Entry& entry() const { return *entry_; }

    /// The record that was read.
    [[nodiscard]] DataObject& record() { return *record_; }
    [[nodiscard]] const DataObject& record() const { return *record_; }

    /// Everything that the text holds. Nodes have line numbers.
    [[nodiscard]] const Tree& source() const { return *source_; }

    /// The document that the record prints.
    [[nodiscard]] Tree printed() const;

private:
    void refuse(Refusal::Kind kind, int line, std::string reason);
    void refuseAsXML(const std::string& text, const ParseResult& result);
    void readRecord(const std::string& text, const Catalogue& catalogue);

    XMLVerdict verdict_{};
    std::optional<Refusal> refusal_{};
    std::unique_ptr<ParsedDocument> parsed_{};
    const Catalogue::Entry* entry_ = nullptr;
    std::unique_ptr<DataObject> record_{};
    std::optional<Tree> source_{};
};

/// Whether the switch `writeHLGSystemGamma` determines that elements of this shape are written.
[[nodiscard]] bool isGovernedByHLGSwitch(const Shape& shape);

/// Whether a document has an element "HLGSystemGamma" that the switch governs.
[[nodiscard]] bool hasHLGSystemGamma(const XMLView& document, const Shape& root);

/// `unknown root element "Asset"; known: AssetInfo, BasicData, ...`
[[nodiscard]] std::string unknownRootElement(std::string_view name);

}  // namespace lv::analysis
