#include "orbis/factory/FunctionDescription.hpp"

#include <utility>

namespace orbis::factory {

FunctionDescription::FunctionDescription() = default;

FunctionDescription::FunctionDescription(FunctionDescription const&) = default;

FunctionDescription::~FunctionDescription() = default;

std::vector<MemberRecord> const& FunctionDescription::functions() const
{
    return functions_;
}

void FunctionDescription::add(std::vector<MemberRecord> records)
{
    functions_.reserve(functions_.size() + records.size());
    for (MemberRecord& record : records)
        functions_.push_back(std::move(record));
}

void FunctionDescription::add(MemberRecord record)
{
    functions_.push_back(std::move(record));
}

} // namespace orbis::factory
