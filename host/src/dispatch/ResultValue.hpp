#pragma once

#include "types/ScalarConversion.hpp"
#include "types/TypeReference.hpp"

#include "velmara/Value.hpp"

#include "orbis/COSValue.hpp"

#include <string_view>
#include <utility>

namespace velmara {

/// A value that native code returned. The host owns it from then on, also when it is not of the data type of the
/// signature.
class ResultValue {
public:
    /// `type` is null where the signature has no result.
    explicit ResultValue(TypeReference const* type, orbis::COSValue value = {}) : type_(type), value_(value) {}
    ResultValue(ResultValue const&) = delete;
    ResultValue& operator=(ResultValue const&) = delete;

    ~ResultValue()
    {
        if (value_.isArray())
            release();
    }

    orbis::COSValue& slot() { return value_; }

    /// The value: a scalar, an array, or none. Throws "VELMARA:result:type", which names `member`, when the
    /// value is not of the type.
    [[gnu::always_inline]] Value take(Name member)
    {
        if (type_ && type_->kind == TypeKind::Scalar && value_.isScalarOf(type_->scalarClass)) [[likely]]
            return Value(value_);
        return takeOther(member->view());
    }

    ArrayPtr takeAsArray(Name member) { return toArray(take(member)); }

    /// A scalar becomes a new array; nothing is null.
    static ArrayPtr toArray(Value value)
    {
        orbis::COSValue const& slot = value.slot();
        return slot.isArray() || slot.isEmpty() ? value.releaseArray() : ArrayPtr(createScalar(slot));
    }

private:
    ArrayPtr takeSlot() { return ArrayPtr(std::exchange(value_, {}).array()); }
    Value takeOther(std::string_view member);
    Value takeArray(std::string_view member);
    void release() noexcept;

    TypeReference const* type_;
    orbis::COSValue value_;
};

} // namespace velmara
