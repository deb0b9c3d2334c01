#pragma once

#include "orbis/factory/descriptors/Setter.hpp"
#include "orbis/factory/descriptors/writers.hpp"

namespace orbis::factory::impl {

/// Common base of the setters: writes as `Writer` does.
template <class Writer>
class CallableSetter : public Setter {
public:
    static constexpr bool needsObject = Writer::needsObject; ///< false for setters of classes

    /// `setter` is not null.
    explicit CallableSetter(typename Writer::Pointer setter) : setter_(setter) {}

    void setValue(COSInterface* object, COSValue value) const override { Writer::write(setter_, object, value); }
    char const* dataTypeName() const override { return detail::dataTypeText<typename Writer::Value>(); }

private:
    typename Writer::Pointer setter_;
};

} // namespace orbis::factory::impl
