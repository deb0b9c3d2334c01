#include "show/TableLine.hpp"

#include "handles/Proxy.hpp"
#include "show/Summary.hpp"
#include "text/CutText.hpp"
#include "text/DisplayWidth.hpp"

#include <algorithm>
#include <cctype>

namespace velmara::console {

namespace {

constexpr int maxLineDepth = 3;

/// A line that is being written; it fails when it becomes too long, or a value does not belong in it.
class Line {
public:
    Line(lua_State* L, std::size_t width) : L_(L), width_(width) {}

    bool addTable(int table, int depth)
    {
        TableKeys const keys = keysOf(L_, table);
        if (depth > maxLineDepth || keys.hasOthers || lua_rawlen(L_, table) > width_)
            return false;
        text_ += '{';
        char const* separator = "";
        bool isWritten = true;
        auto const add = [&](std::string const& label) { // what is on top
            text_ += separator + label;
            isWritten = isWritten && addElement(depth);
            separator = ", ";
            lua_pop(L_, 1);
        };
        for (std::size_t i = 1; isWritten && i <= lua_rawlen(L_, table); ++i) {
            lua_rawgeti(L_, table, static_cast<lua_Integer>(i));
            add("");
        }
        for (auto key = keys.texts.begin(); isWritten && key != keys.texts.end(); ++key) {
            pushText(L_, *key);
            lua_rawget(L_, table);
            add(keyText(*key) + " = ");
        }
        text_ += '}';
        return isWritten && displayWidth(text_) <= width_;
    }

    std::string const& text() const { return text_; }

private:
    bool addElement(int depth)
    {
        switch (lua_type(L_, -1)) {
        case LUA_TSTRING:
            text_ += quoteText(textAt(L_, -1), width_);
            break;
        case LUA_TNUMBER:
        case LUA_TBOOLEAN:
            text_ += summary(L_, -1);
            break;
        case LUA_TTABLE:
            return !lua_getmetatable(L_, -1) ? addTable(lua_gettop(L_), depth + 1) : (lua_pop(L_, 1), false);
        default:
            return false;
        }
        return text_.size() <= width_ * 4; // bytes of a character
    }

    lua_State* L_;
    std::size_t width_;
    std::string text_;
};

bool isPlainKey(std::string const& key)
{
    auto const isWordPart = [](unsigned char c) { return std::isalnum(c) != 0 || c == '_'; };
    return !key.empty() && std::ranges::all_of(key, isWordPart) && !std::isdigit(static_cast<unsigned char>(key[0]));
}

} // namespace

TableKeys keysOf(lua_State* L, int table)
{
    constexpr std::size_t maxKeys = 10'000;
    luaL_checkstack(L, 8, nullptr);
    TableKeys keys;
    auto const length = static_cast<lua_Integer>(lua_rawlen(L, table));
    for (lua_pushnil(L); lua_next(L, table) != 0; lua_pop(L, 1)) {
        bool const isOfSequence = lua_isinteger(L, -2) && lua_tointeger(L, -2) >= 1 && lua_tointeger(L, -2) <= length;
        if (lua_type(L, -2) == LUA_TSTRING && keys.texts.size() < maxKeys)
            keys.texts.emplace_back(textAt(L, -2));
        else if (!isOfSequence)
            keys.hasOthers = true;
        if (keys.texts.size() == maxKeys && keys.hasOthers) {
            lua_pop(L, 2);
            break;
        }
    }
    std::ranges::sort(keys.texts);
    return keys;
}

std::string keyText(std::string const& key)
{
    constexpr std::size_t maxKeyWidth = 24;
    return isPlainKey(key) ? cutText(key, maxKeyWidth) : '[' + quoteText(key, maxKeyWidth) + ']';
}

std::string tableLine(lua_State* L, int index, std::size_t width)
{
    Line line(L, width);
    return line.addTable(lua_absindex(L, index), 1) ? line.text() : std::string();
}

} // namespace velmara::console
