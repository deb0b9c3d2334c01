#include "reference/ClassPage.hpp"

#include "bindings/MemberRecords.hpp"
#include "bindings/ProxyBinding.hpp"

#include <algorithm>

namespace velmara::console {

namespace {

using Kind = MethodRecord::Kind;

void append(PageLine& line, PageLine const& more)
{
    line.insert(line.end(), more.begin(), more.end());
}

/// "a, b" of the words that hold.
std::string listOf(std::initializer_list<std::pair<char const*, bool>> words)
{
    std::string text;
    for (auto const& [word, holds] : words)
        if (holds)
            text += (text.empty() ? "" : ", ") + std::string(word);
    return text;
}

/// The attributes, and the class that defines an inherited member.
PageLine noteOn(std::string const& attributes, std::string const& member, std::string const& definingClass,
                std::string const& cls, PageLinks const& links)
{
    PageLine note{{attributes, {}, {}}};
    if (!definingClass.empty() && definingClass != cls) {
        note.push_back({attributes.empty() ? "defined by " : ", defined by ", {}, {}});
        note.push_back(links.to(definingClass));
        note.back().place = "member-" + addressOf(member);
    }
    return note;
}

PageLine signature(std::string const& name, MethodRecord const& method, PageLinks const& links)
{
    PageLine line{{name + '(', {}, {}}};
    bool isFirst = true;
    for (ParameterRecord const& parameter : parametersOf(method)) {
        line.push_back({(isFirst ? "" : ", ") + parameter.name + ": ", {}, {}});
        append(line, links.toType(parameter.dataType));
        isFirst = false;
    }
    line.push_back({")", {}, {}});
    if (method.kind == Kind::Constructor || method.outputs.empty())
        return line;
    line.push_back({" -> ", {}, {}});
    append(line, links.toType(method.outputs.front().dataType));
    return line;
}

PageEntry methodEntry(MethodRecord const& method, std::string const& owner, PageLinks const& links)
{
    std::string const name = unqualifiedName(method.name);
    constexpr char const* kinds[] = {"constructor", "method", "static method", "function"};
    std::string const called = method.kind == Kind::Method        ? "object:" + name
                               : method.kind == Kind::Constructor ? owner
                               : owner.empty()                    ? name
                                                                  : owner + '.' + name;
    return {.name = name,
            .kind = kinds[static_cast<int>(method.kind)],
            .place = "member-" + addressOf(name),
            .line = signature(called, method, links),
            .text = method.description,
            .note = noteOn(listOf({{"sealed", method.isSealed}, {"abstract", method.isAbstract}}), name,
                           method.definingClass, owner, links)};
}

PageEntry propertyEntry(PropertyRecord const& property, std::string const& owner, PageLinks const& links)
{
    using orbis::MemberAccess;
    PageLine line{{(property.isStatic ? owner + '.' : "object.") + property.name + ": ", {}, {}}};
    append(line,
           property.dataType.empty() ? PageLine{{"type not known yet", {}, {}}} : links.toType(property.dataType));
    std::string const attributes = listOf({{"static", property.isStatic},
                                           {"read only", property.setAccess != MemberAccess::Public},
                                           {"write only", property.getAccess != MemberAccess::Public},
                                           {"has a default", property.hasDefault},
                                           {"abstract", property.isAbstract},
                                           {"sealed", property.isSealed},
                                           {"transient", property.isTransient},
                                           {"dependent", property.isDependent}});
    bool const hasMore = property.detailedDescription != property.description;
    return {.name = property.name,
            .kind = "property",
            .place = "member-" + addressOf(property.name),
            .line = line,
            .text = property.description + (hasMore ? "\n" + property.detailedDescription : ""),
            .note = noteOn(attributes, property.name, property.definingClass, owner, links)};
}

PageSection methodSection(char const* title, Kind kind, ClassRecord const& cls, PageLinks const& links)
{
    PageSection section{title, {}};
    for (MethodRecord const& method : cls.methods)
        if (method.kind == kind && isListed(method))
            section.entries.push_back(methodEntry(method, cls.name, links));
    return section;
}

PageSection enumeratorSection(ClassRecord const& cls)
{
    PageSection section{"Enumerators", {}};
    for (EnumeratorRecord const& enumerator : cls.enumerators)
        section.entries.push_back(
            {.name = enumerator.name,
             .kind = "enumerator",
             .place = "member-" + addressOf(enumerator.name),
             .line = {{cls.name + '.' + enumerator.name + " = " + std::to_string(enumerator.value), {}, {}}},
             .text = {},
             .note = {}});
    return section;
}

PageSection propertySection(ClassRecord const& cls, PageLinks const& links)
{
    PageSection section{"Properties", {}};
    for (PropertyRecord const& property : cls.properties)
        if (isListed(property))
            section.entries.push_back(propertyEntry(property, cls.name, links));
    return section;
}

/// "Superclasses: A, B"; nothing without names.
void addNames(ReferencePage& page, char const* title, std::span<std::string const> names, PageLinks const& links)
{
    if (names.empty())
        return;
    PageLine line{{title, {}, {}}};
    for (std::string const& name : names) {
        line.push_back({&name == names.data() ? " " : ", ", {}, {}});
        line.push_back(links.to(name));
    }
    page.facts.push_back(line);
}

std::string construction(ClassRecord const& cls)
{
    if (cls.isEnumeration)
        return "Its objects are its enumerators.";
    bool const isConstructed = std::ranges::any_of(
        cls.methods, [](MethodRecord const& method) { return method.kind == Kind::Constructor && isListed(method); });
    if (cls.isAbstract || !isConstructed)
        return "Scripts get objects of it from others: it has no constructor for them.";
    return "A call of " + cls.name + " constructs an object.";
}

std::string ownership(ClassRecord const& cls)
{
    constexpr std::pair<char const*, char const*> owners[] = {
        {"host", "The host object owns the native object."},
        {"native", "Native code owns the native object."},
        {"shared", "The host object shares the native object with native code."},
        {"value", "Its objects are values, which the host owns."},
        {"enumerator", "The host owns its enumerators."}};
    auto const* const found = std::ranges::find(owners, cls.owner, &std::pair<char const*, char const*>::first);
    return found == std::end(owners) ? "The class does not tell who owns its native objects." : found->second;
}

} // namespace

ReferencePage classPage(ClassRecord const& cls, PageLinks const& links)
{
    ReferencePage page{.page = links.pageOf(cls.name),
                       .kind = cls.isEnumeration ? "Enumeration"
                               : cls.isHandle    ? "Handle class"
                                                 : "Value class",
                       .name = cls.name,
                       .text = cls.description,
                       .trail = links.trailTo(cls.name),
                       .facts = {},
                       .diagram = {},
                       .sections = {}};
    if (cls.isAbstract)
        page.kind += ", abstract";
    page.facts = {{{construction(cls), {}, {}}}, {{ownership(cls), {}, {}}}};
    addNames(page, "Superclasses:", cls.superclasses, links);
    addNames(page, "Subclasses:", links.subclasses(cls.name), links);
    if (PageLine const errors = links.toErrors(cls.name); !errors.empty()) {
        page.facts.push_back({{"What native code throws: ", {}, {}}});
        append(page.facts.back(), errors);
        page.facts.back().push_back({", all else VELMARA:native:exception", {}, {}});
    }
    page.sections = {enumeratorSection(cls), methodSection("Constructors", Kind::Constructor, cls, links),
                     methodSection("Methods", Kind::Method, cls, links),
                     methodSection("Static methods", Kind::StaticMethod, cls, links), propertySection(cls, links)};
    return page;
}

PageSection functionSection(PackageRecord const& package, PageLinks const& links)
{
    PageSection section{"Functions", {}};
    for (MethodRecord const& function : package.functions)
        if (isListed(function))
            section.entries.push_back(methodEntry(function, package.name, links));
    return section;
}

} // namespace velmara::console
