#include "samples/RootPackage.hpp"

#include "orbis/factory/describeFunctions.hpp"
#include "orbis/factory/ownership/FooRegistry.hpp"
#include "orbis/factory/registerOrbisPackage.hpp"
#include "orbis/factory/types/initStringDataTypes.hpp"

#include "samples/Adder.hpp"
#include "samples/BasicTree.hpp"
#include "samples/BasicTypes.hpp"
#include "samples/BinaryGraphNode.hpp"
#include "samples/Container.hpp"
#include "samples/CppClass.hpp"
#include "samples/Ctor.hpp"
#include "samples/MFDT.hpp"
#include "samples/MFVT.hpp"
#include "samples/N1.hpp"
#include "samples/N2.hpp"
#include "samples/N3.hpp"
#include "samples/OrbisFactoryBuiltInTester.hpp"
#include "samples/Person.hpp"
#include "samples/Prop.hpp"
#include "samples/SamplePackages.hpp"
#include "samples/Sauce.hpp"
#include "samples/SharedBase.hpp"
#include "samples/Signatures1.hpp"
#include "samples/StdSharedBase.hpp"
#include "samples/TreeNode.hpp"
#include "samples/VectorStringIO.hpp"
#include "samples/Vehicles.hpp"
#include "samples/Week.hpp"

#include "libut/libut.hpp"
#include "orbis/COSClass.hpp"

namespace orbis::factory {

namespace {

/// `addClass` takes ownership of the class info.
template <class... ClassInfo>
void load(COSPackage* package)
{
    (package->addClass(new ClassInfo), ...);
}

/// Global classes outlive this package, so they may already exist when it is loaded again.
template <class ClassInfo>
void loadGlobal(char const* name)
{
    if (!COSClass::getClass(COSNameID(name)))
        COSClass::addGlobalClass(new ClassInfo);
}

/// Loads the subpackages. The order shows that a package can be extended before and after it exists.
void loadPackages()
{
    COSPackage::addPackage(new samples::P1PackageWrapper);
    COSPackage::addPackage(new samples::P3PackageWrapper);
    registerOrbisPackage("orbis_factory.NP1.NP2", &load<samples::N1Wrapper>);
    registerOrbisPackage("orbis_factory.NP1", &load<samples::N2Wrapper>);
    registerOrbisPackage("orbis_factory.NP1.NP2", &load<samples::N3Wrapper>);
}

void testPkgStuff()
{
    utPrintf("success!");
}

void dumpReg()
{
    basic::dumpRegistry(nullptr);
}

} // namespace

char const* RootPackage::getName() const
{
    return "orbis_factory";
}

char const* RootPackage::getDescription() const
{
    return "Sample classes, one for each facility of the library";
}

void RootPackage::initializePackage(COSPackage* package)
{
    load<samples::CosAdder>(package);
    load<samples::WeekWrapper, samples::WeekdayInfo>(package);
    load<samples::MFVTCI>(package);
    load<samples::MFDTCI>(package);
    load<samples::PropWrapper>(package);
    loadGlobal<samples::CppCCI>("CppClass");
    load<samples::CosTreeNodeBase, samples::CosTreeNodeDerived>(package);
    load<samples::BinaryGraphNodeWrapper>(package);
    loadPackages();
    load<orbisFactorySharedTests::CosSharedBase, orbisFactorySharedTests::CosSharedDerived>(package);
    load<orbisFactoryStdSharedTests::CosStdSharedBase, orbisFactoryStdSharedTests::CosStdSharedDerived>(package);
    load<samples::COSSauce, samples::COSPasta, samples::COSAlfredo, samples::COSMarinara>(package);
    load<samples::CosVectorStringIO>(package);
    load<samples::BasicAWrapper, samples::BasicBWrapper, samples::BasicTreeWrapper>(package);
    load<samples::AWrapper, samples::BWrapper, samples::CWrapper, samples::DWrapper, samples::ZWrapper>(package);
    load<samples::ItemWrapper, samples::PersonWrapper, samples::BasicTypesWrapper>(package);
    load<samples::ContainerWrapper, samples::CtorMetaData, samples::Signatures1MetaData>(package);
    loadGlobal<samples::OrbisFactoryBuiltInTesterClassInfo>("OrbisFactoryBuiltInTester");

    detail::initStringDataTypes();
    publish(package, describeFunctions().function("testPkgStuff", &testPkgStuff).function("dumpReg", &dumpReg));
}

} // namespace orbis::factory
