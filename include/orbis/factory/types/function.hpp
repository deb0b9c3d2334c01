#pragma once

#include "orbis/factory/detail/arrays/DataTypeName.hpp"
#include "orbis/factory/marshaling/Argument.hpp"
#include "orbis/factory/marshaling/MarshalingPolicy.hpp"
#include "orbis/factory/marshaling/PropertyValue.hpp"
#include "orbis/factory/marshaling/objectResult.hpp"

#include "host_extensions/functionValues.hpp"
#include "orbis/COSMethodInfo.hpp"
#include "orbis/COSMethodSignature.hpp"
#include "orbis/COSMethodSignaturePtr.hpp"

#include <functional>
#include <string>
#include <string_view>
#include <type_traits>
#include <utility>

namespace orbis::factory {

/// `std::function<R(A...)>`, with any marshalable `A` and `R`.
///
/// As a parameter it calls a function of the script, on the thread and in the virtual machine that passed it; elsewhere
/// it throws "VELMARA:function:...". It may be kept, copied and destroyed anywhere. Its arguments are passed to the
/// script as results of members are, except that references to objects are valid in the script only during the call.
/// Its result is converted as an argument of a member is, and must own what it holds. What the script's function throws
/// leaves it as a `std::exception`, and reaches the calling script unchanged if native code lets it pass.
///
/// As a result it is a function for the script, the script's own where it is that; an empty one is none. An argument is
/// never empty: take a `std::optional` where the script may pass none.
class FunctionPolicy {};

namespace detail {

template <class T>
consteval bool ownsWhatItHolds();

/// Whether what a type of the standard library holds by its template arguments owns what it holds.
template <class T>
inline constexpr bool argumentsOwn = true;

template <template <class...> class Template, class... T>
    requires isOfStandardLibrary<Template<T...>>
inline constexpr bool argumentsOwn<Template<T...>> = (true && ... && ownsWhatItHolds<T>());

/// Returns whether values of the type stay valid after what they were converted from is released.
template <class T>
consteval bool ownsWhatItHolds()
{
    if constexpr (std::is_void_v<T>)
        return true;
    else if constexpr (std::is_reference_v<T> || std::is_pointer_v<T>)
        return false;
    else if constexpr (!HasPolicy<T>)
        return true;
    else if constexpr (isView<T>())
        return false;
    else if constexpr (requires { typename T::value_type; })
        return ownsWhatItHolds<typename T::value_type>() && argumentsOwn<T>;
    else
        return argumentsOwn<T>;
}

/// Returns why a function cannot return the type, or `None`.
template <class R>
consteval Refusal functionResultRefusal()
{
    if constexpr (!ownsWhatItHolds<R>())
        return Refusal::UnownedFunctionResult;
    else
        return resultRefusal<R>();
}

/// References to objects of native code are lent to the script.
template <class A>
concept IsLent = StoresNamedObject<A> && std::is_lvalue_reference_v<A>;

/// Lends an object to a script: its host object, unless there was one before, becomes invalid after the call.
template <IsLent A>
class Loan {
    using Class = std::remove_cvref_t<A>;

public:
    explicit Loan(A object)
        : address_(toBound(namedClassOf<Class>(), const_cast<Class*>(std::addressof(object)))),
          isBound_(basic::BindingRegistry::contains(address_))
    {
    }
    Loan(Loan const&) = delete;
    Loan& operator=(Loan const&) = delete;

    ~Loan()
    {
        if (!isBound_)
            basic::BindingRegistry::retract(address_);
    }

private:
    void const* address_;
    bool isBound_;
};

struct NoLoan {
    explicit NoLoan(auto&&) {}
};

template <class A>
struct LoanFor {
    using Type = NoLoan;
};

template <IsLent A>
struct LoanFor<A> {
    using Type = Loan<A>;
};

/// Converts a value as the result of a member, for a caller that owns it from then on.
template <class V, class F>
COSValue toOwnedValue(F&& function)
{
    if constexpr (ObjectResult<V>)
        return COSValue(objectResult<V>(NoWhole(), std::forward<F>(function)));
    else
        return toValue<V>(std::forward<F>(function));
}

template <class A>
void addInput(host_extensions::FunctionCall& call, A& argument)
{
    using Passed = std::conditional_t<std::is_rvalue_reference_v<A>, std::remove_cvref_t<A>, A>;
    COSValue const value = toOwnedValue<Passed>([&]() -> Passed { return static_cast<A&&>(argument); });
    if constexpr (!std::is_reference_v<Passed> && passesForeignArray<Passed>()) {
        if (value.array())
            value.array()->add_reference(); // native code keeps its own
    }
    call.addInput(dataTypeText<A>(), value);
}

/// Calls a function of the script.
template <class R, class... A>
class ScriptFunction {
public:
    explicit ScriptFunction(hvArray_tag const* function) : function_(function) {}
    explicit ScriptFunction(host_extensions::FunctionHandle const& function) : function_(function) {}

