#include "orbis/factory.hpp"

#include <exception>
#include <stdexcept>
#include <string>

struct ParseError : std::runtime_error {
    ParseError(std::string const& text, int place) : std::runtime_error(text), column(place) {}
    int column;
};

double parse(std::string const& text)
{
    std::size_t end = 0;
    double value = 0;
    try {
        value = std::stod(text, &end);
    } catch (std::exception const&) { // which says nothing
    }
    if (text.empty() || end != text.size())
        throw ParseError("this is no number: " + text, static_cast<int>(end) + 1);
    return value;
}

double load(std::string const& file)
{
    try {
        return parse("1.5 kg");
    } catch (...) {
        std::throw_with_nested(std::runtime_error("cannot load " + file));
    }
}

void publishModule(orbis::factory::Module& errors)
{
    errors.error<ParseError>("errors:parse").field("column", &ParseError::column);
    errors.function("parse", &parse, "text").function("load", &load, "file");
}
