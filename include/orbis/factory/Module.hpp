#pragma once

#include "orbis/factory/base/refusals.hpp" // first: see there

#include "orbis/factory/ObjectHandle.hpp"
#include "orbis/factory/base/Exception.hpp"
#include "orbis/factory/base/export.hpp"
#include "orbis/factory/describe.hpp"
#include "orbis/factory/describeFunctions.hpp"
#include "orbis/factory/detail/arrays/NewCells.hpp"
#include "orbis/factory/detail/objects/ClassNames.hpp"
#include "orbis/factory/marshaling/PropertyValue.hpp"
#include "orbis/factory/parameterOwners.hpp"
#include "orbis/factory/resultOwners.hpp"
#include "orbis/factory/types/NumericVectorPolicy.hpp"
#include "orbis/factory/types/OptionalPolicy.hpp"
#include "orbis/factory/types/StringViewPolicy.hpp"
#include "orbis/factory/types/stringVectors.hpp"
#include "orbis/factory/withDefaults.hpp"

#include "host_extensions/ErrorKind.hpp"
#include "orbis/COSPackage.hpp"

#include <cstring>
#include <string>
#include <type_traits>
#include <typeinfo>
#include <utility>

namespace orbis::factory {

namespace detail {

/// The text of exceptions for which the author gives no other.
template <class E>
std::string errorText(E const& error)
{
    static_assert(
        requires { error.what(); }, "This exception has no what(): give a function that takes it and returns "
                                    "its text.");
    return error.what();
}

/// The class of exceptions that a getter reads, the pointer as which it is stored, and how it is called.
template <class G>
struct ErrorGetter {
    template <class R, class C>
    static C classOf(R (*)(C const&));

    using Pointer = decltype(+std::declval<G>());
    using Class = decltype(classOf(Pointer()));

    static decltype(auto) get(Class const& error, Pointer getter) { return getter(error); }
};

template <class M, class C>
struct ErrorGetter<M C::*> {
    using Pointer = M C::*;
    using Class = C;

    static decltype(auto) get(C const& error, Pointer getter)
    {
        if constexpr (std::is_function_v<M>)
            return (error.*getter)();
        else
            return error.*getter;
    }
};

/// Inside a handler: reads a field of the current exception.
template <class Getter>
hvArray_tag* readErrorField(host_extensions::ErrorField const& field)
{
    using E = typename Getter::Class;
    typename Getter::Pointer getter;
    std::memcpy(&getter, field.getter, sizeof getter);
    try {
        throw;
    } catch (E const& error) {
        using V = std::remove_cvref_t<decltype(Getter::get(error, getter))>;
        return toArray(toValue<V>([&]() -> decltype(auto) { return Getter::get(error, getter); }));
    }
}

/// Returns whether what is thrown is a pointer to an exception of type `E`, or of one derived from it.
template <class E>
bool throwsPointerTo(void (*throwPointer)())
{
    try {
        throwPointer();
    } catch (E const*) {
        return true;
    } catch (...) {
        return false;
    }
    return false;
}

} // namespace detail

/// Who destroys the native objects that scripts construct.
enum class Owner {
    Host,  ///< their host objects
    Native ///< native code
};

/// Publishes the contents of one package. A module gets it in the function that fills its package:
///
///     void publishModule(orbis::factory::Module& calc)
///     {
///         calc.publish<Adder>("Adder", "Adds numbers and keeps their total")
///             .constructor<double>("start")
///             .method("getSum", &Adder::getSum, "a, b", "The sum of both; it counts in the total")
///             .property("total", &Adder::total, "Of all sums so far");
///     }
///
/// Threading: on the thread of the virtual machine.
class ORBIS_FACTORY_API Module {
public:
    /// `package` is the current virtual machine's, and outlives this; `fullName` is its dotted name.
    Module(COSPackage& package, std::string fullName);
    Module(Module const&) = delete;
    Module& operator=(Module const&) = delete;
    ~Module();

    COSPackage& package() { return package_; }
    std::string const& fullName() const { return fullName_; }

    /// Publishes the class `T` under a name without dots, with a text for users. The result takes its members, one line
    /// each, until the package is complete; see `ClassDescriber`. Without a constructor, scripts cannot create objects.
    ///
    /// Throws an `Exception` if the class has another name already.
    template <class T>
    ClassDescriber<T>& publish(char const* name, char const* text = "", Owner owner = Owner::Host)
    {
        static_assert(!PublishedClass<T>, "The class has a HostClass, which names it: publish it with a class info, or "
                                          "remove its HostClass.");
        setName(detail::namedClassOf<T>(), detail::classNames(), name, owner);
        return static_cast<ClassDescriber<T>&>(
            addClass(detail::namedClassOf<T>(), detail::NewObject<ClassDescription>(new ClassDescriber<T>), text));
    }

