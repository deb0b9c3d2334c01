#pragma once

#include "velmara/ArrayPtr.hpp"
#include "velmara/Hvm.hpp"
#include "velmara/LiveCounts.hpp"

#include "host_extensions/host_extensions.hpp"
#include "libkwfl/IMsgIDException.hpp"
#include "orbis/COSValue.hpp"
#include "orbis/objectArrays.hpp"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

/// Owns one virtual machine, current on the test's thread. Nothing of the host may be alive after a test.
class HvmTest : public ::testing::Test {
public:
    /// Finds inconsistencies in the current virtual machine; set where there is a library that can.
    inline static std::string (*check)() = nullptr;

protected:
    HvmTest() : hvm_(std::make_unique<velmara::Hvm>())
    {
        scope_.emplace(*hvm_);
        hvm_->reportLeaks([](std::string const& leak) { ADD_FAILURE() << leak; });
    }

    ~HvmTest() override
    {
        endHvm();
        EXPECT_EQ(velmara::liveCounts(), velmara::LiveCounts{});
    }

    /// Before the members of fixtures are destroyed, to which callbacks refer.
    void TearDown() override { endHvm(); }

    velmara::Hvm& hvm() { return *hvm_; }

    void endHvm()
    {
        if (hvm_ && check) {
            EXPECT_EQ(check(), "");
        }
        scope_.reset();
        hvm_.reset();
    }

    /// A matrix of the native type's class, its elements column by column.
    template <class T>
    static velmara::ArrayPtr matrix(std::size_t rows, std::size_t columns, std::vector<T> const& elements)
    {
        velmara::ArrayPtr array(orbis::host_extensions::createMatrix(rows, columns, orbis::COSValue::classOf<T>()));
        std::ranges::copy(elements, static_cast<T*>(orbis::host_extensions::getWritableData(array.get())));
        return array;
    }

    static velmara::ArrayPtr number(double value) { return matrix<double>(1, 1, {value}); }

    /// The object in an array; null where there is none.
    static orbis::COSInterface* objectIn(velmara::ArrayPtr const& array, std::size_t index = 0)
    {
        return orbis::omGetArrayElement(array.get(), index);
    }

    /// A row of a class with the objects of other arrays; null is no object.
    static velmara::ArrayPtr rowOf(char const* className, std::initializer_list<velmara::ArrayPtr const*> objects)
    {
        velmara::ArrayPtr row(orbis::omCreateORBISMatrix(1, objects.size(), className));
        for (std::size_t i = 0; velmara::ArrayPtr const* const object : objects)
            orbis::omSetArrayElement(row.get(), i++, object ? objectIn(*object) : nullptr);
        return row;
    }

    /// The methods of a class, a line each: the defining class, what the method is, and its signature.
    std::string methodsOf(std::string const& className)
    {
        std::string lines;
        for (velmara::MethodRecord const& method : hvm().describeClass(className).methods)
            lines += method.definingClass + (method.isSealed ? ": sealed " : ": ") +
                     (method.kind == velmara::MethodRecord::Kind::StaticMethod ? "static " : "") + method.signature +
                     '\n';
        return lines;
    }

    /// The element of a 1-by-1 array of the native type's class.
    template <class T>
    static T scalar(velmara::ArrayPtr const& array)
    {
        EXPECT_TRUE(array && array->get_number_of_elements() == 1);
        return *static_cast<T const*>(orbis::host_extensions::getData(array.get()));
    }

    /// The inputs of a call.
    template <class... A>
    static std::array<hvArray*, sizeof...(A)> inputs(A const&... arrays)
    {
        return {arrays.get()...};
    }

    /// The identifier of the error with which `action` fails; empty when it succeeds.
    template <class F>
    static std::string errorOf(F&& action)
    {
        return caught(action, &velmara::Error::identifier);
    }

    /// The message id with which a host call is refused; empty when it is not refused.
    template <class F>
    static std::string messageIdOf(F&& call)
    {
        try {
            call();
        } catch (foundation::core::except::IMsgIDException const& error) {
            return error.getErrorID();
        }
        return {};
    }

    /// `action` fails with an error whose message, identifier and text, has all the parts.
    template <class F>
    static void expectMessage(F&& action, std::vector<std::string> const& parts)
    {
        std::string const message = caught(action, &velmara::Error::what);
        for (std::string const& part : parts)
            EXPECT_NE(message.find(part), std::string::npos) << part << " in: " << message;
    }

    template <class F, class Answer>
    static std::string caught(F&& action, Answer answer)
    {
        try {
            action();
        } catch (velmara::Error const& error) {
            return std::invoke(answer, error);
        }
        return {};
    }

private:
    std::unique_ptr<velmara::Hvm> hvm_;
    std::optional<velmara::Hvm::Scope> scope_;
};
