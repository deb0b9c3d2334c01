#include "show/HostInspector.hpp"

#include "arrays/ArrayText.hpp"
#include "bindings/MemberRecords.hpp"
#include "show/NativeReading.hpp"
#include "show/Summary.hpp"
#include "text/AlignedTable.hpp"
#include "text/CutText.hpp"
#include "text/DisplayWidth.hpp"
#include "values/HostText.hpp"

#include "host_extensions/host_extensions.hpp"
#include "libhv/libhv.hpp"
#include "orbis/objectArrays.hpp"

#include <algorithm>
#include <string_view>

namespace velmara::console {

namespace {

using Properties = std::vector<PropertyRecord const*>;

template <class Predicate>
Properties visibleProperties(ClassRecord const& cls, Predicate const& isWanted)
{
    Properties properties;
    for (PropertyRecord const& property : cls.properties)
        if (property.isVisible && isWanted(property))
            properties.push_back(&property);
    return properties;
}

bool isOfObject(PropertyRecord const& property)
{
    return !property.isStatic && isReadable(property);
}

/// Why a script cannot read the property.
char const* barrier(PropertyRecord const& property)
{
    switch (property.getAccess) {
    case orbis::MemberAccess::Private:
        return "(private)";
    case orbis::MemberAccess::Protected:
        return "(protected)";
    default:
        return "(cannot be read)";
    }
}

/// One row of the table of objects: number and properties of an element.
AlignedTable::Row rowOfObject(lua_State* L, hvArray_tag const* objects, std::size_t index, Properties const& properties)
{
    HostCall call(L);
    hvArray_tag* const object = objectAt(call, objects, index);
    AlignedTable::Row row{std::to_string(index + 1)};
    if (!object || !isValid(object)) {
        row.emplace_back(object ? "(invalid)" : "null");
        row.resize(properties.size() + 1);
        return row;
    }
    for (PropertyRecord const* property : properties)
        row.push_back(summary(L, readForShow(L, object, property->name)));
    return row;
}

} // namespace

std::size_t maxShownElements(Page const& page, Place const& place)
{
    constexpr std::size_t maxNested = 10;
    constexpr std::size_t aroundRows = 4; // headings, and what is not written
    return place.depth == 0 ? std::max(page.rowsLeft(), aroundRows) - aroundRows : maxNested;
}

std::string moreText(std::size_t count)
{
    return "... " + std::to_string(count) + " more";
}

void HostInspector::showText(Place const& place, std::string const& text, std::size_t hanging)
{
    std::size_t end = text.find('\n');
    page_.add(place.indent, place.label + text.substr(0, end));
    while (end != text.npos && !page_.isFull()) {
        std::size_t const next = text.find('\n', end + 1);
        page_.add(place.indent + hanging, text.substr(end + 1, next - end - 1));
        end = next;
    }
}

void HostInspector::showArray(Place const& place, hvArray_tag* array, ValueShape shape)
{
    hvClassID const classID = array ? array->_get_class_id_non_trivial() : hvUNKNOWN_CLASS;
    std::size_t const count = array ? array->get_number_of_elements() : 0;
    if (classID == hvOBJECT_CLASS && count == 1 && shape != ValueShape::List) {
        HostCall call(L_);
        if (hvArray_tag* const object = objectAt(call, array, 0))
            return showObject(place, object);
    }
    if (classID == hvOBJECT_CLASS && count > (shape == ValueShape::List ? 0 : 1))
        return showRows(place, array);
    if (classID == hvCHAR_CLASS && count > 0 && array->get_dimensions()[0] == 1) {
        std::size_t const columns = page_.columnsAfter(place.indent + displayWidth(place.label) + 2);
        return page_.add(place.indent, place.label + quoteText(rowOf(*array, 0), columns));
    }
    if (classID == hvCELL_CLASS && count > 0)
        return showCells(place, array);
    std::string const text = summary(L_, array, shape);
    if (!array || text != sizeAndClass(array))
        return page_.add(place.indent, place.label + text);
    std::string const rows = arrayText(L_, *array);
    showText(place, text + (rows.find('\n') == rows.npos ? "" : rows.substr(rows.find('\n'))), 0);
}

void HostInspector::showObject(Place const& place, hvArray_tag* object)
{
    void const* const identity = static_cast<orbis::COSInterface*>(orbis::omGetArrayElement(object, 0));
    auto const cls = isValid(object) ? publishedClass(L_, object) : std::nullopt;
    if (cls && cls->isEnumeration)
        return page_.add(place.indent, place.label + summary(L_, object));
    if (!cls || HostContext::of(L_).isShowing())
        return page_.add(place.indent,
                         place.label + (isValid(object) ? "" : "invalid ") + className(object) + " object");
    std::string const text = authorsText(L_, object, *cls);
    std::string const heading = place.label + cls->name + (text.empty() ? "" : ": " + text);
    if (std::ranges::find(around_, identity) != around_.end())
        return page_.add(place.indent, heading + " (shown above)");
    auto const properties = visibleProperties(*cls, [](auto const&) { return true; });
    bool const isDeep = place.depth >= maxShownDepth && !properties.empty();
    page_.add(place.indent, heading + (isDeep ? " ..." : ""));
    if (isDeep)
        return;
    around_.push_back(identity);
    showProperties(place, properties, object, cls->name);
    around_.pop_back();
}

void HostInspector::showProperties(Place const& place, Properties const& properties, hvArray_tag* object,
                                   std::string const& className)
{
    constexpr std::size_t maxNameWidth = 24;
    std::vector<std::string> labels;
    std::size_t width = 0;
    for (PropertyRecord const* property : properties) {
        labels.push_back(property->name + (property->isStatic && object ? " (static)" : ""));
        width = std::max(width, std::min(displayWidth(labels.back()), maxNameWidth));
    }
    for (std::size_t i = 0; i < properties.size() && !page_.isFull(); ++i) {
        labels[i].append(width - std::min(displayWidth(labels[i]), width), ' ');
        showProperty({labels[i] + " = ", place.indent + 2, place.depth + 1}, *properties[i], object, className);
    }
}

void HostInspector::showProperty(Place const& place, PropertyRecord const& property, hvArray_tag* object,
                                 std::string const& className)
{
    if (!isReadable(property))
        return page_.add(place.indent, place.label + barrier(property));
    NativeReading const reading =
        property.isStatic ? readStaticForShow(L_, className, property.name) : readForShow(L_, object, property.name);
    if (reading.failure().empty())
        showArray(place, reading.value(), reading.shape());
    else
        page_.add(place.indent, place.label + "(fails: " + escapedText(reading.failure()) + ')');
}

void HostInspector::showCells(Place const& place, hvArray_tag const* cells)
{
    std::size_t const all = cells->get_number_of_elements();
    bool const isDeep = place.depth >= maxShownDepth;
    page_.add(place.indent, place.label + sizeAndClass(cells) + (isDeep ? " ..." : ""));
    if (isDeep)
        return;
    std::size_t const rows = cells->get_dimensions()[0];
    std::size_t const count = std::min(all, maxShownElements(page_, place));
    for (std::size_t i = 0; i < count && !page_.isFull(); ++i) {
        std::string label = '[' + std::to_string(i + 1) + "] = ";
        if (rows > 1 && rows < all)
            label = "[{" + std::to_string(i % rows + 1) + ", " + std::to_string(i / rows + 1) + "}] = ";
        Place const element{label, place.indent + 2, place.depth + 1};
        HostCall call(L_);
        if (hvArray_tag const* const cell = orbis::host_extensions::getCell(cells, i))
            showArray(element, call.share(ArrayPtr(hvCreateSharedDataCopy(cell)).get()));
        else
            page_.add(element.indent, label + "null");
    }
    if (count < all)
        page_.add(place.indent + 2, moreText(all - count));
}

/// Names of objects without properties, such as enumerators, in one line.
void HostInspector::showNames(Place const& place, hvArray_tag const* objects)
{
    std::string line = place.label + sizeAndClass(objects);
    std::size_t const columns = page_.columnsAfter(place.indent);
    std::size_t const count = objects->get_number_of_elements();
    for (std::size_t i = 0; i < count && displayWidth(line) <= columns; ++i) {
        HostCall call(L_);
        hvArray_tag* const object = objectAt(call, objects, i);
        line += (i == 0 ? ": " : ", ") + (object ? summary(L_, object) : "null");
    }
    page_.add(place.indent, line);
}

void HostInspector::showRows(Place const& place, hvArray_tag const* objects)
{
    auto const cls = publishedClass(L_, objects);
    bool const hasProperties = cls && !HostContext::of(L_).isShowing();
    auto const properties = hasProperties ? visibleProperties(*cls, isOfObject) : Properties();
    if (properties.empty())
        return showNames(place, objects);
    page_.add(place.indent, place.label + sizeAndClass(objects));
    AlignedTable::Row headings{"#"};
    for (PropertyRecord const* property : properties)
        headings.push_back(property->name);
    std::size_t const all = objects->get_number_of_elements();
    std::size_t const count = std::min(all, maxShownElements(page_, place));
    AlignedTable table(headings);
    for (std::size_t i = 0; i < count; ++i)
        table.add(rowOfObject(L_, objects, i, properties));
    for (std::string const& line : table.lines(page_.columnsAfter(place.indent + 2)))
        page_.add(place.indent + 2, line);
    if (count < all)
        page_.add(place.indent + 2, moreText(all - count));
}

void HostInspector::showClass(Place const& place, ClassRecord const& cls)
{
    page_.add(place.indent, place.label + (cls.isEnumeration ? "enumeration " : "class ") + cls.name);
    for (EnumeratorRecord const& enumerator : cls.enumerators)
        page_.add(place.indent + 2, enumerator.name + " = " + std::to_string(enumerator.value));
    showProperties(place, visibleProperties(cls, [](PropertyRecord const& property) { return property.isStatic; }),
                   nullptr, cls.name);
}

} // namespace velmara::console
