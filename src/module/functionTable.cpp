#include "module/functionTable.hpp"

#include "libut/libut.hpp"

class hvArray_tag;

namespace orbis::factory {

namespace {

using GatewayFunction = void (*)(int outputCount, hvArray_tag* outputs, int inputCount, hvArray_tag* inputs);

struct FunctionTable {
    GatewayFunction const* functions;
};

} // namespace

void dummy(int, hvArray_tag*, int, hvArray_tag*)
{
    utPrintf("Internal Error!");
}

void const* functionTable()
{
    static constexpr GatewayFunction functions[] = {&dummy, &dummy, nullptr};
    static constexpr FunctionTable table{functions};
    return &table;
}

} // namespace orbis::factory
