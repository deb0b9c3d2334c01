#pragma once

#include "orbis/factory/describeFunctions.hpp"
#include "orbis/factory/descriptors/FunctionInfo.hpp"
#include "orbis/factory/types/stringVectors.hpp"

#include "velmara/ArrayPtr.hpp"
#include "velmara/Hvm.hpp"

#include "host_extensions/host_extensions.hpp"

#include <cstddef>
#include <string>
#include <vector>

namespace bench {

/// Strings of 12 characters as arguments and results of native functions, through their `FunctionInfo`; each scenario
/// makes `count` calls and destroys their results. The `bare` scenarios make only the host calls and copies that every
/// implementation needs. The narrow vectors hold `std::string`, whose 12 characters need no allocation.
class StringScenarios {
    using COSValue = orbis::COSValue;
    using Strings = std::vector<fl::ustring>;
    using Narrow = std::vector<std::string>;

public:
    explicit StringScenarios(std::size_t stringsInVector)
        : strings_(stringsInVector, u"twelve chars"),
          narrow_(stringsInVector, "twelve chars")
    {
        auto const description = orbis::factory::describeFunctions()
                                     .function("in", [](std::string const& text) { keep(&text); })
                                     .function("out", [] { return std::string(twelve()); })
                                     .function("vectorIn", [](Strings const& strings) { keep(&strings); })
                                     .function("vectorOut", []() -> Strings const& { return *result; })
                                     .function("narrowIn", [](Narrow const& strings) { keep(&strings); })
                                     .function("narrowOut", []() -> Narrow const& { return *narrowResult; });
        orbis::factory::FunctionInfo* const functions[] = {&in_,        &out_,      &vectorIn_,
                                                           &vectorOut_, &narrowIn_, &narrowOut_};
        for (std::size_t i = 0; i < std::size(functions); ++i) {
            functions[i]->method().invoker().invokeFn = description.functions()[i].invokeFn;
            functions[i]->method().invoker().setTarget(description.functions()[i].target);
        }
        result = &strings_;
        narrowResult = &narrow_;
    }

    void stringIn(std::size_t count) { invoke(in_, COSValue(text_.get()), count); }
    void stringOut(std::size_t count) { invoke(out_, {}, count); }
    void vectorIn(std::size_t count) { invoke(vectorIn_, COSValue(cells_.get()), count); }
    void vectorOut(std::size_t count) { invoke(vectorOut_, {}, count); }

    void narrowVectorIn(std::size_t count) { invoke(narrowIn_, COSValue(cells_.get()), count); }
    void narrowVectorOut(std::size_t count) { invoke(narrowOut_, {}, count); }

    void bareVectorIn(std::size_t count)
    {
        for (std::size_t call = 0; call < count; ++call) {
            Strings strings;
            strings.reserve(strings_.size());
            for (std::size_t i = 0; i < strings_.size(); ++i) {
                hvArray const* const cell = orbis::host_extensions::getCell(cells_.get(), i);
                auto const* const text = static_cast<char16_t const*>(orbis::host_extensions::getData(cell));
                strings.emplace_back(text, cell->get_number_of_elements());
            }
            keep(&strings);
        }
    }

    void bareVectorOut(std::size_t count)
    {
        for (std::size_t i = 0; i < count; ++i)
            hvDestroyArray(makeCells(strings_));
    }

private:
    [[gnu::noipa]] static void keep(void const*) {}
    [[gnu::noipa]] static char const* twelve() { return "twelve chars"; }

    static hvArray* makeCells(Strings const& strings)
    {
        hvArray* const cells = hvCreateCellMatrix(strings.size(), 1);
        for (std::size_t i = 0; i < strings.size(); ++i)
            hvSetCell(cells, i, hvCreateString_UTF16(strings[i].c_str()));
        return cells;
    }

    /// Calls like the host, which knows only a descriptor's base class.
    [[gnu::noipa]] static void invoke(orbis::COSMethodInfo const& method, COSValue input, std::size_t count)
    {
        for (std::size_t i = 0; i < count; ++i) {
            int outputCount = 1;
            COSValue output;
            method.invoke(nullptr, outputCount, &output, 1, &input);
            if (output.isArray())
                hvDestroyArray(output.array());
        }
    }

    velmara::Hvm hvm_;
    velmara::Hvm::Scope scope_{hvm_};
    Strings strings_;
    Narrow narrow_;
    velmara::ArrayPtr text_{hvCreateString("twelve chars")};
    velmara::ArrayPtr cells_{makeCells(strings_)};
    orbis::factory::FunctionInfo in_{"in", {}};
    orbis::factory::FunctionInfo out_{"out", {}};
    orbis::factory::FunctionInfo vectorIn_{"vectorIn", {}};
    orbis::factory::FunctionInfo vectorOut_{"vectorOut", {}};
    orbis::factory::FunctionInfo narrowIn_{"narrowIn", {}};
    orbis::factory::FunctionInfo narrowOut_{"narrowOut", {}};
    inline static Strings const* result = nullptr; ///< of the instance created last
    inline static Narrow const* narrowResult = nullptr;
};

} // namespace bench
