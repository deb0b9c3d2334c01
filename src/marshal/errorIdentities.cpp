#include "orbis/factory/errorIdentities.hpp"

namespace orbis_factory::orbis_factory {

namespace {
constexpr char const* catalog = "orbis_factory:orbis_factory";
} // namespace

null_self::null_self() : BaseMsgID(catalog, "null_self") {}

null_self::~null_self() = default;

null_fcn_ptr::null_fcn_ptr() : BaseMsgID(catalog, "null_fcn_ptr") {}

null_fcn_ptr::~null_fcn_ptr() = default;

no_such_class::no_such_class(char const* className) : BaseMsgID(catalog, "no_such_class", {className}) {}

no_such_class::~no_such_class() = default;

} // namespace orbis_factory::orbis_factory
