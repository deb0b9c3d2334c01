#pragma once

#include "orbis/factory/classes/HandleClassInfo.hpp"
#include "orbis/factory/registerOrbisPackage.hpp"

/// A native class whose objects belong to the test: its class info leaves them alone.
struct Plain {
    int value = 0;
};

struct PlainInfo : orbis::factory::HandleClassInfo<Plain, 0> {
    explicit PlainInfo(char const* name = "tests.Plain") : HandleClassInfo(name, "") {}
    void initializeClass(orbis::COSClass*) override {}
};

inline void publishPlain()
{
    orbis::factory::registerOrbisPackage("tests", [](orbis::COSPackage* p) { p->addClass(new PlainInfo); });
}
