#include "orbis/factory/makeProperty.hpp"

#include "orbis/factory/base/errorIdentities.hpp"

#include "marshal/throwError.hpp"

#include <stdexcept>

namespace orbis::factory {

namespace {

/// Stand in for a missing getter or setter, whose use throws.
constexpr detail::GetterForm missingGetter{
    [](impl::Callable const&, COSInterface*) -> COSValue { throwError(orbis_factory::orbis_factory::null_fcn_ptr()); },
    nullptr, nullptr, [](COSInterface*, COSValue) { throwError(orbis_factory::orbis_factory::null_fcn_ptr()); }, false};

constexpr detail::SetterForm missingSetter{
    [](impl::Callable const&, COSInterface*, COSValue) { throwError(orbis_factory::orbis_factory::null_fcn_ptr()); },
    nullptr, false};

class DescribedGetter final : public impl::Getter {
public:
    explicit DescribedGetter(PropertyRecord const& record)
        : form_(record.getterForm ? record.getterForm : &missingGetter),
          getter_(record.getter),
          kept_(record.keptGetter)
    {
    }

    bool releases() const { return form_->release; }

    COSValue getValue(COSInterface* object) const override { return form_->getValue(getter_, object); }
    char const* dataTypeName() const override { return form_->type(); }

    void releaseValue(COSInterface* object, COSValue value) const override
    {
        if (form_->release)
            form_->release(object, value);
    }

    Enumeration<COSInterface*> getInterfaces(COSInterface* object) const override
    {
        Enumeration<COSInterface*> found;
        if (form_->getInterfaces)
            form_->getInterfaces(getter_, object, found);
        return found;
    }

    bool canContainInterfaces() const override { return form_->getInterfaces; }

private:
    detail::GetterForm const* form_;
    impl::Callable getter_;
    detail::KeptObject kept_;
};

class DescribedSetter final : public impl::Setter {
public:
    explicit DescribedSetter(PropertyRecord const& record)
        : form_(record.setterForm ? record.setterForm : &missingSetter),
          setter_(record.setter),
          kept_(record.keptSetter)
    {
    }

    void setValue(COSInterface* object, COSValue value) const override { form_->setValue(setter_, object, value); }
    char const* dataTypeName() const override { return form_->type(); }

private:
    detail::SetterForm const* form_;
    impl::Callable setter_;
    detail::KeptObject kept_;
};

struct Accesses {
    DescribedGetter getter;
    DescribedSetter setter;
};

/// Contains its getter and setter, so that the host's virtual call reaches the routine of their type at once.
class DescribedProperty final : private Accesses, public impl::PropertyImpl {
public:
    explicit DescribedProperty(PropertyRecord const& record)
        : Accesses{DescribedGetter(record), DescribedSetter(record)},
          PropertyImpl(record.name, record.getterForm ? &getter : nullptr, record.setterForm ? &setter : nullptr,
                       record.attributes)
    {
    }
    DescribedProperty(DescribedProperty const&) = delete;
    DescribedProperty& operator=(DescribedProperty const&) = delete;

    COSValue getValue(COSInterface* object) const override { return getter.getValue(object); }
    void setValue(COSInterface* object, COSValue value) const override { setter.setValue(object, value); }

    void releaseValue(COSInterface* object, COSValue value) const override
    {
        if (getter.releases()) [[unlikely]]
            PropertyImpl::releaseValue(object, value);
    }
};

} // namespace

std::unique_ptr<impl::PropertyImpl> makeProperty(PropertyRecord const& record)
{
    if (record.attributes.isStatic() && record.needsObject())
        throw std::invalid_argument("a static property has no object: give static data, or functions that take none");
    auto property = std::make_unique<DescribedProperty>(record);
    property->setDescription(record.text);
    return property;
}

} // namespace orbis::factory
