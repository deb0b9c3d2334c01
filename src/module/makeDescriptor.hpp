#pragma once

#include "orbis/factory/descriptors/ParameterNamer.hpp"
#include "orbis/factory/detail/members/MemberRecord.hpp"

#include "marshal/NotConvertible.hpp"
#include "marshal/NullInput.hpp"

#include <memory>
#include <string>
#include <utility>

namespace orbis::factory {

/// A descriptor that keeps alive what its callable points to.
template <class Descriptor>
class KeepingDescriptor : public Descriptor {
public:
    template <class... A>
    explicit KeepingDescriptor(MemberRecord const& record, A&&... arguments)
        : Descriptor(std::forward<A>(arguments)...),
          kept_(record.kept)
    {
    }

private:
    detail::KeptObject kept_;
};

/// The same for a member with inputs whose conversion may fail without their names: the errors of that get them.
template <class Descriptor>
class NamingDescriptor final : public KeepingDescriptor<Descriptor> {
public:
    template <class... A>
    explicit NamingDescriptor(MemberRecord const& record, A&&... arguments)
        : KeepingDescriptor<Descriptor>(record, std::forward<A>(arguments)...),
          names_(record.parameterNames),
          objects_(record.kind == MemberRecord::Kind::MemberFunction ? 1 : 0)
    {
    }

    void invoke(COSClient const* client, int& outputCount, COSValue* outputs, int inputCount,
                COSValue const* inputs) const override
    {
        try {
            Descriptor::invoke(client, outputCount, outputs, inputCount, inputs);
        } catch (NullInput const& error) {
            for (int i = objects_; i < inputCount; ++i)
                if (error.input() && inputs[i].array() == error.input())
                    throw NullInput("Input \"" + nameOf(i) + '"', error.input(), error.className());
            throw;
        } catch (NotConvertible const& error) {
            if (error.input() < 0)
                throw;
            throw NotConvertible("input \"" + nameOf(error.input() + objects_) + "\": " + error.reason());
        }
    }

private:
    std::string nameOf(int input) const
    {
        COSString const name = names_.getInputParameter(static_cast<unsigned int>(input - objects_ + 1));
        return name.c_str();
    }

    ParameterNamer names_;
    int objects_; ///< the number of leading inputs without a name
};

/// Creates the descriptor of a member from `arguments`, as the simplest of these classes that suffices.
template <class Descriptor, class... A>
std::unique_ptr<Descriptor> makeDescriptor(MemberRecord const& record, A&&... arguments)
{
    if (record.namesInputs)
        return std::make_unique<NamingDescriptor<Descriptor>>(record, std::forward<A>(arguments)...);
    if (record.kept)
        return std::make_unique<KeepingDescriptor<Descriptor>>(record, std::forward<A>(arguments)...);
    return std::make_unique<Descriptor>(std::forward<A>(arguments)...);
}

} // namespace orbis::factory
