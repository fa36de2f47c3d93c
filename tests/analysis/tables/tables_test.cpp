#include <tests/analysis/tables/rows_of_tables.h>
#include <tests/support/MarkdownTable.h>

#include <set>
#include <unordered_set>

#include <gmock/gmock.h>

namespace lv::test {
namespace {

using analysis::Table;
using nlohmann::json;
using testing::HasSubstr;

/// Notes of each value whether it is of the kind that its column is said to have.
class KindsSink final : public analysis::Sink {
public:
    explicit KindsSink(const std::vector<analysis::Column>& columns) : columns_(columns) {}

    void beginObject() override { next_ = 0; }
    void key(std::string_view name) override { EXPECT_EQ(name, columns_[next_].name); }
    void endObject() override {}
    void beginArray(Entries /*entries*/) override {}
    void endArray() override {}
    void string(std::string_view /*text*/) override { note(Values::text); }
    void number(std::string_view /*text*/, NumberKind kind) override {
        note(kind == NumberKind::integer ? Values::integer : Values::fraction);
    }
    void boolean(bool /*value*/) override { FAIL(); }
    void null() override { ++next_; }

    /// Columns without a value that is exactly of their kind.
    [[nodiscard]] std::vector<std::string> unseen() const {
        std::vector<std::string> names;
        for (const analysis::Column& column : columns_) {
            if (seen_.count(column.name) == 0) {
                names.emplace_back(column.name);
            }
        }
        return names;
    }

private:
    using Values = analysis::Values;

    void note(Values kind) {
        const analysis::Column& column = columns_[next_++];
        EXPECT_TRUE(kind == column.values || (kind == Values::integer && column.values == Values::fraction))
            << column.name;
        if (kind == column.values) {
            seen_.insert(column.name);
        }
    }

    const std::vector<analysis::Column>& columns_;
    std::size_t next_ = 0;
    std::unordered_set<std::string_view> seen_;
};

std::string page() {
    std::string text;
    for (const analysis::TableDescription& table : analysis::tables()) {
        MarkdownTable markdown{{"Column", "Values", "Unit", "Meaning"}, {}};
        for (const analysis::Column& column : table.columns) {
            markdown.rows.push_back({'`' + std::string(column.name) + '`', std::string(nameOf(column.values)),
                                     std::string(column.unit), std::string(column.meaning)});
        }
        text += "### " + std::string(table.name) + "\n\nA row for " + std::string(table.rows) + ".\n\n" +
                markdown.toString() + '\n';
    }
    text.pop_back();
    return text;
}

}  // namespace

TEST(Tables, SayWhatTheValuesOfTheirColumnsAre) {
    const std::string assets =
        "<AssetInfo><Asset1>1</Asset1><Asset2>2</Asset2><Asset3>3</Asset3><Asset4>4</Asset4><Asset5>5</Asset5>"
        "<Asset6>6</Asset6><Asset7>7</Asset7><Asset8>8</Asset8></AssetInfo>";
    const std::string patches =
        "<MeasurementData><Measurements><CMYK>1|2|3|4</CMYK><PQR>1|2|3</PQR></Measurements></MeasurementData>";
    for (const analysis::TableDescription& table : analysis::tables()) {
        KindsSink sink(table.columns);
        for (const std::string& text :
             {studioText(), assets, patches, scheduleOfKind("1"), scheduleOfKind("2"), scheduleOfKind("3")}) {
            const analysis::Document document(text, catalogue());
            ASSERT_EQ(document.refusal(), nullptr);
            analysis::addRows(table.table, document.record(), "a.xml", sink);
        }
        const std::vector<std::string> neverGiven = {"mode_index"};  // in tables whose rows are not of a mode
        EXPECT_THAT(sink.unseen(), testing::IsSubsetOf(neverGiven)) << table.name;
    }
}

TEST(Tables, HaveNoRowsForDocumentsWithoutTheirData) {
    for (const analysis::TableDescription& table : analysis::tables()) {
        EXPECT_TRUE(rowsOf(table.table, "<CorrelationInfo/>").empty()) << table.name;
    }
}

TEST(Tables, HaveEveryKeyInEveryRow) {
    for (const analysis::TableDescription& table : analysis::tables()) {
        std::set<std::string> names;
        for (const analysis::Column& column : table.columns) {
            names.insert(std::string(column.name));
        }
        EXPECT_EQ(names.size(), table.columns.size()) << table.name;
        for (const json& row : rowsOf(table.table, studioText())) {
            std::set<std::string> keys;
            for (const auto& item : row.items()) {
                keys.insert(item.key());
            }
            EXPECT_EQ(keys, names);
        }
    }
}

TEST(Tables, AreFoundByTheirKind) {
    for (const analysis::TableDescription& table : analysis::tables()) {
        EXPECT_EQ(&analysis::tableDescription(table.table), &table);
    }
}

TEST(Tables, AreOnTheirPage) {
    EXPECT_THAT(contentOf(LVDATA_DOCS_DIR "/tables.md"), HasSubstr(page()));
}

TEST(Tables, AreWrittenAsCSV) {
    EXPECT_EQ(csvOf(Table::maps, "<CandelaMap><Uniformity><Values>5</Values><UpdatedAt>a,\"b\"</UpdatedAt></Uniformity>"
                                 "</CandelaMap>"),
              "file,uuid,serial,mode_index,kind,entry,value,updated_at\r\n"
              "a.xml,,,,uniformity,0,5,\"a,\"\"b\"\"\"\r\n");
}

TEST(CSV, QuotesWhatItMust) {
    std::string text;
    analysis::CSVWriter writer(text);
    writer.beginObject();
    for (const char* const value : {"", "=1+1", "a b", "a,b", "\"", "a\nb", "\r"}) {
        writer.string(value);
    }
    writer.boolean(true);
    writer.null();
    writer.endObject();
    EXPECT_EQ(text, ",=1+1,a b,\"a,b\",\"\"\"\",\"a\nb\",\"\r\",true,\r\n");
}

}  // namespace lv::test
