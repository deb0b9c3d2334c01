#pragma once

#include "system/Dispatch.hpp"

#include <string_view>

namespace velmara {

class Class;
class Object;

/// The class of that full name, described. Throws "VELMARA:class:unknown" when there is none.
Class& requireClass(HvmState& machine, std::string_view fullName);

/// The object that an object array means for calls: its first one, or null where that is null or missing. Throws
/// for what is no object array, and for an object that cannot be used.
Object* requireObject(HvmState& machine, hvArray_tag* array);

/// The class whose members are meant by an object array: its object's, or its own.
Class& requireClassOf(HvmState& machine, hvArray_tag* array, Object* object);

ArrayPtr construct(HvmState& machine, std::string_view className, Inputs inputs);
ArrayPtr callMethod(HvmState& machine, hvArray_tag* array, std::string_view method, Inputs inputs);
ArrayPtr callStaticMethod(HvmState& machine, std::string_view className, std::string_view method, Inputs inputs);
ArrayPtr callFunction(HvmState& machine, std::string_view fullName, Inputs inputs);

/// Ends the objects of an array now.
void deleteObjects(HvmState& machine, hvArray_tag* array);

} // namespace velmara
