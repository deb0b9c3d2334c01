#pragma once

#include "arrays/Array.hpp"
#include "types/Fit.hpp"
#include "types/TypeReference.hpp"

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
    explicit ConvertedInputs(std::size_t capacity) : values_(inlineValues_), owned_(inlineOwned_)
    {
        if (capacity > inlineCapacity)
            makeRoom(capacity);
    }
    ConvertedInputs(ConvertedInputs const&) = delete;
    ConvertedInputs& operator=(ConvertedInputs const&) = delete;

    ~ConvertedInputs()
    {
        if (ownedCount_ != 0)
            giveBack();
    }

    /// Converts the next input; when it does not fit nothing is added. What does not fit throws nothing, but an
    /// object that cannot be used in the current virtual machine does.
    Fit add(TypeReference const& type, hvArray_tag* input)
    {
        if (type.kind != TypeKind::Scalar)
            return addArray(type, input);
        Fit const fit = type.scalar.read(*Array::of(input), values_[count_]);
        count_ += fit != noFit;
        return fit;
    }

    /// Adds the object that a method is called on: of several, its first one decides.
    Fit addSelf(TypeReference const& type, hvArray_tag* self);

    /// Adds an array that is known to fit.
    void addAsIs(hvArray_tag* input) { values_[count_++] = orbis::COSValue(input); }

    int count() const { return count_; }
    orbis::COSValue const* values() const { return values_; }

private:
    struct Owned {
        orbis::COSDataType* type; ///< null for an array of the host's own
        orbis::COSValue value;
    };

    static constexpr std::size_t inlineCapacity = 24;

    Fit addArray(TypeReference const& type, hvArray_tag* input);
    Fit addText(hvArray_tag* input);
    Fit addElements(TypeReference const& type, hvArray_tag* input);
    Fit addOptional(TypeReference const& type, hvArray_tag* input);
    Fit addNamed(TypeReference const& type, hvArray_tag* input);
    Fit addEnumeration(TypeReference const& type, hvArray_tag* input);
    Fit addRegistered(TypeReference const& type, hvArray_tag* input);
    void makeRoom(std::size_t capacity);
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
    struct Room;
    struct DeleteRoom {
        void operator()(Room* room) const;
    };
    std::unique_ptr<Room, DeleteRoom> room_; ///< for more inputs than stand in here
};

/// Why an input does not fit a data type: "needs a number, not char".
std::string explainRefusal(TypeReference const& type, hvArray_tag* input);

} // namespace velmara
