#pragma once

#include "orbis/factory/base/export.hpp"
#include "orbis/factory/describe.hpp"
#include "orbis/factory/describeFunctions.hpp"
#include "orbis/factory/detail/objects/ClassNames.hpp"
#include "orbis/factory/marshaling/PropertyValue.hpp"

#include "host_extensions/ErrorKind.hpp"
#include "orbis/COSPackage.hpp"

#include <functional>
#include <memory>
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

/// The class of exceptions that a getter reads.
template <class G>
struct ErrorGetter {
    template <class R, class C>
    static std::type_identity<C> of(R (*)(C const&));

    using Class = typename decltype(of(+std::declval<G>()))::type;
};

template <class M, class C>
struct ErrorGetter<M C::*> {
    using Class = C;
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
        auto description = std::make_unique<ClassDescriber<T>>();
        ClassDescriber<T>& result = *description;
        addClass(detail::namedClassOf<T>(), std::move(description), text);
        return result;
    }

    /// Publishes a free function, static member function, lambda or functor; the arguments are those of
    /// `FunctionDescriber::function`. Returns this.
    template <class F>
    Module& function(char const* name, F callable, ParameterNames<detail::CallableTraits<F>::arity> names = {},
                     char const* text = "")
    {
        functions_.function(name, callable, names, text);
        return *this;
    }

    template <class F, class... D>
    Module& function(char const* name, F callable, ParameterNames<detail::CallableTraits<F>::arity> names,
                     Defaults<D...> const& defaults, char const* text = "")
    {
        functions_.function(name, callable, names, defaults, text);
        return *this;
    }

    /// Gives native exceptions of type `E`, and of types derived from it that have none, an identifier by which scripts
    /// tell them apart: `module.error<ParseError>("spatial:parse")`. Their text is `what()`, or what `text` gives: a
    /// function or captureless lambda that takes an `E const&` and returns a `std::string`. Exceptions with a message
    /// identifier keep that. Returns this; `field` adds values to the error.
    template <class E>
    Module& error(char const* identifier, std::string (*text)(E const&) = detail::errorText<E>)
    {
        addErrorKind({identifier, &typeid(E),
                      [text](std::string& result) {
                          try {
                              throw;
                          } catch (E const& error) {
                              result = text(error);
                              return true;
                          } catch (...) {
                              return false;
                          }
                      }},
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
        using E = typename detail::ErrorGetter<G>::Class;
        using V = std::remove_cvref_t<std::invoke_result_t<G, E const&>>;
        if constexpr (detail::isMarshalable<V>())
            addErrorField(
                name,
                [](void (*throwPointer)()) {
                    try {
                        throwPointer();
                    } catch (E const*) {
                        return true;
                    } catch (...) {
                        return false;
                    }
                    return false;
                },
                [getter](COSValue& value) {
                    try {
                        throw;
                    } catch (E const& error) {
                        value = detail::toValue<V>([&]() -> decltype(auto) { return std::invoke(getter, error); });
                    }
                });
        return *this;
    }

    /// Publishes the functions. Called when the package is complete, because their types may be published later.
    void complete();

private:
    struct ErrorInProgress;

    void setName(detail::NamedClass& named, detail::ClassNames& names, char const* name, Owner owner);
    void addErrorKind(host_extensions::ErrorKind kind, void (*throwPointer)());
    void addErrorField(char const* name, bool (*isOf)(void (*throwPointer)()), std::function<void(COSValue&)> read);
    void addClass(detail::NamedClass const& named, std::unique_ptr<ClassDescription> description, char const* text);

    COSPackage& package_;
    std::string fullName_;
    FunctionDescriber functions_;
    std::unique_ptr<ErrorInProgress> lastError_;
};

/// Publishes a package that `fill` fills, as `registerOrbisPackage` does; for programs that publish classes themselves.
ORBIS_FACTORY_API COSPackage* registerModule(std::string const& fullName, std::function<void(Module&)> fill);

} // namespace orbis::factory

/// Defined by a module that is built with `orbis_factory_add_module`: fills its package.
void publishModule(orbis::factory::Module& module);