    /// Publishes a free function, static member function, lambda or functor; the arguments are those of
    /// `FunctionDescriber::function`. Returns this.
    template <class F>
    Module& function(char const* name, F callable, ParameterNames<detail::CallableTraits<F>::arity> names = {},
                     char const* text = "")
    {
        constexpr detail::Refusal refusal = detail::packageFunctionRefusal<std::decay_t<F>>();
        if constexpr (refusal != detail::Refusal::None)
            detail::refuse<refusal, F>();
        else
            functions_.function(name, callable, names, text);
        return *this;
    }

    template <class F, class... D>
    Module& function(char const* name, F callable, ParameterNames<detail::CallableTraits<F>::arity> names,
                     Defaults<D...> const& defaults, char const* text = "")
    {
        constexpr detail::Refusal refusal = detail::firstRefusal(detail::packageFunctionRefusal<std::decay_t<F>>(),
                                                                 detail::defaultsRefusalOf<std::decay_t<F>, 0, D...>());
        if constexpr (refusal != detail::Refusal::None)
            detail::refuse<refusal, F, D...>();
        else
            functions_.function(name, callable, names, defaults, text);
        return *this;
    }

    /// Chosen for what is no function.
    template <class None = void>
    auto& function(char const*, ...)
    {
        static_assert(detail::isNothing<None>(), "This describes no function: of several overloads pick one with "
                                                 "overload<...>().");
        return *this;
    }

    /// Gives native exceptions of type `E`, and of types derived from it that have none, an identifier by which scripts
    /// tell them apart: `module.error<ParseError>("spatial:parse")`. Their text is `what()`, or what `text` gives: a
    /// function or captureless lambda that takes an `E const&` and returns a `std::string`. Exceptions with a message
    /// identifier keep that. Returns this; `field` adds values.
    template <class E>
    Module& error(char const* identifier, std::string (*text)(E const&) = detail::errorText<E>)
    {
        using Text = std::string (*)(E const&);
        addErrorKind({identifier, &typeid(E),
                      [](host_extensions::ErrorKind const& kind, std::string& result) {
                          try {
                              throw;
                          } catch (E const& error) {
                              result = reinterpret_cast<Text>(kind.text)(error);
                              return true;
                          } catch (...) {
                              return false;
                          }
                      },
                      reinterpret_cast<void (*)()>(text)},
                     [] { throw static_cast<E*>(nullptr); });
        return *this;
    }

    /// Adds a value to the errors that `error` was called for before this, which scripts read by its name:
    ///
    ///     module.error<ParseError>("spatial:parse").field("line", &ParseError::line)
    ///
    /// `getter` is a data member or a member function without parameters, of the exception or a public base, or a
    /// function or captureless lambda that takes one. The value is converted when the exception leaves native code; one
    /// that cannot be is left out. Returns this.
    ///
    /// Throws an `Exception` when the getter is of another class, or the name is "identifier", "text", "where" or
    /// "cause".
    template <class G>
    Module& field(char const* name, G getter)
    {
        using Getter = detail::ErrorGetter<G>;
        typename Getter::Pointer const pointer = getter;
        host_extensions::ErrorField field{name, &detail::readErrorField<Getter>, {}};
        static_assert(sizeof pointer <= sizeof field.getter);
        std::memcpy(field.getter, &pointer, sizeof pointer);
        addErrorField(field, &detail::throwsPointerTo<typename Getter::Class>);
        return *this;
    }

    /// Publishes the functions. Called when the package is complete, because their types may be published later.
    void complete();

private:
    struct ErrorInProgress;

    void setName(detail::NamedClass& named, detail::ClassNames& names, char const* name, Owner owner);
    void addErrorKind(host_extensions::ErrorKind const& kind, void (*throwPointer)());
    void addErrorField(host_extensions::ErrorField const& field, bool (*isOf)(void (*throwPointer)()));
    ClassDescription& addClass(detail::NamedClass& named, detail::NewObject<ClassDescription> description,
                               char const* text);

    COSPackage& package_;
    std::string fullName_;
    FunctionDescriber functions_;
    ErrorInProgress* lastError_ = nullptr;
};

} // namespace orbis::factory

/// Defined by a module that is built with `orbis_factory_add_module`: fills its package.
void publishModule(orbis::factory::Module& module);
