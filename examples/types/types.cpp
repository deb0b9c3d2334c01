#include "orbis/factory.hpp"
#include "orbis/factory/notNull.hpp"
#include "orbis/factory/publishEnumeration.hpp"
#include "orbis/factory/types/array.hpp"
#include "orbis/factory/types/chrono.hpp"
#include "orbis/factory/types/complex.hpp"
#include "orbis/factory/types/function.hpp"
#include "orbis/factory/types/hvConstArrayProxy.hpp"
#include "orbis/factory/types/map.hpp"
#include "orbis/factory/types/matrix.hpp"
#include "orbis/factory/types/nestedVectors.hpp"
#include "orbis/factory/types/objectValues.hpp"
#include "orbis/factory/types/pair.hpp"
#include "orbis/factory/types/path.hpp"
#include "orbis/factory/types/set.hpp"
#include "orbis/factory/types/variant.hpp"
#include "orbis/factory/types/wstring.hpp"

#include <cstdint>
#include <utility>

using namespace orbis::factory;

struct Point {
    double x;
    double y;
};

enum class Color { Red, Green };

/// Gives back what it takes.
template <class T>
T echo(T value)
{
    return std::forward<T>(value);
}

void publishModule(Module& types)
{
    types.publish<Point>("Point").constructor<double, double>("x, y").property("x", &Point::x).property("y", &Point::y);
    publishEnumeration<Color>(types, "Color", {{"Red", Color::Red}, {"Green", Color::Green}}, "What a lamp shows");

    types.function("bool", &echo<bool>, "value")
        .function("int", &echo<int>, "value")
        .function("uint8", &echo<std::uint8_t>, "value")
        .function("double", &echo<double>, "value")
        .function("char", &echo<char>, "value")
        .function("string", &echo<std::string>, "value")
        .function("pointer", &echo<char const*>, "value")
        .function("view", &echo<std::string_view>, "value")
        .function("wide", &echo<std::wstring>, "value")
        .function("path", &echo<std::filesystem::path>, "value")
        .function("enumeration", &echo<Color>, "value")
        .function("seconds", &echo<std::chrono::seconds>, "value")
        .function("time", &echo<std::chrono::system_clock::time_point>, "value")
        .function("complex", &echo<std::complex<double>>, "value")
        .function("copy", &echo<Point>, "value")
        .function("reference", &echo<Point&>, "value")
        .function("object", &echo<Point*>, "value")
        .function("notNull", notNull(&echo<Point*>), "value")
        .function("unique", &echo<std::unique_ptr<Point>>, "value")
        .function("shared", &echo<std::shared_ptr<Point>>, "value")
        .function("function", &echo<std::function<double(double)>>, "value")
        .function("optional", &echo<std::optional<double>>, "value")
        .function("variant", &echo<std::variant<bool, double, std::string>>, "value")
        .function("vector", &echo<std::vector<double>>, "value")
        .function("ints", &echo<std::vector<int>>, "value")
        .function("bools", &echo<std::vector<bool>>, "value")
        .function("span", &echo<std::span<double const>>, "value")
        .function("array", &echo<std::array<int, 3>>, "value")
        .function("strings", &echo<std::vector<std::string>>, "value")
        .function("nested", &echo<std::vector<std::vector<double>>>, "value")
        .function("pair", &echo<std::pair<std::string, int>>, "value")
        .function("tuple", &echo<std::tuple<int, bool, std::string>>, "value")
        .function("set", &echo<std::set<int>>, "value")
        .function("map", &echo<std::map<std::string, int>>, "value")
        .function("numbered", &echo<std::map<int, std::string>>, "value")
        .function("matrix", &echo<Matrix<double>>, "value")
        .function("matrixView", &echo<MatrixView<float>>, "value")
        .function("complexes", &echo<std::vector<std::complex<double>>>, "value")
        .function("objects", &echo<std::vector<Point>>, "value")
        .function("pointers", &echo<std::vector<Point*>>, "value")
        .function("uniques", &echo<std::vector<std::unique_ptr<Point>>>, "value")
        .function("anything", &echo<hvConstArrayProxy>, "value");
}
