#pragma once

namespace velmara {

class Array;

/// Cell arrays that hold cell arrays, to any depth: nothing here recurses.
class CellNest {
public:
    /// Frees a cell array whose last reference was released, and what only it held. Needs no memory.
    static void destroy(Array* cells) noexcept;

    /// True when `sought` is `nest` or is anywhere inside it.
    static bool contains(Array const& nest, Array const& sought);

private:
    static void releaseCells(Array& cells, Array*& dying) noexcept;
    static Array*& nextDying(Array& array);
};

} // namespace velmara
