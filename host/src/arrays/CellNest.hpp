#pragma once

namespace velmara {

class Array;

/// Work on cell arrays that hold cell arrays, to any depth: none of it recurses.
class CellNest {
public:
    /// Frees a cell array whose last reference is gone, and what only it held. Needs no memory.
    static void destroy(Array* cells) noexcept;

    /// True when `sought` is `nest` or stands anywhere inside it.
    static bool contains(Array const& nest, Array const& sought);

private:
    static void releaseCells(Array& cells, Array*& dying) noexcept;
    static Array*& nextDying(Array& array);
};

} // namespace velmara
