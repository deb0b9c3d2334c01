#include "samples/Ctor.hpp"

#include "orbis/factory/base/Exception.hpp"
#include "orbis/factory/describe.hpp"
#include "orbis/factory/withDefaults.hpp"

#include <cstdio>

namespace orbis::factory::samples {

namespace {

double secondsOf(std::string const& text)
{
    int hours = 0, minutes = 0, length = 0;
    bool const isNumbers = text.find_first_not_of("0123456789:") == text.npos;
    if (!isNumbers || std::sscanf(text.c_str(), "%2d:%2d%n", &hours, &minutes, &length) != 2 ||
        length != static_cast<int>(text.size()))
        throw Exception("\"" + text + "\" is no time: write hours:minutes.");
    return hours * 3600.0 + minutes * 60.0;
}

} // namespace

Ctor::Ctor(double seconds) : seconds_(seconds)
{
    bool const isPartOfDay = seconds >= 0 && seconds <= 24 * 3600;
    if (!isPartOfDay)
        throw Exception("A span has between 0 and 24 hours.");
}

Ctor::Ctor(std::int32_t hours, std::int32_t minutes, std::int32_t seconds)
    : Ctor(hours * 3600.0 + minutes * 60.0 + seconds)
{
}

Ctor::Ctor(std::string const& text) : Ctor(secondsOf(text)) {}

Ctor::Ctor(Ctor const* other) : seconds_(other ? other->seconds_ : 0) {}

std::string Ctor::text() const
{
    auto const whole = static_cast<int>(seconds_);
    char text[16];
    std::snprintf(text, sizeof text, "%d:%02d:%02d", whole / 3600, whole / 60 % 60, whole % 60);
    return text;
}

CtorMetaData::CtorMetaData() : HandleClassInfo(HostClass<Ctor>::name, "A span of time, made in one of several ways") {}

void CtorMetaData::initializeClass(COSClass* cls)
{
    publish(cls, describe<Ctor>()
                     .constructor()
                     .constructor<double>("seconds")
                     .constructor<std::int32_t, std::int32_t, std::int32_t>("hours, minutes, seconds", withDefaults(0))
                     .constructor<std::string>("text")
                     .constructor<Ctor const*>("other", MethodAttributes::Private())
                     .property("seconds", &Ctor::seconds)
                     .property("text", &Ctor::text));
}

} // namespace orbis::factory::samples
