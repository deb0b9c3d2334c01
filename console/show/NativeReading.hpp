#pragma once

#include "lua/LuaApi.hpp"
#include "values/HostCall.hpp"

#include "velmara/Listing.hpp"
#include "velmara/Value.hpp"

#include <functional>
#include <string>

namespace velmara::console {

/// One value that native code is asked for in order to show it: what that throws becomes a text. No value of the script
/// is made of what it gives.
class NativeReading {
public:
    using Read = std::function<Value(Hvm&, Hvm::Failure&)>;

    /// `object` is what `read` uses, null for none.
    NativeReading(lua_State* L, hvArray_tag* object, Read const& read);

    /// What was read, valid as long as this; null when there is nothing.
    hvArray_tag* value() const { return value_; }

    /// What its signature says of that.
    ValueShape shape() const { return shape_; }

    /// The first sentence of the error when it could not be read; else empty.
    std::string const& failure() const { return failure_; }

private:
    HostCall call_;
    hvArray_tag* value_ = nullptr;
    ValueShape shape_ = ValueShape::Plain;
    std::string failure_;
};

NativeReading readForShow(lua_State* L, hvArray_tag* object, std::string const& property);
NativeReading readStaticForShow(lua_State* L, std::string const& className, std::string const& property);

/// Whether the author of the class gave its objects a text of their own.
bool hasText(ClassRecord const& cls);

/// That text, of an object of the class.
NativeReading readText(lua_State* L, hvArray_tag* object, ClassRecord const& cls);

} // namespace velmara::console
