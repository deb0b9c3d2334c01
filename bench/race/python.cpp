// The native code as a Python module by pybind11: lists by its header for standard containers, arrays as numpy's.
#include "native.hpp"

#include <pybind11/numpy.h>
#include <pybind11/pybind11.h>
#include <pybind11/stl.h>

#include <utility>

namespace py = pybind11;

namespace {

using Numbers = py::array_t<double, py::array::c_style>;

template <int... numbers>
void publishKinds(py::module_& module, std::integer_sequence<int, numbers...>)
{
    (py::class_<race::Kind<numbers>>(module, ("Kind" + std::to_string(numbers)).c_str()).def(py::init<>()), ...);
    (module.def("choose", &race::choose<numbers>, py::arg("kind")), ...);
}

void publishArrays(py::module_& module)
{
    module.def(
        "countArray",
        [](Numbers const& numbers) {
            return race::countNumbers(std::vector<double>(numbers.data(), numbers.data() + numbers.size()));
        },
        py::arg("numbers"));
    module.def("array", [] {
        auto const& numbers = race::numbers();
        return Numbers(static_cast<py::ssize_t>(numbers.size()), numbers.data());
    });
}

} // namespace

PYBIND11_MODULE(race_python, module)
{
    py::class_<race::Adder>(module, "Adder")
        .def(py::init<>())
        .def("getSum", &race::Adder::getSum, py::arg("a"), py::arg("b"))
        .def_readwrite("total", &race::Adder::total);
    module.def("add", &race::add, py::arg("a"), py::arg("b"));
    module.def("length", &race::length, py::arg("text"));
    module.def("name", &race::name);
    module.def("self", &race::self, py::arg("adder"), py::return_value_policy::reference);
    module.def("describe", py::overload_cast<double>(&race::describe), py::arg("value"));
    module.def("describe", py::overload_cast<std::string const&>(&race::describe), py::arg("value"));
    module.def("describe", py::overload_cast<race::Adder const*>(&race::describe), py::arg("value"));
    module.def("count", &race::count, py::arg("texts"));
    module.def("names", &race::names);
    module.def("countNumbers", &race::countNumbers, py::arg("numbers"));
    module.def("numbers", &race::numbers);
    module.def("fail", &race::fail);
    publishKinds(module, std::make_integer_sequence<int, race::kindCount>());
    publishArrays(module);
}
