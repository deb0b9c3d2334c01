// expect PAIR: include orbis/factory/types/pair.hpp.
// expect TUPLE: include orbis/factory/types/pair.hpp.
// expect MAP: include orbis/factory/types/map.hpp.
// expect HASHED: include orbis/factory/types/map.hpp.
// expect ARRAY: include orbis/factory/types/array.hpp.
// expect SET: include orbis/factory/types/set.hpp.
// expect VARIANT: include orbis/factory/types/variant.hpp.
// expect TIME: include orbis/factory/types/chrono.hpp.
// expect PATH: include orbis/factory/types/path.hpp.
// expect WIDE: include orbis/factory/types/wstring.hpp.
// expect COMPLEX: include orbis/factory/types/complex.hpp.
// expect OBJECTS: orbis/factory/types/objectValues.hpp.
// expect OWNED: orbis/factory/types/objectValues.hpp.
// expect NESTED: include orbis/factory/types/nestedVectors.hpp.
// expect EIGEN: include orbis/factory/types/eigen.hpp.
// expect FUNCTION: include orbis/factory/types/function.hpp.
// expect OTHER: There is no marshaling policy for this native type
#include "orbis/factory.hpp"

#include <array>
#include <chrono>
#include <complex>
#include <filesystem>
#include <functional>
#include <map>
#include <set>
#include <tuple>
#include <unordered_map>
#include <variant>

namespace Eigen {
template <class T>
class Matrix {};
} // namespace Eigen

struct Part {};

template <class... T>
void take(T...)
{
}

void describeAll()
{
    orbis::factory::describeFunctions()
        .function("a", &take<PAIR(int, std::pair<int, int>)>)
        .function("b", &take<TUPLE(int, std::tuple<int>)>)
        .function("c", &take<MAP(int, std::map<int, int>)>)
        .function("d", &take<HASHED(int, std::unordered_map<int, int>)>)
        .function("e", &take<ARRAY(int, std::array<int, 2>)>)
        .function("f", &take<SET(int, std::set<int>)>)
        .function("g", &take<VARIANT(int, std::variant<int>)>)
        .function("h", &take<TIME(int, std::chrono::seconds)>)
        .function("i", &take<PATH(int, std::filesystem::path)>)
        .function("j", &take<WIDE(int, std::wstring)>)
        .function("k", &take<COMPLEX(int, std::complex<double>)>)
        .function("l", &take<OBJECTS(int, std::vector<Part>)>)
        .function("m", &take<OWNED(int, std::vector<std::unique_ptr<Part>>)>)
        .function("n", &take<NESTED(int, std::vector<std::vector<int>>)>)
        .function("o", &take<EIGEN(int, Eigen::Matrix<int>)>)
        .function("q", &take<FUNCTION(int, std::function<int(int)>)>)
        .function("p", &take<OTHER(int, std::initializer_list<int>)>);
}
