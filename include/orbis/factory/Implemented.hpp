#pragma once

#include "orbis/factory/base/refusals.hpp" // first: see there

#include "orbis/factory/describe.hpp"
#include "orbis/factory/detail/objects/ScriptFunctions.hpp"
#include "orbis/factory/types/function.hpp"

#include "orbis/objectArrays.hpp"

#include <functional>
#include <memory>
#include <string>
#include <type_traits>
#include <utility>

namespace orbis::factory {

namespace detail {

template <class T, class S, class... A>
struct ImplementationRoutine;

} // namespace detail

/// Base of what implements the class `T` by functions of a script, one line for each virtual function:
///
///     struct ScriptShape : orbis::factory::Implemented<Shape> {
///         using Implemented::Implemented;
///         double area() const override { return call<double>("area"); }
///         std::string name() const override { return has("name") ? call<std::string>("name") : Shape::name(); }
///     };
///
///     module.publish<Shape>("Shape").implementedBy<ScriptShape>().method("area", &Shape::area);
///
/// A script then makes objects of the class with a table of functions: `Shape{area = function(self) return 1 end}`.
/// They are owned like others, also by native code. Threading: the functions are called as a `std::function` of the
/// script is, and throw what that throws.
template <class T>
class Implemented : public T {
public:
    using T::T;
    Implemented() = default;

protected:
    /// Returns whether the script has given a function of that name.
    bool has(char const* name) const { return functions_.find(name) != nullptr; }

    /// Calls the script's function of that name with this object and the arguments. Objects of published classes are
    /// lent to it, other values are converted; see types/function.hpp. Throws the `not_implemented` error when there is
    /// no such function.
    template <class R, class... A>
    R call(char const* name, A&&... arguments) const
    {
        using Function = detail::ScriptFunction<R, T const&, Passed<A>...>;
        constexpr detail::Refusal refusal = detail::functionResultRefusal<R>();
        if constexpr (refusal != detail::Refusal::None)
            detail::refuse<refusal, R>();
        host_extensions::FunctionHandle const* const function = functions_.find(name);
        if (!function)
            detail::throwNotImplemented(detail::namedClassOf<T>(), name,
                                        detail::FunctionTypes<std::function<R(T const&, Passed<A>...)>>::text());
        return Function(*function)(static_cast<T const&>(*this), std::forward<A>(arguments)...);
    }

private:
    template <class, class, class...>
    friend struct detail::ImplementationRoutine;

    /// Objects that are not temporary are passed as references.
    template <class A>
    using Passed = std::conditional_t<detail::IsLent<A>, A, std::decay_t<A>>;

    detail::ScriptFunctions functions_;
};

namespace detail {

template <class T, class S, class... A>
struct ImplementationRoutine {
    static void invoke(impl::Invoker const*, COSClient const*, int& outputCount, COSValue* outputs, int,
                       COSValue const* inputs)
    {
        NamedClass const& named = namedClassOf<T>();
        COSInterfacePtr const host = omGetArrayElement(outputs[0].array(), 0);
        ScriptFunctions functions(inputs[0].array(), host);
        ArgumentsOf<A...> arguments(inputs + 1);
        Transfer<A...> transfer(NoWhole(), inputs + 1);
        std::unique_ptr<T> object = arguments.apply([&](auto&&... values) {
            auto made = std::make_unique<S>(static_cast<decltype(values)>(values)...);
            static_cast<Implemented<T>&>(*made).functions_ = std::move(functions);
            return made;
        });
        transfer.prepare(named, host, object.get());
        bindConstructed(host, COSNameID(className(named)), toBound(named, object.get()));
        static_cast<void>(object.release());
        transfer.complete();
        if (outputCount == 0)
            outputCount = 1;
    }
};

inline char const* anyTypeText()
{
    return "any";
}

template <class T, class S, class... A>
struct ImplementationForm {
    static constexpr TypeText types[] = {&anyTypeText, &dataTypeText<A>..., nullptr};
    static constexpr CallableForm form{MemberRecord::Kind::Constructor,
                                       InputTypes<TypeList<A...>>::needNames,
                                       &dataTypeText<T*>,
                                       static_cast<TypeText const*>(types),
                                       1 + sizeof...(A),
                                       &ImplementationRoutine<T, S, A...>::invoke};
};

template <class T, class S, class... A>
MemberRecord implementationRecord(char const* names, MethodText text)
{
    auto const allNames = KeptObject::make("functions" + (names ? ", " + std::string(names) : ""));
    MemberRecord record = makeRecord(ImplementationForm<T, S, A...>::form, nullptr, {},
                                     static_cast<std::string const*>(allNames.get())->c_str(), text);
    record.kept = allNames;
    return record;
}

} // namespace detail
} // namespace orbis::factory
