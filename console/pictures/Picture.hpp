#pragma once

#include <cstddef>
#include <string>
#include <vector>

namespace velmara::console {

/// What a picture of objects shows, whatever it is drawn with.
struct Picture {
    struct Box {
        enum class Kind { Object, Class, NativeCode };

        Kind kind = Kind::Object;
        std::string title;
        std::string owner = {};              ///< as in an `ObjectRecord`; empty where there is none
        std::vector<std::string> lines = {}; ///< below the title
        bool isValid = true;
    };

    struct Arrow {
        enum class Kind { Property, Handle, WeakHandle, Superclass, Instance };

        Kind kind = Kind::Property;
        std::size_t from = 0; ///< of the boxes
        std::size_t to = 0;
        std::string label;
    };

    std::vector<Box> boxes;
    std::vector<Arrow> arrows;
    std::string caption; ///< may be empty
};

} // namespace velmara::console
