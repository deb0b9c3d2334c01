#include "text/AlignedTable.hpp"

#include "text/DisplayWidth.hpp"

#include <algorithm>
#include <cctype>

namespace velmara::console {

namespace {

constexpr std::size_t gap = 2;

bool isNumber(std::string const& text)
{
    auto const isDigit = [](unsigned char c) { return std::isdigit(c) != 0; };
    std::size_t const sign = text.starts_with('-') ? 1 : 0;
    return text.compare(sign, text.npos, "inf") == 0 || text == "NaN" ||
           (text.size() > sign && isDigit(text[sign]) && isDigit(text.back()));
}

void addCell(std::string& line, std::string const& text, std::size_t width, bool isRight)
{
    line.append(line.empty() ? 0 : gap, ' ');
    std::string const blanks(width - displayWidth(text), ' ');
    line += isRight ? blanks + text : text + blanks;
}

} // namespace

bool AlignedTable::areNumbers(std::size_t column) const
{
    return std::all_of(rows_.begin() + 1, rows_.end(), [&](Row const& row) { return isNumber(row[column]); });
}

std::vector<std::string> AlignedTable::lines(std::size_t width) const
{
    constexpr std::size_t minColumns = 2;
    std::vector<std::string> lines(rows_.size());
    std::size_t used = 0;
    for (std::size_t column = 0; column < rows_.front().size(); ++column) {
        std::size_t widest = 0;
        for (Row const& row : rows_)
            widest = std::max(widest, displayWidth(row[column]));
        used += widest + gap;
        bool const isCut = used > width && column >= minColumns;
        bool const isRight = areNumbers(column);
        for (std::size_t i = 0; i < rows_.size(); ++i)
            if (isCut)
                addCell(lines[i], "...", 3, false);
            else
                addCell(lines[i], rows_[i][column], widest, isRight);
        if (isCut)
            break;
    }
    for (std::string& line : lines)
        line.resize(line.find_last_not_of(' ') + 1);
    return lines;
}

} // namespace velmara::console
