#pragma once

#include "reference/PublishedRecords.hpp"
#include "reference/ReferencePage.hpp"

#include <functional>
#include <map>
#include <span>
#include <string_view>

namespace velmara::console {

/// A text as it stands in a file's name, or in an address in a page: no two texts become the same.
std::string addressOf(std::string_view text);

/// The place of a kind of errors on the page of its package.
std::string errorPlace(ErrorRecord const& error);

/// Which published names have a page. The records are to outlive it.
class PageLinks {
public:
    explicit PageLinks(std::span<PublishedRecords const> roots);

    bool knows(std::string_view name) const { return pages_.contains(name); }
    std::string pageOf(std::string_view name) const;
    ClassRecord const& record(std::string const& className) const { return *classes_.at(className); }
    std::span<std::string const> subclasses(std::string const& className) const;
    static std::string shortName(std::string const& name);

    /// The name, which leads to its page where it has one.
    PagePiece to(std::string const& name) const;

    /// A data type, which leads to the page of its class.
    PageLine toType(std::string const& dataType) const;

    /// The kinds of errors of the packages around a class.
    PageLine toErrors(std::string const& className) const;

    /// The pages around a package or class.
    PageLine trailTo(std::string const& name) const;

private:
    std::map<std::string, std::string, std::less<>> pages_;
    std::map<std::string, PackageRecord const*, std::less<>> packages_;
    std::map<std::string, ClassRecord const*, std::less<>> classes_;
    std::map<std::string, std::vector<std::string>, std::less<>> subclasses_;
};

} // namespace velmara::console
