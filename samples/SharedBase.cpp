#include "samples/SharedBase.hpp"

#include "orbis/factory/base/Exception.hpp"
#include "orbis/factory/describe.hpp"
#include "orbis/factory/ownership/HvmScoped.hpp"
#include "orbis/factory/types/sharedObjectVectors.hpp"

#include <algorithm>

using namespace orbis::factory;

namespace orbisFactorySharedTests {

namespace {

struct Shelf {
    std::vector<SharedBase::Pointer> books;

    static std::vector<SharedBase::Pointer>& ofThisMachine() { return basic::HvmScoped<Shelf>::get().books; }
    static auto find(std::string const& title)
    {
        return std::ranges::find_if(ofThisMachine(), [&](auto const& book) { return book->title() == title; });
    }
};

} // namespace

SharedBase::SharedBase(std::string title) : title_(std::move(title)) {}

std::string SharedBase::label() const
{
    return title_;
}

int SharedBase::holders() const
{
    return static_cast<int>(weak_from_this().use_count());
}

void SharedBase::reserve()
{
    full::acquireReference(this);
}

void SharedBase::cancelReservation()
{
    full::releaseReference(this);
}

void SharedBase::shelve(Pointer const& book)
{
    if (!book)
        throw Exception("There is no book to put on the shelf.");
    Shelf::ofThisMachine().push_back(book);
}

SharedBase::Pointer SharedBase::take(std::string const& title)
{
    auto const found = Shelf::find(title);
    if (found == Shelf::ofThisMachine().end())
        return {};
    Pointer book = std::move(*found);
    Shelf::ofThisMachine().erase(found);
    return book;
}

SharedBase* SharedBase::find(std::string const& title)
{
    auto const found = Shelf::find(title);
    return found == Shelf::ofThisMachine().end() ? nullptr : found->get();
}

bool SharedBase::isShelved(SharedBase const* book)
{
    return std::ranges::find(Shelf::ofThisMachine(), book, &Pointer::get) != Shelf::ofThisMachine().end();
}

std::vector<SharedBase::Pointer> SharedBase::shelf()
{
    return Shelf::ofThisMachine();
}

void SharedBase::arrange(std::vector<Pointer> const& books)
{
    if (std::ranges::find(books, nullptr) != books.end())
        throw Exception("A place on the shelf cannot be without a book.");
    Shelf::ofThisMachine() = books;
}

SharedDerived::SharedDerived(std::string title, int scale) : SharedBase(std::move(title)), scale_(scale)
{
    if (scale < 1)
        throw Exception("A map's scale is 1 to 1 or smaller: give a number from 1.");
}

std::string SharedDerived::label() const
{
    return title() + ", maps 1:" + std::to_string(scale_);
}

CosSharedBase::CosSharedBase()
    : ShareableHandleClassInfo(HostClass<SharedBase>::name, "A book that native code and scripts share")
{
}

void CosSharedBase::initializeClass(orbis::COSClass* cls)
{
    publish(cls, describe<SharedBase>()
                     .constructor<std::string>("title")
                     .method("label", &SharedBase::label)
                     .method("reserve", &SharedBase::reserve)
                     .method("cancelReservation", &SharedBase::cancelReservation)
                     .staticMethod("shelve", &SharedBase::shelve, "book")
                     .staticMethod("take", &SharedBase::take, "title")
                     .staticMethod("find", &SharedBase::find, "title")
                     .staticMethod("isShelved", &SharedBase::isShelved, "book")
                     .staticMethod("shelf", &SharedBase::shelf)
                     .staticMethod("arrange", &SharedBase::arrange, "books")
                     .property("title", &SharedBase::title)
                     .property("holders", &SharedBase::holders));
}

CosSharedDerived::CosSharedDerived() : ShareableHandleClassInfo(HostClass<SharedDerived>::name, "A shared book of maps")
{
}

void CosSharedDerived::initializeClass(orbis::COSClass* cls)
{
    publish(cls, describe<SharedDerived>()
                     .inherits<SharedBase>()
                     .constructor<std::string, int>("title, scale")
                     .property("scale", &SharedDerived::scale));
}

} // namespace orbisFactorySharedTests
