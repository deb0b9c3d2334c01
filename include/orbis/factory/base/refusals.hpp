#pragma once

/// The sentences of descriptions that cannot be published. Checks return a `Refusal`; the function that the author
/// calls turns it into the error itself, because compilers list every template between that call and the error. They
/// also list how they got to this header, so those that authors include include it first.
namespace orbis::factory::detail {

/// Why something cannot be published.
enum class Refusal {
    None,
    // Headers of types
    PairHeader,
    MapHeader,
    ArrayHeader,
    SetHeader,
    VariantHeader,
    TimeHeader,
    PathHeader,
    WideHeader,
    ComplexHeader,
    ObjectsHeader,
    NestedHeader,
    EigenHeader,
    FunctionHeader,
    // Types
    NoPolicy,
    NoMarshaler,
    NoDataType,
    NoConversionFromHost,
    NoConversionToHost,
    UnpublishedClass,
    UnpublishedEnumeration,
    IncompleteClass,
    NotDestructible,
    NotCopyable,
    NotAssignable,
    NotPolymorphic,
    OwnerOfNoObject,
    OwnerOfNoArgument,
    KeptWithoutObject,
    NoSuchParameter,
    HandleByValue,
    Output,
    ElementView,
    ElementTaken,
    MapKey,
    NotShareable,
    NotStdShareable,
    NotDeletable,
    UnownedFunctionResult,
    WritableMap,
    OtherLayout,
    // Members
    NotCallable,
    NotPackageFunction,
    OtherClass,
    ObjectNotFirst,
    StaticMember,
    OnRvalue,
    TooManyParameters,
    NoConstructor,
    NotImplementation,
    NoImplementationConstructor,
    TooManyDefaults,
    DefaultOfOtherType,
    DefaultFraction,
    DefaultView,
    // Properties
    NotGetter,
    GivesNothing,
    NotReleaseRoutine,
    NotSetter,
    KeepsView,
    OtherSetterType,
    NeedsObject,
    // Classes
    NotSuperclass,
    UnnamedSuperclass,
    MixedSuperclass,
    ValueSuperclass,
    OtherRoot,
    UnfindableAsBase,
    EnumeratorNames,
    EnumeratorValues,
    HandleOrNot,
    NotVirtuallyDestructible,
    ValueAsHandle,
    HandleAsValue,
    OtherValue,
    NotDefaultConstructible,
    NoShareableBase,
    NoStdShareableBase
};

/// Returns the first refusal of several.
template <class... R>
consteval Refusal firstRefusal(R... refusals)
{
    Refusal first = Refusal::None;
    static_cast<void>(((first = first == Refusal::None ? refusals : first), ...));
    return first;
}

template <Refusal R>
consteval bool isNot(Refusal other)
{
    return R != other;
}

/// False: for what is wrong whenever it is instantiated.
template <class T>
consteval bool isNothing()
{
    return false;
}

/// Stops compilation with the sentence of the refusal. `Refused` is what it is about, which compilers show. One
/// function has all sentences, because compilers would list each one between.
template <Refusal R, class... Refused>
consteval void refuse() // NOLINT(readability-function-size): a list
{
    using enum Refusal;
    static_assert(isNot<R>(PairHeader), "Pairs and tuples have a header of their own: include "
                                        "orbis/factory/types/pair.hpp.");
    static_assert(isNot<R>(MapHeader), "Maps have a header of their own: include orbis/factory/types/map.hpp.");
    static_assert(isNot<R>(ArrayHeader), "std::array has a header of its own: include orbis/factory/types/array.hpp.");
    static_assert(isNot<R>(SetHeader), "Sets have a header of their own: include orbis/factory/types/set.hpp.");
    static_assert(isNot<R>(VariantHeader), "std::variant has a header of its own: include "
                                           "orbis/factory/types/variant.hpp.");
    static_assert(isNot<R>(TimeHeader), "Durations and times of the system clock have a header of their own: include "
                                        "orbis/factory/types/chrono.hpp.");
    static_assert(isNot<R>(PathHeader), "Paths have a header of their own: include orbis/factory/types/path.hpp.");
    static_assert(isNot<R>(WideHeader), "std::wstring has a header of its own: include "
                                        "orbis/factory/types/wstring.hpp.");
    static_assert(isNot<R>(ComplexHeader), "Complex numbers have a header of their own: include "
                                           "orbis/factory/types/complex.hpp.");
    static_assert(isNot<R>(ObjectsHeader), "Vectors of objects have a header of their own: include "
                                           "orbis/factory/types/objectValues.hpp.");
    static_assert(isNot<R>(NestedHeader), "Vectors of vectors and of other types of the standard library have a "
                                          "header of their own: include orbis/factory/types/nestedVectors.hpp.");
    static_assert(isNot<R>(EigenHeader), "Eigen's matrices have a header of their own: include "
                                         "orbis/factory/types/eigen.hpp.");
    static_assert(isNot<R>(FunctionHeader), "std::function has a header of its own: include "
                                            "orbis/factory/types/function.hpp.");

    static_assert(isNot<R>(NoPolicy), "There is no marshaling policy for this native type: include the header of its "
                                      "policy, or specialise orbis::factory::MarshalingPolicy for it.");
    static_assert(isNot<R>(NoMarshaler), "The policy of this native type has no marshaler: specialise "
                                         "orbis::factory::Marshaler for it, with toHost, fromHost and dataTypeText.");
    static_assert(isNot<R>(NoDataType), "The marshaler of this native type lacks the name of the host data type: add "
                                        "static char const* dataTypeText<T>().");
    static_assert(isNot<R>(NoConversionFromHost), "The marshaler of this native type lacks the conversion of "
                                                  "arguments: add static T fromHost<T>(hvArray_tag const*).");
    static_assert(isNot<R>(NoConversionToHost), "The marshaler of this native type does not convert such results: add "
                                                "static void toHost<T>(T const&, hvArray**), or return a value.");
    static_assert(isNot<R>(UnpublishedClass), "The class that this pointer points to is not published: specialise "
                                              "orbis::factory::HostClass for it, beside the class.");
    static_assert(isNot<R>(UnpublishedEnumeration), "This enumeration is not published: publish it with "
                                                    "orbis/factory/publishEnumeration.hpp, or specialise "
                                                    "orbis::factory::HostEnumeration for it, beside the enumeration.");
    static_assert(isNot<R>(IncompleteClass), "This class is only declared here: include the header that defines it.");
    static_assert(isNot<R>(NotDestructible), "The host cannot own this result: its class has no public destructor. Say "
                                             "borrowed(...) or inside(...) of the function.");
    static_assert(isNot<R>(NotCopyable),
                  "This object cannot be copied: its class has no public copy constructor, or no "
                  "public destructor, or is abstract, or has a HostClass.");
    static_assert(isNot<R>(NotAssignable), "Values of this class are handed to the host as copies: make the class "
                                           "assignable.");
    static_assert(isNot<R>(NotPolymorphic), "Objects of a class hierarchy are told apart by their dynamic type: give "
                                            "the class that Root names a virtual destructor.");
    static_assert(isNot<R>(OwnerOfNoArgument), "A parameter that is kept or taken is a pointer or a reference to an "
                                               "object of a class that a Module publishes.");
    static_assert(isNot<R>(NoSuchParameter), "The function has no such parameter: they are counted from 0.");
    static_assert(isNot<R>(KeptWithoutObject), "Without an object that the member is called on, nothing is kept: take "
                                               "a std::shared_ptr.");
    static_assert(isNot<R>(OwnerOfNoObject),
                  "owned(...), copied(...), borrowed(...) and inside(...) are for functions that return "
                  "an object: publish this one without.");
    static_assert(isNot<R>(HandleByValue), "Objects of a class with a HostClass do not cross by value: return a "
                                           "pointer or a reference, or name ValuePolicy in the HostClass.");
    static_assert(isNot<R>(Output), "A parameter that is a reference to a non-const value cannot cross: take it by "
                                    "value, and return what the function has to hand back.");
    static_assert(isNot<R>(ElementView), "The elements of an argument would refer to memory that is freed before the "
                                         "call: take elements that own theirs (std::string instead of "
                                         "std::string_view).");
    static_assert(isNot<R>(ElementTaken), "Objects are taken from scripts as a std::unique_ptr, or as a std::vector "
                                          "of those (orbis/factory/types/objectValues.hpp), and in no other list.");
    static_assert(isNot<R>(MapKey), "The keys of a map that crosses are texts or numbers: std::string, fl::ustring, "
                                    "integers or floating-point numbers.");
    static_assert(isNot<R>(NotShareable), "Objects of this class cross in boost::shared_ptr: derive the class from "
                                          "full::Shareable.");
    static_assert(isNot<R>(NotStdShareable), "Objects of this class cross in std::shared_ptr: derive the class from "
                                             "full::StdShareable.");
    static_assert(isNot<R>(NotDeletable), "Objects of this class may be of a derived one, and are deleted as this "
                                          "one: give it a virtual destructor, or make it final.");
    static_assert(isNot<R>(UnownedFunctionResult), "A function that scripts implement cannot return a pointer, a "
                                                   "reference or a view, as nothing keeps alive what it refers to: "
                                                   "return a value or a shared pointer.");
    static_assert(isNot<R>(WritableMap), "An Eigen::Map or Eigen::Ref of a parameter would write to the script's "
                                         "array: make its matrix const, and return what the function has to hand "
                                         "back.");
    static_assert(isNot<R>(OtherLayout), "This Eigen::Map has another layout than the host's arrays, which are "
                                         "contiguous, column by column and not aligned: take an Eigen::Ref.");

    static_assert(isNot<R>(NotCallable), "This cannot be published: give a function, a member function or a lambda, "
                                         "and pick one of several overloads with overload<...>() or "
                                         "constOverload<...>().");
    static_assert(isNot<R>(NotPackageFunction), "A package function is a free function, a static member function, a "
                                                "lambda or another class with one call operator; pick one of several "
                                                "overloads with overload<...>().");
    static_assert(isNot<R>(OtherClass), "This is no member function of the class or a public base: publish it with "
                                        "the class that has it.");
    static_assert(isNot<R>(ObjectNotFirst), "A free function published as a method takes a pointer to the class "
                                            "first: add that parameter, or publish it with staticMethod.");
    static_assert(isNot<R>(StaticMember), "A static method has no object: publish a member function with method.");
    static_assert(isNot<R>(OnRvalue), "A member function with && is called on objects that are about to be destroyed, "
                                      "and those of scripts are not: publish a lambda that takes the object and calls "
                                      "it on std::move of that.");
    static_assert(isNot<R>(TooManyParameters), "A published function takes at most 20 parameters: pass several values "
                                               "as one array or object.");
    static_assert(isNot<R>(NoConstructor), "The class has no public constructor that takes these parameter types: "
                                           "name the types of an existing one in constructor<...>().");
    static_assert(isNot<R>(NotImplementation), "A class that scripts implement is published by a Module; what "
                                               "implements it derives from orbis::factory::Implemented of it.");
    static_assert(isNot<R>(NoImplementationConstructor), "The implementation has no public constructor that takes "
                                                         "these parameter types: say `using Implemented::Implemented;` "
                                                         "in it, and override all abstract functions.");
    static_assert(isNot<R>(TooManyDefaults), "There are more default values than parameters that can have one; the "
                                             "object that a method is called on cannot.");
    static_assert(isNot<R>(DefaultOfOtherType), "A default value does not convert to the type of its parameter: the "
                                                "last value is the last parameter's, and a parameter with a default "
                                                "is taken by value or by const reference.");
    static_assert(isNot<R>(DefaultFraction), "A default value for an integer parameter is a floating-point number: "
                                             "write an integer.");
    static_assert(isNot<R>(DefaultView), "A default value is kept for later calls and would refer to memory that is "
                                         "not its own: give a literal, or a value that owns its memory (std::string, "
                                         "std::vector, hvArrayReferenceCountedProxy).");

    static_assert(isNot<R>(NotGetter), "A getter is a data member or a member function without parameters, of the "
                                       "class or a public base, static data, or a free function, lambda or functor "
                                       "that takes a pointer to the class, or nothing.");
    static_assert(isNot<R>(GivesNothing), "A getter gives a value: this one gives nothing.");
    static_assert(isNot<R>(NotReleaseRoutine), "A release routine is a member function without parameters, or a free "
                                               "function or captureless lambda that takes a pointer to the class, or "
                                               "nothing.");
    static_assert(isNot<R>(NotSetter), "A setter is a data member that is not const or a member function that takes "
                                       "one value, of the class or a public base, static data that is not const, or a "
                                       "free function, lambda or functor that takes the value, after a pointer to the "
                                       "class where it needs the object.");
    static_assert(isNot<R>(KeepsView), "This data would keep what is gone after the call that writes it: make it own "
                                       "its memory (std::string, std::vector, hvArrayReferenceCountedProxy, an object "
                                       "by value), or give a setter function that copies, or a getter function alone.");
    static_assert(isNot<R>(OtherSetterType), "The setter takes another type than the getter gives: make the two types "
                                             "one.");
    static_assert(isNot<R>(NeedsObject), "A static property has no object: give static data, or a free function, "
                                         "static member function, lambda or functor that takes no object.");

    static_assert(isNot<R>(NotSuperclass), "The superclass is no public base class of the class: inherits<...>() "
                                           "names such ones.");
    static_assert(isNot<R>(UnnamedSuperclass), "The superclass has no host name: specialise orbis::factory::HostClass "
                                               "for it, beside the class.");
    static_assert(isNot<R>(MixedSuperclass), "The superclass has a HostClass and the class has none: publish both "
                                             "with Module::publish, or both with a HostClass and a class info.");
    static_assert(isNot<R>(ValueSuperclass), "Value classes have no superclasses: publish classes with superclasses "
                                             "as handles.");
    static_assert(isNot<R>(OtherRoot), "The class and its superclass are not bound as one class: say `using Root = "
                                       "...` in the HostClass of both, with the topmost class of the hierarchy, or "
                                       "derive that from full::Wrappable.");
    static_assert(isNot<R>(UnfindableAsBase), "Objects of this class cannot be found as ones of its base class, which "
                                              "is a virtual one: give that a virtual destructor, or leave it out of "
                                              "inherits<...>().");
    static_assert(isNot<R>(EnumeratorNames), "Each enumerator has a name of its own: give every entry of "
                                             "HostEnumeration<E>::enumerators another one, and none an empty one.");
    static_assert(isNot<R>(EnumeratorValues), "The values of a published enumeration fit a signed integer of 64 "
                                              "bits.");
    static_assert(isNot<R>(HandleOrNot), "HandleClassInfo<T, N>: N is 1 to delete native objects with their host "
                                         "objects, or 0 to leave them alone.");
    static_assert(isNot<R>(NotVirtuallyDestructible), "HandleClassInfo<T, 1> deletes native objects through T: give T "
                                                      "a virtual destructor, or use HandleClassInfo<T, 0> and delete "
                                                      "them yourself.");
    static_assert(isNot<R>(ValueAsHandle), "Objects of a value class live inside their host objects: publish it with "
                                           "NonHandleClassInfo, or leave ValuePolicy out of its HostClass.");
    static_assert(isNot<R>(HandleAsValue), "A class published with NonHandleClassInfo crosses as a value: say `using "
                                           "Policy = ValuePolicy` in its HostClass.");
    static_assert(isNot<R>(OtherValue), "NonHandleClassInfo<T, U>: U is T itself.");
    static_assert(isNot<R>(NotDefaultConstructible), "Host objects of a value class begin with a default-made native "
                                                     "object: give the class a public default constructor.");
    static_assert(isNot<R>(NoShareableBase), "ShareableHandleClassInfo publishes shared classes: derive the class "
                                             "from full::Shareable.");
    static_assert(isNot<R>(NoStdShareableBase), "StdShareableHandleClassInfo publishes shared classes: derive the "
                                                "class from full::StdShareable.");
}

} // namespace orbis::factory::detail
