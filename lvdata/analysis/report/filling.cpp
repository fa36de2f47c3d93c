#include <lvdata/analysis/report/filling.h>

#include <lvdata/analysis/report/templates.h>

#include <kainjow/mustache.hpp>

namespace lv::analysis {
namespace {

namespace mustache = kainjow::mustache;

mustache::data dataOf(const View& view);

mustache::data dataOf(bool condition) {
    return condition;
}

mustache::data dataOf(const std::string& text) {
    return text.empty() ? mustache::data(false) : mustache::data(text);
}

mustache::data dataOf(const View::Items& items) {
    mustache::list list;
    list.reserve(items.size());
    for (const View& item : items) {
        list.push_back(dataOf(item));
    }
    return list;
}

mustache::data dataOf(const View::Members& members) {
    mustache::data object;
    for (const View::Member& member : members) {
        object[member.name] = dataOf(member.view);
    }
    return object;
}

mustache::data dataOf(const View& view) {
    return std::visit([](const auto& value) { return dataOf(value); }, view.value());
}

/// Their names have a point, which names of a view never have: a text of a document is never used as a template.
void addTemplates(mustache::data& data) {
    for (const auto& [name, text] : templates()) {
        data[std::string(name)] = mustache::data(std::string(text));
    }
}

}  // namespace

std::string filled(std::string_view name, const View& view) {
    mustache::data data = dataOf(view);
    addTemplates(data);
    mustache::mustache page("{{> " + std::string(name) + ".html}}");
    page.set_custom_escape(&escapedForHTML);
    return page.render(data);
}

}  // namespace lv::analysis
