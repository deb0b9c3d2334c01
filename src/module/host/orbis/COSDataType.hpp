#pragma once

#include "orbis_host_export.hpp"

#include "orbis/COSInterface.hpp"
#include "orbis/COSValue.hpp"
#include "orbis/Enumeration.hpp"

#include <cstdint>

namespace orbis {

/// A named data type: how its values are named, described, compared, copied and given back. The host owns a
/// registered type and counts the references to it.
class ORBIS_HOST_API COSDataType {
public:
    COSDataType();
    COSDataType(COSDataType const&) = delete;
    COSDataType& operator=(COSDataType const&) = delete;
    virtual ~COSDataType();

    /// The native type, as its source writes it.
    virtual char const* cppTypeName() const = 0;

    /// The name under which the type is registered.
    virtual char const* scalarTypeName() const = 0;

    virtual char const* getDescription() const;               ///< ""
    virtual char const* getDetailedDescription() const;       ///< what `getDescription` gives
    virtual char const* getPossibleValuesDescription() const; ///< ""
    virtual bool isPossibleValuesFinite() const;              ///< false
    virtual Enumeration<COSValue> getPossibleValues() const;  ///< none
    virtual COSValue getDefaultValue() const;                 ///< empty

    /// The type's family, as a number and as a word; and a flag without a name.
    virtual int typeKind() const = 0;
    virtual char const* typeCategory() const = 0;               ///< such as "Fundamental"
    virtual bool slot11Flag() const = 0;                        ///< false where nothing else is known
    virtual bool checkValue(COSValue value, bool strict) const; ///< true

    /// True when the two values are the same.
    virtual bool isEqualValue(COSValue a, COSValue b) const = 0;

    /// 0 when equal, 4294967295 when `a` orders before `b`, 1 when after, 2 when there is no order.
    virtual std::uint32_t compareValues(COSValue a, COSValue b) const = 0;

    /// The size of the value in bytes.
    virtual std::size_t valueByteSize(COSValue value) const = 0;

    /// A copy that is to be given back with `releaseValue`.
    virtual COSValue copyValue(COSValue value) const = 0;
    virtual COSValue copyInternal(COSValue value) const; ///< what `copyValue` gives

    /// Destroys what `copyValue` gave; its array, where it holds one, too.
    virtual void releaseValue(COSValue value) const = 0;
    virtual void destroyInternal(COSValue value) const;                     ///< as `releaseValue`
    virtual std::uint32_t getHashCode(COSValue const& value) const;         ///< 0
    virtual bool canContainInterfaces() const;                              ///< false
    virtual void getReference();                                            ///< one reference more
    virtual void releaseReference();                                        ///< one less; the last one deletes the type
    virtual Enumeration<COSInterface*> getInterfaces(COSValue value) const; ///< none
    virtual int getSaveFormat() const;                                      ///< 0
    virtual bool isVELMARAArrayType() const;                                ///< false

private:
    int references_ = 0;
};

} // namespace orbis
