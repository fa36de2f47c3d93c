#include "MonitorSources.h"
#include "analysis.h"
#include "limits.h"

#include <optional>
#include <stdexcept>
#include <string>

#include <pybind11/stl.h>

namespace py = pybind11;

namespace lv::python {
namespace {

using analysis::LimitSet;
using analysis::PictureKind;
using analysis::PictureName;
using analysis::PictureRequest;
using analysis::colour::Plane;
using Text = std::optional<std::string>;

/// A picture that is asked for, with its limits.
struct Request {
    PictureRequest picture;
    std::optional<LimitSet> limits;
};

PictureKind kindOf(const std::string& name) {
    std::string known;
    for (const PictureName& each : analysis::pictureNames()) {
        if (each.name == name) {
            return each.kind;
        }
        known += (known.empty() ? "" : ", ") + std::string(each.name);
    }
    throw std::invalid_argument("unknown picture '" + name + "'; known pictures: " + known);
}

std::optional<Plane> planeOf(const Text& name) {
    if (!name || *name == "xy" || *name == "uv") {
        return name ? std::optional(*name == "xy" ? Plane::xy : Plane::uv) : std::nullopt;
    }
    throw std::invalid_argument("unknown plane '" + *name + "'; known planes: xy, uv");
}

Request requestOf(const std::string& kind, const Text& mode, const Text& plane, const Text& limits,
                  const Text& figure) {
    Request request;
    request.picture = {kindOf(kind), mode.value_or(""), planeOf(plane), limits.has_value(), figure.value_or("")};
    const std::string complaint = complaintAbout(request.picture);
    if (!complaint.empty()) {
        throw std::invalid_argument(complaint);
    }
    request.limits = limits ? std::optional(limitSet(*limits)) : std::nullopt;
    return request;
}

std::string picture(MonitorSources& monitor, const Request& request) {
    return monitor.picture(request.picture, request.limits ? &*request.limits : nullptr);
}

}  // namespace

void addPictures(py::module_& module) {
    using WithoutGIL = py::call_guard<py::gil_scoped_release>;
    py::class_<Request>(module, "PictureRequest")
        .def(py::init(&requestOf), WithoutGIL())
        .def_property_readonly("is_history",
                               [](const Request& request) { return request.picture.kind == PictureKind::history; });
    py::class_<MonitorSources>(module, "MonitorSources")
        .def(py::init<const Units&, bool>())
        .def("add", &MonitorSources::add, WithoutGIL())
        .def("latest", &MonitorSources::latest, WithoutGIL())
        .def("picture", &picture, WithoutGIL());
}

}  // namespace lv::python
