#include "schema.h"

#include "CommandLine.h"
#include "Failure.h"
#include "Output.h"
#include "files.h"
#include "output_option.h"

#include <lvdata/analysis/Document.h>
#include <lvdata/analysis/schemas/json_schema.h>
#include <lvdata/analysis/schemas/xsd.h>

#include <memory>
#include <string>

namespace tool {
namespace {

struct SchemaOptions {
    std::string root;
    std::string output{standardStream};
    bool isXSD = false;
    bool isJSONSchema = false;
};

ExitStatus printSchema(const SchemaOptions& options) {
    if (!options.isXSD && !options.isJSONSchema) {
        throw Failure(program, "schema needs --xsd or --json-schema");
    }
    const lv::analysis::Catalogue catalogue;
    const lv::analysis::Catalogue::Entry* const entry = catalogue.find(options.root);
    if (entry == nullptr) {
        throw Failure(program, lv::analysis::unknownRootElement(options.root));
    }
    writeResult(options.output,
                options.isXSD ? lv::analysis::xsd(*entry->shape) : lv::analysis::jsonSchema(*entry->shape));
    return ExitStatus::done;
}

}  // namespace

Subcommand addSchema(CLI::App& application) {
    CLI::App* const command = application.add_subcommand("schema", "Print the schema of a record's documents");
    const auto options = std::make_shared<SchemaOptions>();
    CLI::Option* const forXML = command->add_flag("--xsd", options->isXSD, "XML Schema of the XML form");
    command->add_flag("--json-schema", options->isJSONSchema, "JSON Schema of the JSON form")->excludes(forXML);
    addOutputOption(*command, options->output);
    command->add_option("ROOT", options->root, "Root element of the documents, such as MonitorInfo")
        ->type_name("")
        ->required();
    return {command, [options] {
                return printSchema(*options);
            }};
}

}  // namespace tool
