#pragma once

#include "velmara/ArrayPtr.hpp"
#include "velmara/Error.hpp"
#include "velmara/Listing.hpp"
#include "velmara/MemberName.hpp"
#include "velmara/Reference.hpp"
#include "velmara/Snapshot.hpp"
#include "velmara/Value.hpp"
#include "velmara/export.hpp"

#include "orbis/COSInterfacePtr.hpp"

#include <cstdint>
#include <filesystem>
#include <functional>
#include <memory>
#include <optional>
#include <span>
#include <string_view>

/// Drives the host: virtual machines, calls, and what is known of all that is published.
namespace velmara {

class HvmState;

/// One host virtual machine: its modules, packages, classes, objects, types and storage. Several may live at once;
/// each is used on one thread at a time. Every operation makes its virtual machine current for its own length.
///
/// Every failure is a `velmara::Error`, whatever was thrown beneath; nothing is changed by a refused call.
/// Inputs stay the caller's; results are the caller's.
class VELMARA_API Hvm {
public:
    /// The arguments of a call, in order; null for `nil`.
    using Inputs = std::span<hvArray_tag* const>;

    /// Inputs that need no array where they are scalars. The arrays in them stay the caller's.
    using Values = std::span<orbis::COSValue const>;

    /// Where the operations that take it put their failure instead of throwing it, which costs most of what a failure
    /// does; they return nothing. Errors of classes derived from `Error` are thrown all the same.
    using Failure = std::optional<Error>;

    Hvm();
    Hvm(Hvm const&) = delete;
    Hvm& operator=(Hvm const&) = delete;

    /// Ends the virtual machine: its objects become invalid and give up their native objects, then its modules
    /// are terminated, then packages, storage and types go. Arrays and handles that are left stay safe to use and
    /// to give back.
    ~Hvm();

    /// Has `report` called, as the virtual machine ends, with a sentence on each thing that native code has left in it.
    /// To be asked for before modules are used: it costs memory and time for what is made from then on.
    void reportLeaks(std::function<void(std::string const&)> report);

    /// Has `report` called, as the virtual machine ends, for each module whose `VXTerminate_NAME` throws: with the
    /// module's name, and with what the exception says of itself. It throws nothing; where none is set such failures
    /// are lost.
    void reportTerminations(std::function<void(std::string const& module, char const* reason)> report);

    /// Has `source` asked for the origin of each object and array that is created from now on; an empty one ends that.
    /// What is created meanwhile takes longer, and an array 32 bytes more; where memory or one of 65,535 different
    /// origins is lacking, none is recorded. Arrays are recorded of which this virtual machine is the current one.
    void recordOrigins(OriginSource source);

    /// Counts what is alive by class and origin. The bytes are those that the host has allocated itself: for each
    /// object and array, for arrays' elements, shared ones once, and for longer texts in them. The memory of native
    /// objects is not known, and that of descriptions, and of the record of origins, is not counted.
    Snapshot snapshot() const;

    /// Makes a virtual machine current on this thread, and the one before current again at its end, unless that has
    /// ended meanwhile.
    class VELMARA_API Scope {
    public:
        /// Makes `hvm` current, until the scope ends.
        explicit Scope(Hvm& hvm);
        Scope(Scope const&) = delete;
        Scope& operator=(Scope const&) = delete;
        ~Scope();

    private:
        friend class HvmState;

        /// Has no scope of this thread come back to `ended`.
        static void forget(HvmState const& ended);

        HvmState* previous_;
        Scope* outer_;
    };

    /// Loads a module by its file and runs its `VXInitialize_NAME`, where NAME is the stem of the file, as which a link
    /// is followed, without a leading "lib" and a version at its end. Loading a loaded module again only initialises it
    /// again.
    ModuleRecord loadModule(std::filesystem::path const& file);

    /// Runs `VXTerminate_NAME`. The module's code stays mapped until the virtual machine has ended.
    void unloadModule(std::string_view name);
    std::vector<ModuleRecord> modules() const; ///< the loaded ones

    /// A new object of the class as a 1-by-1 array.
    ArrayPtr construct(std::string_view className, Inputs inputs = {});
    ArrayPtr construct(MemberName& cls, Values inputs, Failure& failure); ///< see `Failure`

    /// A new object, constructed from `object` (an object array of one element) with the constructor of its class that
    /// takes such an object; also of a class whose objects are not constructed from outside.
    ArrayPtr copy(hvArray_tag* object);

    /// True when the class info of the objects' class (arrays of one element each) compares them and finds them equal.
    bool areEqual(hvArray_tag* a, hvArray_tag* b);

