#pragma once

#include "orbis/factory/descriptors/Getter.hpp"
#include "orbis/factory/descriptors/ReleaseRoutine.hpp"
#include "orbis/factory/descriptors/readers.hpp"

namespace orbis::factory::impl {

/// Common base of the getters: reads as `Reader` does.
template <class Reader>
class CallableGetter : public Getter {
public:
    static constexpr bool needsObject = Reader::needsObject; ///< false for getters of classes

    /// `release`, unless null, is called for each value that was read.
    explicit CallableGetter(typename Reader::Pointer getter, ReleaseRoutine release = nullptr)
        : getter_(getter),
          release_(release)
    {
    }

    COSValue getValue(COSInterface* object) const override { return detail::readValue<Reader>(getter_, object); }

    char const* dataTypeName() const override { return detail::dataTypeText<typename Reader::Value>(); }

    void releaseValue(COSInterface* object, COSValue value) const override
    {
        if (release_)
            release_(object, value);
    }

    Enumeration<COSInterface*> getInterfaces(COSInterface* object) const override
    {
        Enumeration<COSInterface*> found;
        if constexpr (detail::refersToObjects<Reader>)
            detail::findInterfaces<Reader>(getter_, object, found);
        return found;
    }

    bool canContainInterfaces() const override { return detail::refersToObjects<Reader>; }

private:
    typename Reader::Pointer getter_;
    ReleaseRoutine release_;
};

} // namespace orbis::factory::impl
