// The native code by RTTR: `race_rttr ROW COUNT`. Members are looked up once, except overloads, which are found by the
// types of the arguments.
#include "native.hpp"
#include "rows.hpp"

#include <rttr/registration>

#include <utility>

namespace {

using race::Adder;
using race::require;
using race::use;

template <int... numbers>
void publishKinds(std::integer_sequence<int, numbers...>)
{
    using rttr::registration;
    (registration::class_<race::Kind<numbers>>("Kind" + std::to_string(numbers)).template constructor<>(), ...);
    (registration::method("choose", &race::choose<numbers>), ...);
}

class Reflected {
public:
    void call(std::size_t count)
    {
        for (std::size_t i = 0; i < count; ++i)
            use(done(getSum_.invoke(adder_, 1.0, 2.0)).get_value<double>());
    }

    void read(std::size_t count)
    {
        for (std::size_t i = 0; i < count; ++i)
            use(done(total_.get_value(adder_)).get_value<double>());
    }

    void write(std::size_t count)
    {
        for (std::size_t i = 0; i < count; ++i)
            require(total_.set_value(adder_, 3.0));
    }

    void create(std::size_t count)
    {
        for (std::size_t i = 0; i < count; ++i) {
            rttr::variant object = done(class_.create());
            require(class_.destroy(object));
        }
    }

    void func(std::size_t count)
    {
        for (std::size_t i = 0; i < count; ++i)
            use(done(add_.invoke({}, 1.0, 2.0)).get_value<double>());
    }

    void stringIn(std::size_t count)
    {
        std::string const text = "twelve bytes";
        invoke(length_, count, text);
    }

    void stringOut(std::size_t count) { results<std::string>(name_, count); }

    void object(std::size_t count)
    {
        Adder* const adder = &adder_;
        for (std::size_t i = 0; i < count; ++i)
            require(done(self_.invoke({}, adder)).get_value<Adder*>() == adder);
    }

    void overload3(std::size_t count)
    {
        Adder const* const adder = &adder_;
        for (std::size_t i = 0; i < count; ++i)
            use(done(rttr::type::invoke("describe", {adder})).get_value<int>());
    }

    void overload8(std::size_t count)
    {
        race::Kind<7> const* const kind = &kind_;
        for (std::size_t i = 0; i < count; ++i)
            use(done(rttr::type::invoke("choose", {kind})).get_value<int>());
    }

    void stringsIn(std::size_t count) { invoke(count_, count, std::vector<std::string>(1000, "twelve bytes")); }
    void stringsOut(std::size_t count) { results<std::vector<std::string>>(names_, count); }
    void arrayIn(std::size_t count) { invoke(countNumbers_, count, race::numbers()); }
    void arrayOut(std::size_t count) { results<std::vector<double>>(numbers_, count); }

    void wrongType(std::size_t count)
    {
        std::string const text = "text";
        for (std::size_t i = 0; i < count; ++i)
            require(!getSum_.invoke(adder_, text, 2.0).is_valid());
    }

    void exception(std::size_t count)
    {
        for (std::size_t i = 0; i < count; ++i) {
            bool isCaught = false;
            try {
                fail_.invoke({});
            } catch (std::runtime_error const&) {
                isCaught = true;
            }
            require(isCaught);
        }
    }

private:
    /// The result of a call that must have succeeded.
    static rttr::variant done(rttr::variant value)
    {
        require(value.is_valid());
        return value;
    }

    template <class T>
    void invoke(rttr::method const& method, std::size_t count, T const& argument)
    {
        for (std::size_t i = 0; i < count; ++i)
            use(done(method.invoke({}, argument)).template get_value<int>());
    }

    template <class T>
    void results(rttr::method const& method, std::size_t count)
    {
        for (std::size_t i = 0; i < count; ++i) {
            rttr::variant const result = done(method.invoke({}));
            use(result.get_value<T>());
        }
    }

    static rttr::method global(char const* name) { return rttr::type::get_global_method(name); }

    Adder adder_;
    race::Kind<7> kind_;
    rttr::type class_ = rttr::type::get_by_name("Adder");
    rttr::method getSum_ = class_.get_method("getSum");
    rttr::property total_ = class_.get_property("total");
    rttr::method add_ = global("add");
    rttr::method length_ = global("length");
    rttr::method name_ = global("name");
    rttr::method self_ = global("self");
    rttr::method count_ = global("count");
    rttr::method names_ = global("names");
    rttr::method countNumbers_ = global("countNumbers");
    rttr::method numbers_ = global("numbers");
    rttr::method fail_ = global("fail");
};

} // namespace

RTTR_REGISTRATION
{
    using rttr::registration;
    registration::class_<Adder>("Adder")
        .constructor<>()(rttr::policy::ctor::as_raw_ptr)
        .method("getSum", &Adder::getSum)
        .property("total", &Adder::total);
    registration::method("add", &race::add);
    registration::method("length", &race::length);
    registration::method("name", &race::name);
    registration::method("self", &race::self);
    registration::method("describe", static_cast<int (*)(double)>(&race::describe));
    registration::method("describe", static_cast<int (*)(std::string const&)>(&race::describe));
    registration::method("describe", static_cast<int (*)(Adder const*)>(&race::describe));
    registration::method("count", &race::count);
    registration::method("names", &race::names);
    registration::method("countNumbers", &race::countNumbers);
    registration::method("numbers", &race::numbers);
    registration::method("fail", &race::fail);
    publishKinds(std::make_integer_sequence<int, race::kindCount>());
}

int main(int argc, char** argv)
{
    constexpr race::Row<Reflected> rows[] = {{"start", &Reflected::call},
                                             {"call", &Reflected::call},
                                             {"read", &Reflected::read},
                                             {"write", &Reflected::write},
                                             {"create", &Reflected::create},
                                             {"func", &Reflected::func},
                                             {"stringIn", &Reflected::stringIn},
                                             {"stringOut", &Reflected::stringOut},
                                             {"object", &Reflected::object},
                                             {"overload3", &Reflected::overload3},
                                             {"overload8", &Reflected::overload8},
                                             {"stringsIn", &Reflected::stringsIn},
                                             {"stringsOut", &Reflected::stringsOut},
                                             {"arrayIn", &Reflected::arrayIn},
                                             {"arrayOut", &Reflected::arrayOut},
                                             {"wrongType", &Reflected::wrongType},
                                             {"exception", &Reflected::exception}};
    if (argc != 3)
        return std::fputs("usage: race_rttr ROW COUNT\n", stderr), 2;
    Reflected reflected;
    race::runRow(reflected, rows, argv[1], argv[2]);
}
