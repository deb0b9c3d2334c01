#include "orbis/factory/detail/arrays/ListElements.hpp"

#include "orbis/factory/detail/arrays/NewCells.hpp"

#include "marshal/describeArray.hpp"

#include "host_extensions/host_extensions.hpp"
#include "host_extensions/numericClasses.hpp"
#include "orbis/objectArrays.hpp"
#include "string_matrix/string_matrix.hpp"

#include <cstring>
#include <string>

namespace orbis::factory::detail {

using namespace host_extensions;

namespace {

/// Returns whether the elements of the array are elements of a list; throws for one of text or unknown class.
bool hasElements(hvArray_tag const* list)
{
    if (!list || (list->get_number_of_elements() == 0 && list->_get_class_id_non_trivial() != hvCHAR_CLASS))
        return false;
    if (list->_get_class_id_non_trivial() == hvCHAR_CLASS)
        throwNotConvertible("needs a list, not " + describeArray(list));
    return true;
}

} // namespace

ListElements::ListElements(hvArray_tag const* list, bool areLists) : list_(list)
{
    if (!hasElements(list))
        return;
    std::size_t const* const size = list->get_dimensions();
    // The cells of one row or column are elements, however long those are; a row of numbers is one list of them.
    bool const isMatrix = size[0] > 1 && size[1] > 1;
    areRows_ = areLists && (isMatrix || findNumericClass(list->_get_class_id_non_trivial()));
    size_ = areRows_ ? size[0] : list->get_number_of_elements();
}

ListElements::ListElements(hvArray_tag const* list, std::size_t count) : list_(list)
{
    if (hasElements(list)) {
        areRows_ = list->get_number_of_elements() != count && list->get_dimensions()[0] == count;
        size_ = areRows_ ? count : list->get_number_of_elements();
    }
    if (size_ != count)
        throwNotConvertible("needs a list of " + std::to_string(count) + " elements, not of " + std::to_string(size_));
}

hvArray_tag const* ListElements::at(std::size_t index)
{
    if (list_->_get_class_id_non_trivial() == hvCELL_CLASS && !areRows_)
        return getCell(list_, index);
    element_.emplace(areRows_ ? copyRow(index) : copyElement(index));
    return element_->get();
}

hvArray_tag* ListElements::copyElement(std::size_t index) const
{
    hvClassID const classID = list_->_get_class_id_non_trivial();
    if (classID == hvOBJECT_CLASS) {
        COSInterfacePtr const object = omGetArrayElement(list_, index);
        return object ? omCreateORBISScalar(object) : createMatrix(0, 0, hvDOUBLE_CLASS);
    }
    if (classID == hvSTRING_CLASS) {
        Tarnwick::StringArray const& strings = Tarnwick::String::getString(list_);
        NewArray element(createStringMatrix(1, 1));
        if (char16_t const* const text = strings.getText(index))
            setString(element.get(), 0, {text, strings.getLength(index)});
        return element.release();
    }
    auto const* const data = static_cast<std::byte const*>(getData(list_));
    return createMatrix(1, 1, classID, data + index * findNumericClass(classID)->size);
}

hvArray_tag* ListElements::copyRow(std::size_t row) const
{
    std::size_t const rows = list_->get_dimensions()[0];
    std::size_t const columns = list_->get_dimensions()[1];
    NumericClass const* const numeric = findNumericClass(list_->_get_class_id_non_trivial());
    if (!numeric) {
        NewCells cells(1, columns);
        for (std::size_t column = 0; column < columns; ++column) {
            std::size_t const index = column * rows + row;
            bool const isCell = list_->_get_class_id_non_trivial() == hvCELL_CLASS;
            hvArray_tag const* const cell = isCell ? getCell(list_, index) : nullptr;
            cells.set(column, isCell ? cell ? hvCreateSharedCopyNotOnArrayList(cell) : nullptr : copyElement(index));
        }
        return cells.release();
    }
    NewArray element(createMatrix(1, columns, numeric->classID));
    auto* const to = static_cast<std::byte*>(getWritableData(element.get()));
    auto const* const from = static_cast<std::byte const*>(getData(list_));
    for (std::size_t column = 0; column < columns; ++column)
        std::memcpy(to + column * numeric->size, from + (column * rows + row) * numeric->size, numeric->size);
    return element.release();
}

hvArray_tag* toArray(COSValue const& value)
{
    if (value.isArray() || value.isEmpty())
        return value.array();
    return visitNumericClass(value.scalarClass(), [&]<class T>(T) {
        T const scalar = value.scalar<T>();
        return createMatrix(1, 1, COSValue::classOf<T>(), &scalar);
    });
}

} // namespace orbis::factory::detail
