// Names in scripts and descriptions: of packages, classes, members and data types.
#include "fuzz/require.hpp"

#include "velmara/Hvm.hpp"
#include "velmara/LiveCounts.hpp"

#include "orbis/COSDataTypePtr.hpp"
#include "orbis/COSTypeRepository.hpp"

namespace {

template <class F>
bool succeeds(F&& action)
{
    try {
        action();
    } catch (velmara::Error const& error) {
        require(!error.identifier().empty(), "an error has no identifier");
        return false;
    } catch (std::exception const&) {
        return false; // an error of the host interface
    }
    return true;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size)
{
    std::string const name(reinterpret_cast<char const*>(data), size);
    {
        velmara::Hvm hvm;
        velmara::Hvm::Scope const scope(hvm);
        static_cast<void>(hvm.loadModule(LIBRARY_FILE));

        velmara::NameKind const kind = hvm.lookUp(name);
        using velmara::NameKind;
        require(kind == NameKind::Class || !succeeds([&] { static_cast<void>(hvm.construct(name)); }),
                "it is no class");
        require(succeeds([&] { static_cast<void>(hvm.describePackage(name)); }) ==
                    (kind == NameKind::Package || name.empty()),
                "whether it is a package");
        require(succeeds([&] { static_cast<void>(hvm.describeFunction(name)); }) == (kind == NameKind::Function),
                "whether it is a function");
        static_cast<void>(succeeds([&] { static_cast<void>(hvm.callStatic("orbis_factory.Adder", name)); }));
        static_cast<void>(succeeds([&] { static_cast<void>(hvm.getStatic("orbis_factory.Prop", name)); }));
        static_cast<void>(succeeds([&] { static_cast<void>(hvm.getEnumerator("orbis_factory.NP1.N2.Day", name)); }));
        static_cast<void>(succeeds([&] { orbis::COSDataTypePtr const type(name.c_str()); }));
        static_cast<void>(succeeds(
            [&] { orbis::COSTypeRepository::getConversion(orbis::COSNameID("any"), orbis::COSNameID(name.c_str())); }));
    }
    require(velmara::liveCounts() == velmara::LiveCounts{}, "something of the host is left");
    return 0;
}
