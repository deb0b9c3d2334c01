#pragma once

#include "orbis/factory/marshaling/MarshalingPolicy.hpp"

/// A native angle; scripts use degrees, as a number.
struct Angle {
    static constexpr double radiansOfDegree = 0.017453292519943295;

    double radians = 0;
};

/// The policy: the host's representation of an angle, and both conversions.
struct AnglePolicy {};

template <>
struct orbis::factory::Marshaler<AnglePolicy> {
    template <class T>
    static void toHost(T angle, orbis::COSValue* out)
    {
        *out = orbis::COSValue(angle.radians / Angle::radiansOfDegree);
    }

    template <class T>
    static T fromHost(orbis::COSValue const& in)
    {
        return {in.scalar<double>() * Angle::radiansOfDegree};
    }

    template <class T>
    static char const* dataTypeText()
    {
        return "double scalar";
    }
};

template <>
struct orbis::factory::MarshalingPolicy<Angle> {
    using Type = AnglePolicy;
};
