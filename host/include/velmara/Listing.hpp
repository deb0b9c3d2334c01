#pragma once

#include "velmara/PropertyTraits.hpp"

#include "orbis/access.hpp"

#include <cstdint>
#include <string>
#include <vector>

namespace velmara {

/// What a dotted name stands for.
enum class NameKind { None, Package, Class, Function };

/// One input or output of a callable member.
struct ParameterRecord {
    std::string name;
    std::string dataType;
    bool isOptional = false;  ///< of an optional type
    bool isConverted = false; ///< of a type that decides itself what it takes: "any", or a registered one
};

struct MethodRecord {
    enum class Kind { Constructor, Method, StaticMethod, Function };

    std::string name;
    Kind kind = Kind::Method;
    orbis::MemberAccess access = orbis::MemberAccess::Public;
    bool isVisible = true;
    bool isSealed = false;
    bool isAbstract = false;
    std::string description;
    std::vector<ParameterRecord> inputs; ///< the object first where the signature has it
    std::vector<ParameterRecord> outputs;
    std::string definingClass; ///< full name of the class that defines it; empty for a package function

    /// One line: "result = getSum(this: orbis_factory.Adder, a: int32 scalar, b: int32 scalar) -> int32 scalar".
    std::string signature;
};

struct PropertyRecord : PropertyTraits {
    std::string name;
    std::string dataType; ///< empty while there is no such type
    std::string description;
    std::string detailedDescription;
    std::string definingClass;
};

struct EnumeratorRecord {
    std::string name;
    std::int64_t value = 0;
};

struct ClassRecord {
    std::string name;
    std::string description;
    bool isHandle = true;
    bool isAbstract = false;
    bool isHidden = false;
    bool isEnumeration = false;
    std::string owner;                         ///< as in the records of its objects
    bool hasEquality = false;                  ///< its class info compares objects: `Hvm::areEqual`
    std::vector<EnumeratorRecord> enumerators; ///< of an enumeration, in the order of description
    std::vector<std::string> superclasses;     ///< direct ones
    std::vector<MethodRecord> methods; ///< constructors first, then in the order of description, inherited ones last
    std::vector<PropertyRecord> properties;
};

/// A kind of native exceptions that scripts tell apart.
struct ErrorRecord {
    std::string identifier;
    std::vector<std::string> fields; ///< names of the values that come with it, where these can be read
};

struct PackageRecord {
    std::string name;
    std::string description;
    std::vector<std::string> packages; ///< full names, in alphabetical order; as are the others
    std::vector<std::string> classes;
    std::vector<MethodRecord> functions;
    std::vector<ErrorRecord> errors; ///< that native code of its module gives identifiers to
};

/// A host object that has not ended. The counts tell who keeps it alive.
struct ObjectRecord {
    std::string className;
    std::string owner; ///< who ends the native object: "host", "native" or "shared" as its class info tells; else
                       ///< "value", "enumerator" or "handle" for what the class has
    bool isValid = true;
    int externalReferences = 0;         ///< handles that native code holds
    int internalReferences = 0;         ///< arrays that hold it: the script's, and those in cells and in calls
    int weakReferences = 0;             ///< handles that do not keep it alive
    void const* nativeObject = nullptr; ///< what stands behind it for its own class, null when there is nothing
};

struct ModuleRecord {
    std::string name; ///< the name in its entry points, such as "orbis_factory"
    std::string file;
    std::string version;
    std::string buildDate;
    std::string relativePath;
};

} // namespace velmara
