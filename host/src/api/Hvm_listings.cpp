#include "velmara/Hvm.hpp"

#include "api/HvmCall.hpp"
#include "api/callTargets.hpp"
#include "classes/PackageTree.hpp"
#include "errors/hostError.hpp"
#include "types/TypeRepository.hpp"

#include "host_extensions/NativeEquality.hpp"
#include "host_extensions/NativeOwner.hpp"

#include <algorithm>

namespace velmara {

namespace {

std::string text(char const* description)
{
    return description ? description : "";
}

ParameterRecord record(Parameter const& parameter)
{
    bool const isOptional = parameter.type.kind == TypeKind::Optional;
    TypeReference const& type = isOptional ? *parameter.type.value : parameter.type;
    bool const isRegistered =
        type.kind == TypeKind::Named && Machine::required().types().findRegistered(type.name) != nullptr;
    return {.name = parameter.name,
            .dataType = parameter.type.name->string(),
            .isOptional = isOptional,
            .isConverted = type.kind == TypeKind::Any || isRegistered};
}

std::vector<ParameterRecord> records(std::vector<Parameter> const& parameters)
{
    std::vector<ParameterRecord> listed;
    listed.reserve(parameters.size());
    for (Parameter const& parameter : parameters)
        listed.push_back(record(parameter));
    return listed;
}

std::string signatureLine(Method const& method)
{
    std::string line;
    if (!method.outputs.empty())
        line = method.outputs.front().name + " = ";
    line += method.name->string() + "(" + describe(method.inputs) + ")";
    if (!method.outputs.empty())
        line += " -> " + method.outputs.front().type.name->string();
    return line;
}

MethodRecord record(Method const& method)
{
    using Kind = MethodRecord::Kind;
    Kind const kind = !method.definingClass  ? Kind::Function
                      : method.isConstructor ? Kind::Constructor
                      : method.isStatic      ? Kind::StaticMethod
                                             : Kind::Method;
    return {.name = method.name->string(),
            .kind = kind,
            .access = method.access,
            .isVisible = method.isVisible,
            .isSealed = method.isSealed,
            .isAbstract = method.isAbstract,
            .description = text(method.info->getDescription()),
            .inputs = records(method.inputs),
            .outputs = records(method.outputs),
            .definingClass = method.definingClass ? method.definingClass->name()->string() : "",
            .signature = signatureLine(method)};
}

PropertyRecord record(Property const& property)
{
    PropertyRecord listed;
    static_cast<PropertyTraits&>(listed) = property.traits;
    listed.name = property.name->string();
    listed.dataType = property.hasType() ? property.type().name->string() : ""; // while there is no such type
    listed.description = property.description;
    listed.detailedDescription = property.detailedDescription;
    listed.definingClass = property.definingClass.name()->string();
    return listed;
}

void addMembers(Class& cls, ClassRecord& listed)
{
    for (Method const* const constructor : cls.tables().constructors.methods)
        listed.methods.push_back(record(*constructor));
    for (ObjectClass* const ancestor : cls.linearization()) {
        ClassContents const& contents = Class::of(ancestor)->contents();
        for (auto const& method : contents.methods) {
            MethodGroup const* const group = cls.tables().methodGroups.find(method->name);
            if (group && std::ranges::find(group->methods, method.get()) != group->methods.end())
                listed.methods.push_back(record(*method));
        }
        for (auto const& property : contents.properties)
            if (*cls.tables().propertiesByName.find(property->name) == property.get())
                listed.properties.push_back(record(*property));
    }
}

NameKind lookUpName(Machine& machine, std::string_view fullName)
{
    PackageTree& packages = machine.packages();
    if (packages.findClass(fullName))
        return NameKind::Class;
    if (packages.findFunctions(fullName))
        return NameKind::Function;
    if (!fullName.empty() && packages.findPackage(fullName))
        return NameKind::Package;
    return packages.findGlobalClass(fullName) ? NameKind::Class : NameKind::None;
}

std::vector<ErrorRecord> recordErrors(ErrorKinds const& kinds, std::string_view package)
{
    std::vector<ErrorRecord> listed;
    for (orbis::host_extensions::ErrorKind const& kind : kinds.all())
        if (!package.empty() && kind.package == package) {
            ErrorRecord& error = listed.emplace_back(kind.identifier);
            for (orbis::host_extensions::ErrorField const& field : kind.fields)
                error.fields.push_back(field.name);
        }
    return listed;
}

PackageRecord recordPackage(Machine& machine, std::string_view fullName)
{
    Package* const package = machine.packages().findPackage(fullName);
    if (!package)
        throwHostError("VELMARA:package", "unknown", {std::string(fullName)});
    package->populate();
    PackageRecord listed;
    listed.name = fullName;
    listed.description = package->info() ? text(package->info()->getDescription()) : "";
    for (auto const& inner : package->packages())
        listed.packages.push_back(inner->name()->string());
    for (auto const& cls : package->classes())
        listed.classes.push_back(cls->name()->string());
    for (auto const& function : package->functions())
        listed.functions.push_back(record(*function));
    listed.errors = recordErrors(machine.errorKinds(), fullName);
    std::ranges::sort(listed.packages);
    std::ranges::sort(listed.classes);
    std::ranges::stable_sort(listed.functions, {}, &MethodRecord::name);
    std::ranges::stable_sort(listed.errors, {}, &ErrorRecord::identifier);
    return listed;
}

std::string ownerOf(orbis::COSClassInfo const& info)
{
    if (!info.isHandle())
        return "value";
    if (info.isEnumeration())
        return "enumerator";
    auto const* const owner = dynamic_cast<orbis::host_extensions::NativeOwner const*>(&info);
    return owner ? owner->nativeOwner() : "handle";
}

ClassRecord recordClass(Machine& machine, std::string_view fullName)
{
    Class& cls = requireClass(machine, fullName);
    orbis::COSClassInfo const& info = cls.info();
    ClassRecord listed;
    listed.name = cls.name()->string();
    listed.description = text(info.getDescription());
    listed.isHandle = info.isHandle();
    listed.isAbstract = info.classIsAbstract();
    listed.isHidden = info.isHidden();
    listed.isEnumeration = cls.isEnumeration();
    listed.owner = ownerOf(info);
    auto const* const equality = dynamic_cast<orbis::host_extensions::NativeEquality const*>(&info);
    listed.hasEquality = equality && equality->comparesNatives();
    for (auto const& [name, value] : cls.contents().enumerators.entries())
        listed.enumerators.push_back({name->string(), value});
    for (Class const* const superclass : cls.contents().superclasses)
        listed.superclasses.push_back(superclass->name()->string());
    addMembers(cls, listed);
    return listed;
}

MethodRecord recordFunction(Machine& machine, std::string_view fullName)
{
    MethodGroup const* const group = machine.packages().findFunctions(fullName);
    if (!group)
        throwHostError("VELMARA:function", "unknown", {std::string(fullName)});
    return record(*group->methods.front());
}

using ObjectVisit = std::function<void(orbis::COSInterface&, ObjectRecord const&)>;

void visitObjects(Class& cls, ObjectVisit const& visit)
{
    ObjectRecord record{.className = cls.name()->string(), .owner = ownerOf(cls.info())};
    cls.objects().forEach([&](Object& object) {
        record.isValid = object.isValid();
        record.externalReferences = object.getExternalReferenceCount();
        record.internalReferences = object.getInternalReferenceCount();
        record.weakReferences = object.weakReferenceCount();
        record.nativeObject = object.ownNativeObject();
        visit(object, record);
    });
}

void visitObjects(Package const& package, ObjectVisit const& visit)
{
    for (auto const& cls : package.classes())
        visitObjects(*cls, visit);
    for (auto const& inner : package.packages())
        visitObjects(*inner, visit);
}

} // namespace

std::uint64_t const& Hvm::publicationNumber() const noexcept
{
    return state_->packages().publicationNumber();
}

NameKind Hvm::lookUp(std::string_view fullName)
{
    return callInto(*state_, [&] { return lookUpName(*state_, fullName); });
}

PackageRecord Hvm::describePackage(std::string_view fullName)
{
    return callInto(*state_, [&] { return recordPackage(*state_, fullName); });
}

ClassRecord Hvm::describeClass(std::string_view fullName)
{
    return callInto(*state_, [&] { return recordClass(*state_, fullName); });
}

MethodRecord Hvm::describeFunction(std::string_view fullName)
{
    return callInto(*state_, [&] { return recordFunction(*state_, fullName); });
}

std::vector<ObjectRecord> Hvm::objects() const
{
    std::vector<ObjectRecord> listed;
    forEachObject([&](orbis::COSInterface&, ObjectRecord const& record) { listed.push_back(record); });
    return listed;
}

void Hvm::forEachObject(ObjectVisit const& visit) const
{
    callInto(*state_, [&] { visitObjects(state_->packages().root(), visit); });
}

} // namespace velmara
