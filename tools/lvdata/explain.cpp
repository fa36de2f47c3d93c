#include "explain.h"

#include "CommandLine.h"
#include "Failure.h"
#include "Output.h"

#include <lvdata/analysis/check/Rule.h>
#include <lvdata/analysis/printable.h>

#include <memory>
#include <string>

namespace tool {
namespace {

using lv::analysis::Rule;

/// The text with line breaks, so that no line has more than 80 characters.
std::string wrapped(std::string_view text) {
    constexpr std::size_t width = 80;
    std::string lines;
    while (text.size() > width) {
        const std::size_t space = text.rfind(' ', width);
        lines += text.substr(0, space);
        lines += '\n';
        text.remove_prefix(space + 1);
    }
    return lines + std::string(text) + '\n';
}

/// An indented sample. One of the samples holds a byte that a terminal cannot show.
std::string indented(std::string_view text) {
    std::string lines;
    while (!text.empty()) {
        const std::size_t end = text.find('\n');
        lines += "    " + lv::analysis::printable(text.substr(0, end)) + '\n';
        text.remove_prefix(end + 1);
    }
    return lines;
}

std::string headline(const Rule& rule) {
    return std::string(rule.id) + ' ' + std::string(nameOf(rule.severity)) + ": " + std::string(rule.title) + '\n';
}

std::string explanation(const Rule& rule) {
    return headline(rule) + '\n' + wrapped(rule.explanation) + "\nWith a finding in line " + std::to_string(rule.line) +
           ":\n\n" + indented(rule.failing) + "\nWithout:\n\n" + indented(rule.passing);
}

std::string everyHeadline() {
    std::string text;
    for (const Rule& rule : lv::analysis::rules()) {
        text += headline(rule);
    }
    return text;
}

ExitStatus explain(const std::string& id) {
    const Rule* const rule = id.empty() ? nullptr : lv::analysis::findRule(id);
    if (rule == nullptr && !id.empty()) {
        throw Failure(program, "'" + id + "' is not the id of a rule; lvdata explain lists all");
    }
    writeResult("-", rule == nullptr ? everyHeadline() : explanation(*rule));
    return ExitStatus::done;
}

}  // namespace

Subcommand addExplain(CLI::App& application) {
    CLI::App* const command = application.add_subcommand("explain", "Explain a rule of check, or list all rules");
    const auto id = std::make_shared<std::string>();
    command->add_option("ID", *id, "Id of the rule, such as 301")->type_name("");
    return {command, [id] {
                return explain(*id);
            }};
}

}  // namespace tool
