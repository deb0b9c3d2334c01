#include "samples/BasicTree.hpp"

#include "orbis/factory/base/Exception.hpp"
#include "orbis/factory/describe.hpp"
#include "orbis/factory/ownership/BindingRegistry.hpp"
#include "orbis/factory/types/ObjectVectorPolicy.hpp"

#include <algorithm>

namespace orbis::factory::samples {

using basic::BindingRegistry;

namespace {

constexpr int heaviest = 1000;

template <class T>
std::vector<T*> pointersTo(std::vector<std::unique_ptr<T>> const& owned)
{
    std::vector<T*> pointers;
    pointers.reserve(owned.size());
    for (auto const& object : owned)
        pointers.push_back(object.get());
    return pointers;
}

} // namespace

BasicA::~BasicA()
{
    BindingRegistry::retract(this);
}

BasicB::~BasicB()
{
    BindingRegistry::retract(this);
}

BasicA* BasicB::bear(int grams)
{
    if (grams < 1 || grams > heaviest)
        throw Exception("An apple weighs 1 to " + std::to_string(heaviest) + " grams.");
    return apples_.emplace_back(std::make_unique<BasicA>(grams)).get();
}

std::vector<BasicA*> BasicB::apples() const
{
    return pointersTo(apples_);
}

void BasicB::ripen(BasicA* apple)
{
    auto& place = *find(apple);
    auto ripe = std::make_unique<BasicA>(std::min(apple->grams() + apple->grams() / 2, heaviest));
    if (COSInterface* const host = BindingRegistry::find(apple))
        BindingRegistry::hijack(apple, ripe.get(), host, COSNameID(HostClass<BasicA>::name));
    place = std::move(ripe);
}

void BasicB::drop(BasicA* apple)
{
    apples_.erase(find(apple));
}

BasicB::Apples::iterator BasicB::find(BasicA const* apple)
{
    auto const found = std::ranges::find(apples_, apple, &std::unique_ptr<BasicA>::get);
    if (found == apples_.end())
        throw Exception("This branch does not bear that apple.");
    return found;
}

BasicB* BasicTree::grow()
{
    return branches_.emplace_back(std::make_unique<BasicB>()).get();
}

std::vector<BasicB*> BasicTree::branches() const
{
    return pointersTo(branches_);
}

BasicAWrapper::BasicAWrapper() : HandleClassInfo(HostClass<BasicA>::name, "An apple, which a branch bears") {}

void BasicAWrapper::initializeClass(COSClass* cls)
{
    publish(cls, describe<BasicA>().property("grams", &BasicA::grams));
}

BasicBWrapper::BasicBWrapper() : HandleClassInfo(HostClass<BasicB>::name, "A branch of an apple tree") {}

void BasicBWrapper::initializeClass(COSClass* cls)
{
    publish(cls, describe<BasicB>()
                     .method("bear", &BasicB::bear, "grams")
                     .method("ripen", &BasicB::ripen, "apple")
                     .method("drop", &BasicB::drop, "apple")
                     .property("apples", &BasicB::apples));
}

BasicTreeWrapper::BasicTreeWrapper() : HandleClassInfo(HostClass<BasicTree>::name, "An apple tree with its branches") {}

void BasicTreeWrapper::initializeClass(COSClass* cls)
{
    publish(cls, describe<BasicTree>()
                     .constructor()
                     .constructor<std::string>("sort")
                     .method("grow", &BasicTree::grow)
                     .property("sort", &BasicTree::sort)
                     .property("branches", &BasicTree::branches));
}

void* BasicTreeWrapper::createInstanceData()
{
    return new BasicTree;
}

bool BasicTreeWrapper::destroyInstanceData(COSInterface* object, void* data)
{
    std::unique_ptr<BasicTree> const tree(static_cast<BasicTree*>(data));
    return HandleClassInfo::destroyInstanceData(object, data);
}

} // namespace orbis::factory::samples
