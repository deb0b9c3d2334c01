#include "errors/hostMessages.hpp"

namespace velmara {

namespace {

struct HostMessage {
    std::string_view catalog;
    std::string_view key;
    char const* text;
};

constexpr HostMessage messages[] = {
    {"VELMARA:array", "null", "An array is needed here, but there is none."},
    {"VELMARA:array", "index", "Index {0} lies outside an array of {1} elements; the first element has index 0."},
    {"VELMARA:array", "notCell", "A cell array is needed here, not one of class \"{0}\"."},
    {"VELMARA:array", "notObject", "An array of objects is needed here, not one of class \"{0}\"."},
    {"VELMARA:array", "notString", "A string array is needed here, not an array of class \"{0}\"."},
    {"VELMARA:array", "notFunction", "A function is needed here, not an array of class \"{0}\"."},
    {"VELMARA:array", "notNumeric",
     "A numeric, logical or character class is needed here; class number {0} is none of them."},
    {"VELMARA:array", "wrongClass", "An object of class \"{0}\" cannot be stored in an array of class \"{1}\"."},
    {"VELMARA:array", "cycle", "A cell array cannot be stored in itself."},
    {"VELMARA:array", "alreadyStored", "The array belongs to another cell already; store a copy of it."},
    {"VELMARA:array", "scope", "An array's scope is 0 or 1, not {0}."},
    {"VELMARA:hvm", "noVirtualMachine", "No virtual machine is current on this thread."},
    {"VELMARA:hvm", "unknownStorageID", "No storage id {0} was given out."},
    {"VELMARA:class", "RequireString", "Text is needed here: one row of characters, or a string array of one element."},
    {"VELMARA:class", "abstract", "Class \"{0}\" is abstract: objects are made of its subclasses only."},
    {"VELMARA:class", "access", "Class \"{0}\" is private: no objects are made of it from outside."},
    {"VELMARA:class", "closed", "Member \"{1}\" can be added to class \"{0}\" only while the class is described."},
    {"VELMARA:class", "cycle", "Class \"{0}\" cannot be a subclass of \"{1}\", whose own description needs it."},
    {"VELMARA:class", "duplicateMember", "Class \"{0}\" has a member \"{1}\" already that is called in the same way."},
    {"VELMARA:class", "initialization", "Class \"{0}\" could not be described: {1}"},
    {"VELMARA:class", "noConstructor", "Class \"{0}\" has no constructor that takes inputs."},
    {"VELMARA:class", "notInitialized", "Objects of class \"{0}\" cannot be made while the class is being described."},
    {"VELMARA:class", "null", "A class is needed here, but there is none."},
    {"VELMARA:class", "otherPackage", "Class \"{0}\" cannot be in package \"{1}\": its full name says otherwise."},
    {"VELMARA:class", "sealed", "Class \"{0}\" cannot be a subclass of \"{1}\", which is sealed."},
    {"VELMARA:class", "sealedMember", "Class \"{0}\" cannot redefine \"{1}\", which is sealed in class \"{2}\"."},
    {"VELMARA:class", "unknown", "There is no class \"{0}\"."},
    {"VELMARA:class", "unpublished", "Class \"{0}\" is no longer published."},
    {"VELMARA:dispatch", "ambiguous", "Several \"{0}\" take {2} equally well:{1}"},
    {"VELMARA:dispatch", "noMatch", "No \"{0}\" takes {2}:{1}"},
    {"VELMARA:dispatch", "nullInput", "An input is missing: null is no array."},
    {"VELMARA:enumeration", "duplicate", "Enumeration \"{0}\" has an enumerator \"{1}\" already."},
    {"VELMARA:enumeration", "empty", "Enumeration \"{0}\" has no enumerators."},
    {"VELMARA:enumeration", "name", "An enumerator of \"{0}\" needs a name."},
    {"VELMARA:enumeration", "noDelete", "An enumerator of \"{0}\" cannot be deleted."},
    {"VELMARA:enumeration", "noObjects", "No objects are made of the enumeration \"{0}\": use one of {1}."},
    {"VELMARA:enumeration", "notEnumeration", "Class \"{0}\" is no enumeration."},
    {"VELMARA:enumeration", "superclass", "Enumeration \"{0}\" cannot have superclasses."},
    {"VELMARA:enumeration", "tooMany", "Enumeration \"{0}\" cannot have more than {1} values."},
    {"VELMARA:enumeration", "unknown", "Enumeration \"{0}\" has no enumerator \"{1}\": use one of {2}."},
    {"VELMARA:function", "ended", "The function cannot be called any more: its virtual machine has ended."},
    {"VELMARA:function", "noResult", "The function gave no result, where its caller needs {0}."},
    {"VELMARA:function", "notCurrent",
     "The function cannot be called here: its virtual machine is not current on this thread."},
    {"VELMARA:function", "null", "A function is needed here, but there is none."},
    {"VELMARA:function", "otherVirtualMachine",
     "The function cannot be called here: it belongs to another virtual machine."},
    {"VELMARA:function", "result", "The function's result does not fit: it {0}."},
    {"VELMARA:function", "unknown", "There is no function \"{0}\"."},
    {"VELMARA:hvm", "ending", "The virtual machine is ending: no more objects are made in it."},
    {"VELMARA:member", "abstract", "\"{0}\" is abstract: it is called on objects of subclasses that define it."},
    {"VELMARA:member", "access", "\"{0}\" is not open to calls from outside its class."},
    {"VELMARA:member", "name", "A member needs a name."},
    {"VELMARA:member", "noObjectInput",
     "Method \"{1}\" of class \"{0}\" is not static, so its signature needs an input for the object."},
    {"VELMARA:member", "notStatic", "\"{1}\" of class \"{0}\" is called on an object."},
    {"VELMARA:member", "unknown", "Class \"{0}\" has no method \"{1}\"."},
    {"VELMARA:module", "cannotLoad", "Module \"{0}\" cannot be loaded: {1}"},
    {"VELMARA:module", "cutOff", "the file ends after {0} of the {1} bytes that its headers tell of"},
    {"VELMARA:module", "initialization", "Module \"{0}\" could not be initialized: {1}"},
    {"VELMARA:module", "noEntryPoint", "\"{0}\" is no module: it does not export \"{1}\"."},
    {"VELMARA:module", "notLoaded", "No module \"{0}\" is loaded."},
    {"VELMARA:module", "otherFile", "Module \"{0}\" was loaded from \"{1}\" already; \"{2}\" is another file."},
    {"VELMARA:module", "termination", "Module \"{0}\" failed to terminate: {1}"},
    {"VELMARA:native", "exception", "Native code failed: {0}"},
    {"VELMARA:native", "unknown", "Native code failed with something that is no exception."},
    {"VELMARA:object", "initialized", "The object of class \"{0}\" is initialized already."},
    {"VELMARA:object", "invalid", "The object of class \"{0}\" is no longer valid: what it stood for is gone."},
    {"VELMARA:object", "notCopyable",
     "Objects of class \"{0}\" cannot be copied: it has no constructor that takes one."},
    {"VELMARA:object", "notObject", "An object is needed here, not an array of class \"{0}\"."},
    {"VELMARA:object", "otherClass", "An object of class \"{0}\" is needed here, not of class \"{1}\"."},
    {"VELMARA:object", "otherVirtualMachine", "The object of class \"{0}\" belongs to another virtual machine."},
    {"VELMARA:package", "busy", "Package \"{0}\" cannot be removed while it, or a class of it, is being described."},
    {"VELMARA:package", "closed", "Nothing can be added to package \"{0}\", which is being removed."},
    {"VELMARA:package", "duplicate", "\"{0}\" is published already."},
    {"VELMARA:package", "name", "Nothing can be published as \"{0}\": {1}."},
    {"VELMARA:package", "null", "A package is needed here, but there is none."},
    {"VELMARA:package", "population", "Package \"{0}\" could not be populated: {1}"},
    {"VELMARA:package", "unknown", "There is no package \"{0}\"."},
    {"VELMARA:property", "abstract", "Property \"{0}\" of class \"{1}\" is abstract: subclasses define it."},
    {"VELMARA:property", "dataType", "Property \"{1}\" of class \"{0}\" has a data type that is not known."},
    {"VELMARA:property", "getAccess", "Property \"{0}\" is not open to be read from outside its class \"{1}\"."},
    {"VELMARA:property", "noObject", "Property \"{0}\" is one of each object of class \"{1}\": use it on an object."},
    {"VELMARA:property", "readOnly", "Property \"{0}\" of class \"{1}\" can only be read."},
    {"VELMARA:property", "setAccess", "Property \"{0}\" is not open to be written from outside its class \"{1}\"."},
    {"VELMARA:property", "unknown", "Class \"{0}\" has no property \"{1}\"."},
    {"VELMARA:property", "value", "Property \"{0}\" does not take the value: {1}"},
    {"VELMARA:property", "writeOnly", "Property \"{0}\" of class \"{1}\" can only be written."},
    {"VELMARA:result", "type", "\"{0}\" gave a result that does not fit its signature, which says {1}."},
    {"VELMARA:string", "MissingNotSupported", "A missing string cannot be used here; give a text, which may be empty."},
    {"VELMARA:type", "duplicate", "Data type \"{0}\" is registered already."},
    {"VELMARA:type", "duplicateConversion", "A conversion from \"{0}\" to \"{1}\" is registered already."},
    {"VELMARA:type", "name", "A data type needs a name."},
    {"VELMARA:type", "null", "A data type or conversion is needed here, but there is none."},
};

} // namespace

char const* findHostMessage(std::string_view catalog, std::string_view key)
{
    for (HostMessage const& message : messages) {
        if (message.catalog == catalog && message.key == key)
            return message.text;
    }
    return nullptr;
}

} // namespace velmara
