// expect: Objects of this class cross in std::shared_ptr: derive the class from full::StdShareable.
#include "Published.hpp"

#include "orbis/factory/types/SharedPointerPolicy.hpp"

struct Published : orbis::factory::full::EITHER(StdShareable, Wrappable) {};

auto const described =
    orbis::factory::describe<Published>().staticMethod("make", [] { return std::make_shared<Published>(); });
