#pragma once

#include "types/ScalarConversion.hpp"
#include "types/TypeReference.hpp"

#include "velmara/ArrayPtr.hpp"

#include "orbis/COSValue.hpp"

#include <string_view>

namespace velmara {

/// A value that native code gave as a result. It is the host's from then on, also when it turns out not to be of
/// the data type that was promised.
class ResultValue {
public:
    /// `type` is null where no result was promised.
    explicit ResultValue(TypeReference const* type, orbis::COSValue value = {}) : type_(type), value_(value) {}
    ResultValue(ResultValue const&) = delete;
    ResultValue& operator=(ResultValue const&) = delete;

    ~ResultValue()
    {
        if (value_.isArray())
            giveBack();
    }

    orbis::COSValue& slot() { return value_; }

    /// The value as an array; null for an empty one. Throws "VELMARA:result:type", which names `member`, when the
    /// value is not of the type.
    ArrayPtr take(Name member)
    {
        if (type_ && type_->kind == TypeKind::Scalar && value_.isScalarOf(type_->scalarClass)) [[likely]]
            return ArrayPtr(createScalar(value_));
        return takeOther(member->view());
    }

private:
    ArrayPtr takeOther(std::string_view member);
    ArrayPtr takeArray(std::string_view member);
    void giveBack() noexcept;

    TypeReference const* type_;
    orbis::COSValue value_;
};

} // namespace velmara
