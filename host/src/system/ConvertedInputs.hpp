#pragma once

#include "system/Fit.hpp"
#include "system/TypeReference.hpp"

#include "orbis/COSDataType.hpp"
#include "orbis/COSValue.hpp"

#include <memory>
#include <string>

namespace velmara {

/// The inputs of one call as values of the data types of one signature. It owns what the conversions made; other
/// arrays stay the caller's.
class ConvertedInputs {
public:
    /// Room for `capacity` inputs. Few take no memory of their own.
    explicit ConvertedInputs(std::size_t capacity);
    ConvertedInputs(ConvertedInputs const&) = delete;
    ConvertedInputs& operator=(ConvertedInputs const&) = delete;

    ~ConvertedInputs()
    {
        if (ownedCount_ != 0)
            giveBack();
    }

    /// Converts the next input; when it does not fit nothing is added. Nothing is thrown for what does not fit.
    Fit add(TypeReference const& type, hvArray_tag* input);

    int count() const { return count_; }
    orbis::COSValue const* values() const { return values_; }

private:
    struct Owned {
        orbis::COSDataType* type;
        orbis::COSValue value;
    };

    static constexpr std::size_t inlineCapacity = 24;

    Fit addNamed(TypeReference const& type, hvArray_tag* input);
    Fit addRegistered(TypeReference const& type, hvArray_tag* input);
    void giveBack();

    orbis::COSValue* values_;
    Owned* owned_;
    int count_ = 0;
    int ownedCount_ = 0;
    // Not initialised: only what is added is ever read.
    union {
        orbis::COSValue inlineValues_[inlineCapacity];
    };
    union {
        Owned inlineOwned_[inlineCapacity];
    };
    std::unique_ptr<orbis::COSValue[]> moreValues_;
    std::unique_ptr<Owned[]> moreOwned_;
};

/// Why an input does not fit a data type: "needs a number, not char".
std::string explainRefusal(TypeReference const& type, hvArray_tag* input);

} // namespace velmara
