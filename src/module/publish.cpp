#include "orbis/factory/ClassDescription.hpp"
#include "orbis/factory/FunctionDescription.hpp"
#include "orbis/factory/descriptors/FunctionInfo.hpp"
#include "orbis/factory/descriptors/MethodImpl.hpp"
#include "orbis/factory/descriptors/OrbisConstructor.hpp"
#include "orbis/factory/makeProperty.hpp"
#include "orbis/factory/types/initStringDataTypes.hpp"

#include "module/DocumentedMember.hpp"
#include "module/PublishedClasses.hpp"
#include "module/copyConstruct.hpp"
#include "module/makeDescriptor.hpp"
#include "module/notPublished.hpp"

#include "host_extensions/host_extensions.hpp"

#include <algorithm>
#include <array>
#include <cstring>
#include <memory>
#include <string>
#include <utility>

namespace orbis::factory {

namespace {

using Kind = MemberRecord::Kind;

template <std::size_t... I>
void createSignature(MemberRecord const& record, char const* selfType, COSMethodSignaturePtr& signature,
                     std::index_sequence<I...>)
{
    impl::Invoker::createSignature(record.parameterNames, record.outputType(), selfType, record.inputTypes[I]()...,
                                   signature);
}

using SignatureMaker = void (*)(MemberRecord const&, char const*, COSMethodSignaturePtr&);

/// A table with one entry for each number of inputs.
template <std::size_t... N>
constexpr std::array<SignatureMaker, sizeof...(N)> signatureMakers(std::index_sequence<N...>)
{
    return {[](MemberRecord const& record, char const* selfType, COSMethodSignaturePtr& signature) {
        createSignature(record, selfType, signature, std::make_index_sequence<N>());
    }...};
}

void createSignature(MemberRecord const& record, char const* selfType, COSMethodSignaturePtr& signature)
{
    static constexpr auto makers = signatureMakers(std::make_index_sequence<maximumInputs + 1>());
    makers.at(record.inputTypes.size())(record, selfType, signature);
}

/// Only free functions can be forced members; free functions that are not are static.
MethodAttributes attributesOf(MemberRecord const& record)
{
    MethodAttributes const force = MethodAttributes::ForceMembership();
    switch (record.kind) {
    case Kind::MemberFunction:
        return record.attributes - force;
    case Kind::FreeFunction:
        return record.attributes.forceMemberMethod() ? record.attributes
                                                     : record.attributes + MethodAttributes::Static();
    default:
        return record.attributes;
    }
}

template <class Descriptor>
void bind(Descriptor& descriptor, MemberRecord const& record, char const* hostName)
{
    createSignature(record, record.kind == Kind::MemberFunction ? hostName : nullptr, descriptor.signature());
    descriptor.invoker().invokeFn = record.invokeFn;
    descriptor.invoker().setTarget(record.target);
    descriptor.invoker().setForcedMember(record.kind == Kind::FreeFunction && record.attributes.forceMemberMethod());
}

template <class Descriptor>
void add(COSClass* cls, char const* name, MemberRecord const& record, char const* hostName)
{
    publishing(hostName, name, [&] {
        DocumentedMember const member(record);
        auto descriptor =
            makeDescriptor<Descriptor>(member.record(), name, attributesOf(record), member.text().c_str());
        bind(*descriptor, member.record(), hostName);
        cls->addMethod(descriptor.release());
    });
}

/// A function with a text.
class DescribedFunction : public FunctionInfo {
public:
    DescribedFunction(char const* name, MethodAttributes attributes, std::string text)
        : FunctionInfo(name, attributes),
          text_(std::move(text))
    {
    }

    char const* getDescription() const override { return text_.c_str(); }

private:
    std::string text_;
};

/// Adds a constructor that copies, unless one is described.
void addCopying(COSClass* cls, ClassDescription const& description, detail::Copying const& copying)
{
    bool const isDescribed = std::ranges::any_of(description.members(), [&](MemberRecord const& member) {
        return member.kind == Kind::Constructor && member.inputTypes.size() == 1 &&
               std::strcmp(member.inputTypes[0](), copying.typeText()) == 0;
    });
    if (isDescribed)
        return;
    add<impl::OrbisConstructor>(cls, cls->getName(),
                                {.kind = Kind::Constructor,
                                 .name = nullptr,
                                 .parameterNames = "other",
                                 .attributes = {},
                                 .outputType = copying.typeText,
                                 .inputTypes = {&copying.typeText, 1},
                                 .invokeFn = &copyConstruct,
                                 .target = &copying,
                                 .namesInputs = true},
                                description.hostName());
}

void setSuperclasses(COSClass* cls, std::vector<NativeClassRecord> const& superclasses)
{
    std::vector<COSNameID> names;
    names.reserve(superclasses.size());
    for (NativeClassRecord const& superclass : superclasses)
        names.emplace_back(superclass.hostName);
    if (!names.empty())
        host_extensions::setSuperclasses(cls, names);
}

} // namespace

void publish(COSClass* cls, ClassDescription const& description)
{
    detail::initStringDataTypes();
    setSuperclasses(cls, description.superclasses());
    for (MemberRecord const& record : description.members()) {
        if (record.kind == Kind::Constructor)
            add<impl::OrbisConstructor>(cls, cls->getName(), record, description.hostName());
    }
    if (detail::Copying const* const copying = description.copying())
        addCopying(cls, description, *copying);
    for (MemberRecord const& record : description.members()) {
        if (record.kind != Kind::Constructor)
            add<impl::MethodImpl>(cls, record.name, record, description.hostName());
    }
    for (PropertyRecord const& record : description.properties())
        publishing(description.hostName(), record.name, [&] { cls->addProperty(makeProperty(record).release()); });
    PublishedClasses::ofCurrentHvm().add(description.native(), description.superclasses());
}

void publish(COSPackage* package, FunctionDescription const& description)
{
    detail::initStringDataTypes();
    for (MemberRecord const& record : description.functions()) {
        publishing(nullptr, record.name, [&] {
            DocumentedMember const member(record);
            auto function =
                makeDescriptor<DescribedFunction>(member.record(), record.name, attributesOf(record), member.text());
            bind(function->method(), member.record(), nullptr);
            package->addFunction(function.release());
        });
    }
}

} // namespace orbis::factory