    /// Calls a method of `object` (an object array; its first element is meant). A null result when there is none.
    ArrayPtr call(hvArray_tag* object, std::string_view method, Inputs inputs = {});
    Value call(hvArray_tag* object, MemberName& method, Values inputs, Failure& failure); ///< see `Failure`

    /// Calls a static method, and a function of a package, likewise.
    ArrayPtr callStatic(std::string_view className, std::string_view method, Inputs inputs = {});
    Value callStatic(MemberName& method, Values inputs, Failure& failure);     ///< see `Failure`
    ArrayPtr callFunction(std::string_view fullName, Inputs inputs = {});      ///< the function of that dotted name
    Value callFunction(MemberName& function, Values inputs, Failure& failure); ///< see `Failure`

    /// Calls a function value (host_extensions/functionValues.hpp), likewise.
    ArrayPtr callFunction(hvArray_tag* function, Inputs inputs = {});

    /// Reads and writes a property of `object`, likewise. `value` stays the caller's.
    ArrayPtr get(hvArray_tag* object, std::string_view property);
    Value get(hvArray_tag* object, MemberName& property, Failure& failure);       ///< see `Failure`
    void set(hvArray_tag* object, std::string_view property, hvArray_tag* value); ///< likewise
    void set(hvArray_tag* object, MemberName& property, orbis::COSValue const& value,
             Failure& failure); ///< see `Failure`

    /// Reads and writes a static property, likewise.
    ArrayPtr getStatic(std::string_view className, std::string_view property);
    void setStatic(std::string_view className, std::string_view property, hvArray_tag* value); ///< likewise

    /// The objects that the first object of an array refers to through properties that may be read, by their names.
    std::vector<Reference> references(hvArray_tag* object);

    /// The object of an enumerator as a 1-by-1 array: the same object each time.
    ArrayPtr getEnumerator(std::string_view className, std::string_view name);

    /// Publishes an enumeration that no module has. Missing packages are made. Two names may have one value: they
    /// mean the same enumerator, called by the first.
    void defineEnumeration(std::string_view fullName, std::span<EnumeratorRecord const> enumerators);

    /// Ends the objects of an object array now: they become invalid and give up their native objects. Enumerators are
    /// refused.
    void deleteObjects(hvArray_tag* objects);

    /// Another number after each change of what is published: names and members, by modules and by need. What was asked
    /// for while it was the same holds. No two virtual machines of a process have the same. The reference is valid as
    /// long as the virtual machine.
    std::uint64_t const& publicationNumber() const noexcept;

    /// What a dotted name stands for, and what is published by it. Packages on the way are populated. The descriptions
    /// throw an `Error` when nothing of that kind has the name.
    NameKind lookUp(std::string_view fullName);
    PackageRecord describePackage(std::string_view fullName); ///< "" for the top level
    ClassRecord describeClass(std::string_view fullName);     ///< with inherited members
    MethodRecord describeFunction(std::string_view fullName); ///< the first overload

    /// The objects that have not ended: by the packages' and classes' order of publication, each class's oldest first.
    std::vector<ObjectRecord> objects() const;

    /// Calls `visit` with each of them, in the same order, without a copy of its record. In `visit` nothing of the
    /// virtual machine may be used; whoever uses an object later holds it.
    void forEachObject(std::function<void(orbis::COSInterface& object, ObjectRecord const& record)> const& visit) const;

private:
    friend class Scope;
    std::unique_ptr<HvmState> state_;
};

/// True when `array` holds at least one object and none that is null or invalid.
VELMARA_API bool isValid(hvArray_tag const* array);

/// True when both are object arrays of one element that is the same host object.
VELMARA_API bool isSameObject(hvArray_tag const* a, hvArray_tag const* b);

/// True when both have one class and one size, and all elements are the same: numbers and texts bit for bit, objects by
/// identity. Two nulls are equal.
VELMARA_API bool isEqual(hvArray_tag const* a, hvArray_tag const* b);

/// One row of the objects (null allowed), typed as the most specific class that all are of. A null result when there is
/// no such class.
VELMARA_API ArrayPtr objectRow(std::span<orbis::COSInterfacePtr const> objects);

/// The name of an array's class: "double", "char", "cell", a published class, ...
VELMARA_API std::string className(hvArray_tag const* array);

/// The same as a text that is valid as long as the process, and that all arrays of the class share. Empty for null.
VELMARA_API std::string_view sharedClassName(hvArray_tag const* array);

/// A number that the embedder may keep with an object, 0 at first. The virtual machine does not read it.
VELMARA_API std::uint32_t& embedderNumber(orbis::COSInterface& object);

} // namespace velmara