    hvArray* toHost() const { return host_extensions::createFunction(function_); }

    R operator()(A... arguments) const
    {
        host_extensions::FunctionCall call(function_);
        return invoke(call, typename LoanFor<A>::Type(arguments)..., arguments...);
    }

private:
    static R invoke(host_extensions::FunctionCall& call, typename LoanFor<A>::Type const&..., A&... arguments)
    {
        (addInput<A>(call, arguments), ...);
        [[maybe_unused]] COSValue const& result = call.invoke(dataTypeText<R>());
        if constexpr (!std::is_void_v<R>)
            return Argument<R>(result).get();
    }

    host_extensions::FunctionHandle function_;
};

/// A function of native code, for the host.
template <class R, class... A>
class NativeFunction final : public COSMethodInfo {
public:
    explicit NativeFunction(std::function<R(A...)> function) : function_(std::move(function))
    {
        signature_ = COSMethodSignature::createMethodSignature();
        [[maybe_unused]] std::size_t index = 0;
        (signature_->addInput(dataTypeText<A>(), ('p' + std::to_string(index++)).c_str()), ...);
        signature_->addOutput(dataTypeText<R>(), "result");
    }

    char const* getName() const override { return "function"; }
    COSMethodSignature const* getMethodSignature() const override { return signature_; }

    void invoke(COSClient const*, int& outputCount, COSValue* outputs, int, COSValue const* inputs) const override
    {
        ArgumentsOf<A...> arguments(inputs);
        auto const call = [&]() -> R { return arguments.apply(function_); };
        if constexpr (std::is_void_v<R>) {
            call();
        } else {
            outputs[0] = toOwnedValue<R>(call);
            if (outputCount == 0)
                outputCount = 1;
        }
    }

private:
    std::function<R(A...)> function_;
    COSMethodSignaturePtr signature_;
};

/// The name of a data type as the result of a function, in parentheses where it would be read as a part of the whole.
inline std::string functionResultText(std::string_view type)
{
    bool const namesInput = type.find(" -> ") != type.npos || type.ends_with(" or empty");
    return namesInput ? '(' + std::string(type) + ')' : std::string(type);
}

template <class Function>
struct FunctionTypes;

template <class R, class... A>
struct FunctionTypes<std::function<R(A...)>> {
    using Script = ScriptFunction<R, A...>;
    using Native = NativeFunction<R, A...>;

    /// "function(double scalar) -> double scalar"
    static std::string text()
    {
        std::string text;
        ((text += (text.empty() ? "" : ", ") + std::string(dataTypeText<A>())), ...);
        text = "function(" + text + ')';
        if constexpr (!std::is_void_v<R>)
            text += " -> " + functionResultText(dataTypeText<R>());
        return text;
    }
};

} // namespace detail

template <>
class Marshaler<FunctionPolicy> : public detail::DataTypeName<Marshaler<FunctionPolicy>> {
public:
    template <class Function>
    static void toHost(Function const& function, hvArray** out)
    {
        using Types = detail::FunctionTypes<Function>;
        if (auto const* const ofScript = function.template target<typename Types::Script>())
            *out = ofScript->toHost();
        else if (function)
            *out = host_extensions::createFunction(new typename Types::Native(function));
    }

    template <class Function>
    static Function fromHost(hvArray_tag const* in)
    {
        return typename detail::FunctionTypes<Function>::Script(in);
    }

    template <class Function>
    static char const* dataTypeText()
    {
        static std::string const text = detail::FunctionTypes<Function>::text();
        return text.c_str();
    }
};

template <class R, class... A>
struct MarshalingPolicy<std::function<R(A...)>> {
    static constexpr detail::Refusal refusal =
        detail::firstRefusal(detail::marshalingRefusal<A>()..., detail::functionResultRefusal<R>());
    using Type = FunctionPolicy;
};

} // namespace orbis::factory
