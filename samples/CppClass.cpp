#include "samples/CppClass.hpp"

#include "orbis/factory/base/Exception.hpp"
#include "orbis/factory/base/validateSelfPointer.hpp"
#include "orbis/factory/descriptors/Invoker.hpp"
#include "orbis/factory/descriptors/OrbisMethod.hpp"
#include "orbis/factory/descriptors/PropertyImplBase.hpp"
#include "orbis/factory/ownership/BindingRegistry.hpp"
#include "orbis/factory/types/StringPolicy.hpp"
#include "orbis/factory/types/initStringDataTypes.hpp"

#include "libhv/libhv.hpp"
#include "orbis/COSClass.hpp"
#include "orbis/COSDataType.hpp"
#include "orbis/objectArrays.hpp"

#include <memory>

namespace orbis::factory::samples {

namespace {

constexpr char const* textType = "char vector";
using Text = Marshaler<StringPolicy>;

CppClass& nativeSelf(COSInterface* object)
{
    if (!object)
        throw Exception("A guest book is needed.");
    void* const book = object->getNativeObject(COSNameID(HostClass<CppClass>::name));
    impl::validateSelfPointer(book);
    return *static_cast<CppClass*>(book);
}

class Constructor final : public OrbisMethod {
public:
    Constructor() : OrbisMethod("CppClass", {}, "")
    {
        impl::Invoker::createSignature(nullptr, HostClass<CppClass>::name, nullptr, signature());
    }

    /// Does nothing: the class info has already created the native object.
    void invoke(COSClient const*, int& outputCount, COSValue*, int, COSValue const*) const override
    {
        if (outputCount == 0)
            outputCount = 1;
    }
};

/// Stores a new entry, and returns the one that it replaces.
class Sign final : public OrbisMethod {
public:
    Sign() : OrbisMethod("sign", {}, "")
    {
        impl::Invoker::createSignature("entry", textType, HostClass<CppClass>::name, textType, signature());
    }

    void invoke(COSClient const*, int& outputCount, COSValue* outputs, int, COSValue const* inputs) const override
    {
        hvArray* const self = inputs[0].array();
        bool const hasSelf = self && omIsORBIS(self) && self->get_number_of_elements() > 0;
        CppClass& book = nativeSelf(hasSelf ? static_cast<COSInterface*>(omGetArrayElement(self, 0)) : nullptr);
        std::string entry = Text::fromHost<std::string>(inputs[1].array()).value();
        outputs[0] = COSValue(hvCreateString(book.entry.c_str()));
        book.entry.swap(entry);
        if (outputCount == 0)
            outputCount = 1;
    }
};

class Entry final : public impl::PropertyImplBase {
public:
    Entry() : PropertyImplBase("entry", "", PropertyAttributes::PrivateSetter()) {}

    COSDataTypePtr getDataType() const override { return textType; }
    COSValue getValue(COSInterface* object) const override
    {
        return COSValue(hvCreateString(nativeSelf(object).entry.c_str()));
    }
    void setValue(COSInterface* object, COSValue value) const override
    {
        nativeSelf(object).entry = Text::fromHost<std::string>(value.array()).value();
    }
    void releaseValue(COSInterface*, COSValue) const override {}
    bool canContainInterfaces() const override { return false; }
};

} // namespace

void CppCCI::initializeClass(COSClass* cls)
{
    detail::initStringDataTypes();
    cls->addMethod(new Constructor);
    cls->addMethod(new Sign);
    cls->addProperty(new Entry);
}

bool CppCCI::destroyInstanceData(COSInterface*, void* data)
{
    std::unique_ptr<CppClass> const book(static_cast<CppClass*>(data));
    return basic::BindingRegistry::release(data);
}

} // namespace orbis::factory::samples
