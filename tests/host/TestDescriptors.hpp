#pragma once

#include "host_extensions/host_extensions.hpp"
#include "orbis/COSClass.hpp"
#include "orbis/COSClassInfo.hpp"
#include "orbis/COSDataType.hpp"
#include "orbis/COSMethodInfo.hpp"
#include "orbis/COSMethodSignature.hpp"
#include "orbis/COSMethodSignaturePtr.hpp"
#include "orbis/COSPackage.hpp"
#include "orbis/COSPackageInfo.hpp"
#include "orbis/COSPropInfo.hpp"
#include "orbis/objectArrays.hpp"

#include <functional>
#include <string>
#include <vector>

/// Descriptors written by hand, as short as tests want them.
namespace described {

using orbis::COSInterface;
using orbis::COSValue;

struct Call {
    int& outputCount;
    COSValue* outputs;
    int inputCount;
    COSValue const* inputs;

    void give(COSValue result) const
    {
        outputs[0] = result;
        outputCount = 1;
    }
};

using Body = std::function<void(Call const&)>;

struct MethodTraits {
    bool isStatic = false;
    bool isAbstract = false;
    bool isSealed = false;
    bool overridesAll = false;
    orbis::MemberAccess access = orbis::MemberAccess::Public;
};

class Method : public orbis::COSMethodInfo {
public:
    /// Inputs are named a, b, c, ...
    Method(std::string name, char const* output, std::vector<std::string> const& inputs, Body body = {},
           MethodTraits traits = {})
        : name_(std::move(name)),
          body_(std::move(body)),
          traits_(traits)
    {
        signature_ = orbis::COSMethodSignature::createMethodSignature();
        if (*output)
            signature_->addOutput(output, "result");
        for (std::size_t i = 0; i < inputs.size(); ++i)
            signature_->addInput(inputs[i].c_str(), std::string(1, static_cast<char>('a' + i)).c_str());
    }

    char const* getName() const override { return name_.c_str(); }
    orbis::MemberAccess getMemberAccess() override { return traits_.access; }
    orbis::COSMethodSignature const* getMethodSignature() const override { return signature_; }
    bool isStatic() const override { return traits_.isStatic; }
    bool isAbstract() const override { return traits_.isAbstract; }
    bool isSealed() const override { return traits_.isSealed; }
    bool doesMethodOverrideAllSignatures() const override { return traits_.overridesAll; }

    void invoke(orbis::COSClient const*, int& outputCount, COSValue* outputs, int inputCount,
                COSValue const* inputs) const override
    {
        if (body_)
            body_({outputCount, outputs, inputCount, inputs});
    }

protected:
    orbis::COSMethodSignaturePtr signature_;

private:
    std::string name_;
    Body body_;
    MethodTraits traits_;
};

/// A method that answers with a number.
inline Method* answering(std::string name, std::vector<std::string> const& inputs, double answer,
                         MethodTraits traits = {})
{
    return new Method(
        std::move(name), "double scalar", inputs, [answer](Call const& call) { call.give(COSValue(answer)); }, traits);
}

struct Property : orbis::COSPropInfo {
    std::string name;
    std::string type;
    std::function<COSValue(COSInterface*)> get;
    std::function<void(COSInterface*, COSValue)> set;
    std::function<void(COSInterface*, COSValue)> release = [](COSInterface*, COSValue) {};
    bool is_static = false;
    bool is_abstract = false;
    orbis::MemberAccess open = orbis::MemberAccess::Public; ///< of the sides that are there
    std::function<orbis::Enumeration<COSInterface*>()> interfaces;

    char const* getName() const override { return name.c_str(); }
    char const* getDescription() const override { return ""; }
    char const* getDetailedDescription() const override { return ""; }
    COSValue getDefaultValue() const override { return {}; }
    orbis::COSDataTypePtr getDataType() const override { return type.c_str(); }
    orbis::MemberAccess access(bool isThere) const { return isThere ? open : orbis::MemberAccess::NoAccess; }
    orbis::MemberAccess getMemberGetAccess() const override { return access(static_cast<bool>(get)); }
    orbis::MemberAccess getMemberSetAccess() const override { return access(static_cast<bool>(set)); }
    bool isSealed() const override { return false; }
    bool isAbstract() const override { return is_abstract; }
    bool isInitAllowed() const override { return true; }
    bool isDefaultAllowed() const override { return true; }
    bool isResetAllowed() const override { return true; }
    bool isTransient() const override { return false; }
    bool isCopyAllowed() const override { return true; }
    bool isListenerGetAllowed() const override { return true; }
    bool isListenerSetAllowed() const override { return true; }
    bool isInspectAllowed() const override { return true; }
    bool isAbortSet() const override { return false; }
    bool isVisible() const override { return true; }
    bool isStatic() const override { return is_static; }
    bool isDependent() const override { return false; }
    bool isGrandfathered() const override { return false; }
    COSValue getValue(COSInterface* object) const override { return get(object); }
    void setValue(COSInterface* object, COSValue value) const override { set(object, value); }
    void releaseValue(COSInterface* object, COSValue value) const override { release(object, value); }
    bool canContainInterfaces() const override { return static_cast<bool>(interfaces); }
    orbis::Enumeration<COSInterface*> getInterfaces(orbis::COSClient const*, COSInterface*) const override
    {
        return interfaces();
    }
};

struct Class : orbis::COSClassInfo {
    explicit Class(std::string fullName, std::function<void(orbis::COSClass*)> describer = {})
        : name(std::move(fullName)),
          describe(std::move(describer))
    {
    }

    std::string name;
    std::function<void(orbis::COSClass*)> describe;
    std::function<void*()> create = [] { return nullptr; };
    std::function<void(COSInterface*, void*)> destroy = [](COSInterface*, void*) {};
    bool is_abstract = false;

    char const* getName() const override { return name.c_str(); }
    bool isHandle() const override { return true; }
    bool isAbstract() const override { return is_abstract; }
    void* createInstanceData() override { return create(); }

    void initializeClass(orbis::COSClass* cls) override
    {
        if (describe)
            describe(cls);
    }

    bool destroyInstanceData(COSInterface* object, void* data) override
    {
        destroy(object, data);
        return true;
    }
};

struct Package : orbis::COSPackageInfo {
    explicit Package(std::string packageName, std::function<void(orbis::COSPackage*)> populater = {})
        : name(std::move(packageName)),
          populate(std::move(populater))
    {
    }

    std::string name;
    std::function<void(orbis::COSPackage*)> populate;
    std::function<bool(std::string)> loadClass = [](std::string const&) { return false; };

    char const* getName() const override { return name.c_str(); }
    bool attemptToLoadClass(char const* className) override { return loadClass(className); }

    void initializePackage(orbis::COSPackage* package) override
    {
        if (populate)
            populate(package);
    }
};

/// Publishes a class that belongs to no package info.
inline void publish(Class* info)
{
    orbis::COSClass::addGlobalClass(info);
}

inline void setSuperclass(orbis::COSClass* cls, char const* superclass)
{
    orbis::COSNameID const name(superclass);
    orbis::host_extensions::setSuperclasses(cls, {&name, 1});
}

} // namespace described
