#include <lvdata/analysis/pictures/svg/SVGWriter.h>
#include <lvdata/analysis/pictures/svg/text.h>

namespace lv::analysis::svg {

Attribute::Attribute(std::string_view attribute, std::string_view text) : name(attribute), value(text) {}

Attribute::Attribute(std::string_view attribute, double coordinate)
    : name(attribute),
      value(coordinateText(coordinate)) {}

void SVGWriter::start(std::string_view name, const Attributes& attributes) {
    document_ += '<';
    document_ += name;
    for (const Attribute& attribute : attributes) {
        document_ += ' ';
        document_ += attribute.name;
        document_ += '=' + written(attribute.value);
    }
}

/// In a page, a value needs quotes only for what HTML does not take without them.
std::string SVGWriter::written(const std::string& value) const {
    constexpr std::string_view plain = "abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ0123456789.,:;-_#%()";
    const bool needsQuotes = !isForPage() || value.empty() || value.find_first_not_of(plain) != std::string::npos;
    return needsQuotes ? '"' + escaped(value) + '"' : value;
}

void SVGWriter::end(std::string_view mark) {
    document_ += mark;
    if (!isForPage()) {
        document_ += '\n';
    }
}

void SVGWriter::open(std::string_view name, const Attributes& attributes) {
    start(name, attributes);
    end(">");
    open_.push_back(name);
}

void SVGWriter::close() {
    document_ += "</";
    document_ += open_.back();
    end(">");
    open_.pop_back();
}

void SVGWriter::empty(std::string_view name, const Attributes& attributes) {
    start(name, attributes);
    end(document_.back() == '"' ? "/>" : " />");  // a slash would belong to a value without quotes
}

void SVGWriter::text(std::string_view name, const Attributes& attributes, std::string_view content) {
    start(name, attributes);
    document_ += '>';
    document_ += escaped(content);
    document_ += "</";
    document_ += name;
    end(">");
}

void SVGWriter::titled(std::string_view name, const Attributes& attributes, std::string_view title) {
    if (title.empty()) {
        empty(name, attributes);
        return;
    }
    start(name, attributes);
    document_ += "><title>" + escaped(title) + "</title></";
    document_ += name;
    end(">");
}

void SVGWriter::share(const SVGWriter& part, double down) {
    const std::string by = coordinateText(down);
    if (isForPage()) {
        const std::string id = '#' + shared_->idOf(part.document_);
        empty("use", down == 0 ? Attributes{{"href", id}} : Attributes{{"href", id}, {"y", by}});
    } else if (down == 0) {
        document_ += part.document_;
    } else {
        open("g", {{"transform", "translate(0," + by + ')'}});
        document_ += part.document_;
        close();
    }
}

void SVGWriter::define(const SVGWriter& part) {
    if (shared_ == nullptr) {
        document_ += part.document_;
    } else {
        shared_->define(part.document_);
    }
}

void SVGWriter::style(std::string_view sheet) {
    document_ += "<style>";
    document_ += sheet;
    document_ += "</style>\n";
}

}  // namespace lv::analysis::svg
