// The module by the host's driving interface: `race_driving ROW COUNT`, beside librace.so. Strings start as std::string
// and end as one, as the program that calls has them.
#include "native.hpp"
#include "rows.hpp"

#include "velmara/Hvm.hpp"

#include "host_extensions/host_extensions.hpp"

#include <span>

namespace {

namespace host = orbis::host_extensions;
using orbis::COSValue;
using race::require;
using race::use;
using velmara::ArrayPtr;
using velmara::Hvm;
using velmara::MemberName;
using velmara::Value;

std::string stringOf(hvArray_tag const* array)
{
    std::u16string_view const text(static_cast<char16_t const*>(host::getData(array)), array->get_number_of_elements());
    std::string result(host::utf8Size(text), '\0');
    host::writeUtf8(text, result.data());
    return result;
}

class Driven {
public:
    explicit Driven(Hvm& hvm) : hvm_(hvm) {}

    void call(std::size_t count)
    {
        COSValue const inputs[] = {COSValue(1.0), COSValue(2.0)};
        for (std::size_t i = 0; i < count; ++i)
            use(done(hvm_.call(adder_.get(), getSum_, inputs, failure_)).slot().scalar<double>());
    }

    void read(std::size_t count)
    {
        for (std::size_t i = 0; i < count; ++i)
            use(done(hvm_.get(adder_.get(), total_, failure_)).slot().scalar<double>());
    }

    void write(std::size_t count)
    {
        for (std::size_t i = 0; i < count; ++i) {
            hvm_.set(adder_.get(), total_, COSValue(3.0), failure_);
            require(!failure_);
        }
    }

    void create(std::size_t count)
    {
        for (std::size_t i = 0; i < count; ++i)
            require(hvm_.construct(class_, {}, failure_) != nullptr);
    }

    void func(std::size_t count)
    {
        COSValue const inputs[] = {COSValue(1.0), COSValue(2.0)};
        for (std::size_t i = 0; i < count; ++i)
            use(done(function(add_, inputs)).slot().scalar<double>());
    }

    void stringIn(std::size_t count)
    {
        std::string const text = "twelve bytes";
        for (std::size_t i = 0; i < count; ++i) {
            ArrayPtr const array(host::createText(std::string_view(text)));
            use(done(function(length_, array)));
        }
    }

    void stringOut(std::size_t count)
    {
        for (std::size_t i = 0; i < count; ++i)
            use(stringOf(done(function(name_)).slot().array()));
    }

    void object(std::size_t count)
    {
        for (std::size_t i = 0; i < count; ++i)
            use(done(function(self_, adder_)));
    }

    void overload3(std::size_t count)
    {
        for (std::size_t i = 0; i < count; ++i)
            use(done(function(describe_, adder_)));
    }

    void overload8(std::size_t count)
    {
        for (std::size_t i = 0; i < count; ++i)
            use(done(function(choose_, kind_)));
    }

    void stringsIn(std::size_t count)
    {
        std::vector<std::string> const texts(1000, "twelve bytes");
        for (std::size_t i = 0; i < count; ++i) {
            ArrayPtr const cells(hvCreateCellMatrix(texts.size(), 1));
            for (std::size_t j = 0; j < texts.size(); ++j)
                hvSetCell(cells.get(), j, host::createText(std::string_view(texts[j])));
            use(done(function(count_, cells)));
        }
    }

    void stringsOut(std::size_t count)
    {
        for (std::size_t i = 0; i < count; ++i) {
            Value const cells = done(function(names_));
            std::vector<std::string> texts(cells.slot().array()->get_number_of_elements());
            for (std::size_t j = 0; j < texts.size(); ++j)
                texts[j] = stringOf(host::getCell(cells.slot().array(), j));
            use(texts);
        }
    }

    void arrayIn(std::size_t count)
    {
        std::vector<double> const& numbers = race::numbers();
        for (std::size_t i = 0; i < count; ++i) {
            ArrayPtr const array(host::createMatrix(1, numbers.size(), hvDOUBLE_CLASS, numbers.data()));
            use(done(function(countNumbers_, array)));
        }
    }

    void arrayOut(std::size_t count)
    {
        for (std::size_t i = 0; i < count; ++i)
            use(host::getData(done(function(numbers_)).slot().array()));
    }

    void wrongType(std::size_t count)
    {
        ArrayPtr const text(host::createText(std::string_view("text")));
        COSValue const inputs[] = {COSValue(text.get()), COSValue(2.0)};
        for (std::size_t i = 0; i < count; ++i) {
            hvm_.call(adder_.get(), getSum_, inputs, failure_);
            require(failure_.has_value());
            failure_.reset();
        }
    }

    void exception(std::size_t count)
    {
        for (std::size_t i = 0; i < count; ++i) {
            function(fail_);
            require(failure_.has_value());
            failure_.reset();
        }
    }

private:
    Value function(MemberName& name, Hvm::Values inputs = {}) { return hvm_.callFunction(name, inputs, failure_); }
    Value function(MemberName& name, ArrayPtr const& input)
    {
        COSValue const value(input.get());
        return hvm_.callFunction(name, {&value, 1}, failure_);
    }

    /// The result of a call that must have succeeded.
    Value done(Value value)
    {
        require(!failure_);
        return value;
    }

    Hvm& hvm_;
    Hvm::Failure failure_;
    ArrayPtr adder_ = hvm_.construct("race.Adder");
    ArrayPtr kind_ = hvm_.construct("race.Kind7");
    MemberName class_{"race.Adder"};
    MemberName getSum_{"race.Adder", "getSum"};
    MemberName total_{"race.Adder", "total"};
    MemberName add_{"race.add"};
    MemberName length_{"race.length"};
    MemberName name_{"race.name"};
    MemberName self_{"race.self"};
    MemberName describe_{"race.describe"};
    MemberName choose_{"race.choose"};
    MemberName count_{"race.count"};
    MemberName names_{"race.names"};
    MemberName countNumbers_{"race.countNumbers"};
    MemberName numbers_{"race.numbers"};
    MemberName fail_{"race.fail"};
};

} // namespace

int main(int argc, char** argv)
{
    constexpr race::Row<Driven> rows[] = {{"start", &Driven::call},
                                          {"call", &Driven::call},
                                          {"read", &Driven::read},
                                          {"write", &Driven::write},
                                          {"create", &Driven::create},
                                          {"func", &Driven::func},
                                          {"stringIn", &Driven::stringIn},
                                          {"stringOut", &Driven::stringOut},
                                          {"object", &Driven::object},
                                          {"overload3", &Driven::overload3},
                                          {"overload8", &Driven::overload8},
                                          {"stringsIn", &Driven::stringsIn},
                                          {"stringsOut", &Driven::stringsOut},
                                          {"arrayIn", &Driven::arrayIn},
                                          {"arrayOut", &Driven::arrayOut},
                                          {"wrongType", &Driven::wrongType},
                                          {"exception", &Driven::exception}};
    if (argc != 3)
        return std::fputs("usage: race_driving ROW COUNT\n", stderr), 2;
    Hvm hvm;
    hvm.loadModule("./librace.so");
    Driven driven(hvm);
    race::runRow(driven, rows, argv[1], argv[2]);
}
