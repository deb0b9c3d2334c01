#pragma once

#include "orbis/factory/base/refusals.hpp" // first: see there

#include "orbis/factory/ObjectHandle.hpp"
#include "orbis/factory/base/Exception.hpp"
#include "orbis/factory/base/export.hpp"
#include "orbis/factory/describe.hpp"
#include "orbis/factory/describeFunctions.hpp"
#include "orbis/factory/detail/objects/ClassNames.hpp"
#include "orbis/factory/marshaling/PropertyValue.hpp"
#include "orbis/factory/parameterOwners.hpp"
#include "orbis/factory/resultOwners.hpp"
#include "orbis/factory/types/NumericVectorPolicy.hpp"
#include "orbis/factory/types/OptionalPolicy.hpp"
#include "orbis/factory/types/StringViewPolicy.hpp"
#include "orbis/factory/types/stringVectors.hpp"
#include "orbis/factory/withDefaults.hpp"

#include "orbis/COSPackage.hpp"

#include <string>
#include <type_traits>
#include <typeinfo>

/// Publishes native C++ classes as classes of the host. `Module` and `ClassDescriber` do for most modules.
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

/// How the fields of exceptions are read: by a function or captureless lambda,
template <class G>
struct ErrorGetter {
    template <class R, class C>
    static std::type_identity<C> of(R (*)(C const&));

    using Pointer = decltype(+std::declval<G>());
    using Class = typename decltype(of(Pointer()))::type;

    static impl::Callable stored(G getter) { return +getter; }
    static decltype(auto) read(impl::Callable const& getter, Class const& error) { return getter.as<Pointer>()(error); }
};

/// and by a member.
template <class M, class C>
struct ErrorGetter<M C::*> {
    using Class = C;

    static impl::Callable stored(M C::*getter) { return getter; }

    static decltype(auto) read(impl::Callable const& getter, C const& error)
    {
        if constexpr (std::is_function_v<M>)
            return (error.*getter.as<M C::*>())();
        else
            return error.*getter.as<M C::*>();
    }
};

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

    COSPackage& package() { return package_; } ///< to which class infos can be added, see `COSPackage::addClass`
    std::string const& fullName() const { return fullName_; } ///< of the package, dotted

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

    /// The same, with default values of the last parameters: `withDefaults(...)`.
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
    /// identifier keep that. Returns this; `field` adds values to the error.
    template <class E>
    Module& error(char const* identifier, std::string (*text)(E const&) = detail::errorText<E>)
    {
        using Text = std::string (*)(E const&);
        addErrorKind(
            identifier, typeid(E),
            [](void (*given)(), std::string& result) {
                try {
                    throw;
                } catch (E const& error) {
                    result = reinterpret_cast<Text>(given)(error);
                    return true;
                } catch (...) {
                    return false;
                }
            },
            reinterpret_cast<void (*)()>(text),
            [] {
                throw static_cast<E*>(nullptr); // NOLINT(misc-throw-by-value*): asks for its bases, see `field`
            });
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
        using E = typename Getter::Class;
        using V = std::remove_cvref_t<decltype(Getter::read(impl::Callable(), std::declval<E const&>()))>;
        constexpr detail::Refusal refusal = detail::resultRefusal<V>();
        if constexpr (refusal != detail::Refusal::None)
            detail::refuse<refusal, G>();
        else
            addErrorField(
                name,
                [](void (*throwPointer)()) {
                    try {
                        throwPointer();
                    } catch (E const*) { // NOLINT(misc-throw-by-value*)
                        return true;
                    } catch (...) {
                        return false;
                    }
                    return false;
                },
                [](impl::Callable const& stored, COSValue& value) {
                    try {
                        throw;
                    } catch (E const& error) {
                        value = detail::toValue<V>([&]() -> decltype(auto) { return Getter::read(stored, error); });
                    }
                },
                Getter::stored(getter));
        return *this;
    }

    /// Publishes the functions. Called when the package is complete, because their types may be published later.
    void complete();

private:
    struct ErrorInProgress;

    void setName(detail::NamedClass& named, detail::ClassNames& names, char const* name, Owner owner);
    void addErrorKind(char const* identifier, std::type_info const& type,
                      bool (*describe)(void (*text)(), std::string& result), void (*text)(), void (*throwPointer)());
    void addErrorField(char const* name, bool (*isOf)(void (*throwPointer)()),
                       void (*read)(impl::Callable const& getter, COSValue& value), impl::Callable getter);
    ClassDescription& addClass(detail::NamedClass& named, detail::NewObject<ClassDescription> description,
                               char const* text);

    COSPackage& package_;
    std::string fullName_;
    FunctionDescriber functions_;
    detail::NewObject<ErrorInProgress> lastError_;
};

} // namespace orbis::factory

/// Defined by a module that is built with `orbis_factory_add_module`: fills its package.
void publishModule(orbis::factory::Module& module);
