#pragma once

#include <functional>
#include <map>
#include <string>
#include <string_view>

namespace velmara::console {

/// The name of a class in annotations, which have few characters for names.
std::string stubTypeName(std::string_view className);

/// The host's data types in the words of the annotations of Lua: what the console takes for them, and what it gives.
class StubTypes {
public:
    enum class Kind { Objects, Enumeration };

    /// Types of this class, by its full name, are known from now on.
    void add(std::string const& className, Kind kind) { classes_.emplace(className, kind); }
    bool has(std::string_view className) const { return classes_.contains(className); }

    /// What a script may pass where the host takes the type; "any" for a type that is not known.
    std::string taken(std::string_view dataType) const { return text(dataType, Direction::Taken); }

    /// What a script gets where the host gives the type.
    std::string given(std::string_view dataType) const { return text(dataType, Direction::Given); }

    /// What is both passed and got.
    std::string both(std::string_view dataType) const;

private:
    enum class Direction { Taken, Given };

    std::string text(std::string_view dataType, Direction direction) const;
    std::string value(std::string_view dataType, Direction direction) const;
    std::string objects(std::string_view className, Direction direction) const;
    std::string list(std::string_view elements, Direction direction) const;
    std::string function(std::string_view dataType, Direction direction) const;

    std::map<std::string, Kind, std::less<>> classes_;
};

} // namespace velmara::console
