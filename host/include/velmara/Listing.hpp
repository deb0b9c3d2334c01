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
    std::string name;         ///< as described; never empty
    std::string dataType;     ///< such as "double scalar"
    bool isOptional = false;  ///< of an optional type
    bool isConverted = false; ///< of a type that decides itself what it takes: "any", or a registered one
};

/// A constructor, method or package function, one record for each of its overloads.
struct MethodRecord {
    /// What it is called on: a class or package, or an object.
    enum class Kind { Constructor, Method, StaticMethod, Function };

    std::string name;                                         ///< without the class
    Kind kind = Kind::Method;                                 ///< how it is called
    orbis::MemberAccess access = orbis::MemberAccess::Public; ///< who may call it
    bool isVisible = true;                                    ///< whether lists show it
    bool isSealed = false;                                    ///< whether subclasses may not redefine it
    bool isAbstract = false;                                  ///< without an implementation
    std::string description;                                  ///< a text for users
    std::vector<ParameterRecord> inputs;                      ///< the object first where the signature has it
    std::vector<ParameterRecord> outputs;                     ///< none or one, mostly
    std::string definingClass; ///< full name of the class that defines it; empty for a package function

    /// One line: "result = getSum(this: orbis_factory.Adder, a: int32 scalar, b: int32 scalar) -> int32 scalar".
    std::string signature;
};

/// A property, with its traits.
struct PropertyRecord : PropertyTraits {
    std::string name;                ///< without the class
    std::string dataType;            ///< empty while there is no such type
    std::string description;         ///< a text for users
    std::string detailedDescription; ///< a longer one, or the same
    std::string definingClass;       ///< full name of the class that defines it
};

/// An enumerator by one of its names.
struct EnumeratorRecord {
    std::string name;       ///< unique in the enumeration
    std::int64_t value = 0; ///< of the native enumerator
};

/// A published class.
struct ClassRecord {
    std::string name;                          ///< full name
    std::string description;                   ///< a text for users
    bool isHandle = true;                      ///< objects are passed by identity, not as values
    bool isAbstract = false;                   ///< no objects of the class itself can be constructed
    bool isHidden = false;                     ///< left out of lists
    bool isEnumeration = false;                ///< its objects are the enumerators
    std::string owner;                         ///< as in the records of its objects
    bool hasEquality = false;                  ///< its class info compares objects: `Hvm::areEqual`
    std::vector<EnumeratorRecord> enumerators; ///< of an enumeration, in the order of description
    std::vector<std::string> superclasses;     ///< direct ones
    std::vector<MethodRecord> methods; ///< constructors first, then in the order of description, inherited ones last
    std::vector<PropertyRecord> properties; ///< as the methods
};

/// A kind of native exceptions that scripts tell apart.
struct ErrorRecord {
    std::string identifier;          ///< such as "spatial:parse"
    std::vector<std::string> fields; ///< names of the values that come with it, where these can be read
};

/// What a package holds itself.
struct PackageRecord {
    std::string name;                    ///< full name
    std::string description;             ///< a text for users
    std::vector<std::string> packages;   ///< full names, in alphabetical order; as are the others
    std::vector<std::string> classes;    ///< hidden ones too
    std::vector<MethodRecord> functions; ///< one record for each overload
    std::vector<ErrorRecord> errors;     ///< that native code of its module gives identifiers to
};

/// A host object that has not ended. The counts tell who keeps it alive.
struct ObjectRecord {
    std::string className; ///< full name of its own class
    std::string owner;     ///< who ends the native object: "host", "native" or "shared" as its class info tells; else
                           ///< "value", "enumerator" or "handle" for what the class has
    bool isValid = true;   ///< it has its native object
    int externalReferences = 0;         ///< handles that native code holds
    int internalReferences = 0;         ///< arrays that hold it: the script's, and those in cells and in calls
    int weakReferences = 0;             ///< handles that do not keep it alive
    void const* nativeObject = nullptr; ///< what stands behind it for its own class, null when there is nothing
};

/// A loaded module.
struct ModuleRecord {
    std::string name;         ///< the name in its entry points, such as "orbis_factory"
    std::string file;         ///< its path
    std::string version;      ///< as its version record says, as are the others
    std::string buildDate;    ///< when it was built
    std::string relativePath; ///< of its sources in their tree
};

} // namespace velmara
