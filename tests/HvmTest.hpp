#pragma once

#include "velmara/ArrayPtr.hpp"
#include "velmara/Hvm.hpp"
#include "velmara/LiveCounts.hpp"

#include "additions/additions.hpp"

#include <gtest/gtest.h>

#include <memory>
#include <optional>

/// Owns one virtual machine, current on the test's thread. After every test nothing of the host may be alive.
class HvmTest : public ::testing::Test {
public:
    /// Looks for what does not fit together in the current virtual machine; set where there is a library that can.
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

    velmara::Hvm& hvm() { return *hvm_; }

    void endHvm()
    {
        if (hvm_ && check) {
            EXPECT_EQ(check(), "");
        }
        scope_.reset();
        hvm_.reset();
    }

    static velmara::ArrayPtr number(double value)
    {
        velmara::ArrayPtr array(orbis::additions::createMatrix(1, 1, hvDOUBLE_CLASS));
        *static_cast<double*>(orbis::additions::getWritableData(array.get())) = value;
        return array;
    }

    /// The element of a 1-by-1 array of the native type's class.
    template <class T>
    static T scalar(velmara::ArrayPtr const& array)
    {
        EXPECT_TRUE(array && array->get_number_of_elements() == 1);
        return *static_cast<T const*>(orbis::additions::getData(array.get()));
    }

    /// The identifier of the error that `action` ends with; empty when it succeeds.
    template <class F>
    static std::string errorOf(F&& action)
    {
        try {
            action();
        } catch (velmara::Error const& error) {
            return error.identifier();
        }
        return {};
    }

private:
    std::unique_ptr<velmara::Hvm> hvm_;
    std::optional<velmara::Hvm::Scope> scope_;
};
