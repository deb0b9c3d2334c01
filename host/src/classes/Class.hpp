#pragma once

#include "classes/ClassContents.hpp"
#include "memory/Retirable.hpp"
#include "objects/ObjectClass.hpp"

#include "orbis/COSClass.hpp"
#include "orbis/COSClassInfo.hpp"

#include <memory>
#include <span>
#include <string>
#include <vector>

namespace velmara {

/// A published class. Its class info describes it when it is first needed.
class Class final : public ObjectClass, public orbis::COSClass, public Retirable {
public:
    Class(std::unique_ptr<orbis::COSClassInfo> info, Name name, Machine& machine);
    ~Class() override { objects().finalizeAll(); }

    static Class* of(ObjectClass* cls) { return static_cast<Class*>(cls); }

    bool isEnumeration() const { return isEnumeration_; }

    /// True when the class is described completely; only then it has members and superclasses.
    bool isReady() const { return state_ == State::Ready; }

    /// True once the class is being unpublished.
    bool isClosed() const { return state_ == State::Closed; }

    /// Has the class described when it is not yet. When that fails, what was added is dropped, and the error names the
    /// class. Does nothing while the class is being described.
    void ensureReady()
    {
        if (state_ != State::Ready && state_ != State::Describing) [[unlikely]]
            makeReady();
    }

    /// The key in "VELMARA:class" of the error that scripts get who create objects of the class; null when they may.
    char const* constructionError() const { return constructionError_; }

    /// A new, uninitialized object without a reference.
    Object& createObject();

    /// True while the class or a subclass of it is being described: it cannot be unpublished now.
    bool isBusy() const;

    /// Finalizes the objects; no more can be created. Subclasses, which cannot be without the class, are undescribed
    /// again.
    void close();

    ClassContents const& contents() const { return *contents_; }
    MemberTables const& tables() const { return *contents_->tables; }
    bool isA(Name ancestor) const;

    /// The distance of a class in the linearization, -1 when it is not there.
    int distanceTo(Name ancestor) const;

    /// Null when there is none, and no class info of the hierarchy loads one of that name.
    [[gnu::always_inline]] MethodGroup const* findMethods(std::string_view name)
    {
        MethodGroup const* const recent = tables().recentMethods.find(name);
        return recent ? recent : findOtherMethods(name);
    }

    [[gnu::always_inline]] Property const* findProperty(std::string_view name)
    {
        Property const* const recent = tables().recentProperties.find(name);
        return recent ? recent : findOtherProperty(name);
    }

    /// Replaces the direct superclasses while the class is being described.
    void setSuperclasses(std::span<orbis::COSNameID const> names);

    /// Adds an enumerator while the class, an enumeration, is being described.
    void addEnumerator(std::string_view name, std::int64_t value);

    /// Throws "VELMARA:enumeration:noObjects" for an enumeration.
    void requireNotEnumeration() const
    {
        if (isEnumeration_) [[unlikely]]
            throwEnumeration();
    }

    char const* getName() const override { return ownName()->text; }
    void addMethod(orbis::COSMethodInfo* method) override;
    void addProperty(orbis::COSPropInfo* property) override;
    orbis::COSInterfacePtr newInstance() override;
    void initializeInstance(orbis::COSInterfacePtr instance) override;

private:
    enum class State { Untouched, Describing, Ready, Closed };

    void makeReady();
    void describe();
    void dropContents() noexcept;

    using NewTables = std::vector<std::pair<Class*, std::unique_ptr<MemberTables>>>;
    void buildTables(NewTables& tables);
    void rebuildTables();

    /// Throws why no object of the class can be created; nothing when one can.
    void throwUncreatable() const;
    [[noreturn]] void throwEnumeration() const;
    void requireOpen(Name member) const;
    void requireNoEnumerator(Name member) const;
    [[noreturn]] void throwDuplicate(Name member) const;

    MethodGroup const* findOtherMethods(std::string_view name);
    MethodGroup const* loadMethods(std::string_view name);
    Property const* findOtherProperty(std::string_view name);
    Property const* loadProperty(std::string_view name);

    /// Asks the class infos of the hierarchy by `attempt` until `find` finds something.
    template <class Find, class Attempt>
    auto load(Find find, Attempt attempt);

    std::unique_ptr<ClassContents> contents_;
    std::unique_ptr<ClassContents> empty_; ///< what will replace the contents: there once the class is described
    std::vector<Class*> subclasses_;       ///< direct ones that are described or being described
    char const* constructionError_ = nullptr;
    State state_ = State::Untouched;
    bool isEnumeration_;
    bool isLoading_ = false; ///< its class info is loading a member
    bool isStale_ = false;   ///< what was loaded is not in the tables yet
};

} // namespace velmara
