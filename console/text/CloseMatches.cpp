#include "text/CloseMatches.hpp"

#include <algorithm>
#include <cctype>
#include <numeric>

namespace velmara::console {

namespace {

char lower(char c)
{
    return static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
}

/// The edit distance (insertions, deletions, replacements), ignoring case.
std::size_t distance(std::string_view a, std::string_view b)
{
    std::vector<std::size_t> row(b.size() + 1);
    std::iota(row.begin(), row.end(), std::size_t{0});
    for (std::size_t i = 1; i <= a.size(); ++i) {
        std::size_t diagonal = row[0];
        row[0] = i;
        for (std::size_t j = 1; j <= b.size(); ++j) {
            std::size_t const replaced = diagonal + (lower(a[i - 1]) != lower(b[j - 1]));
            diagonal = row[j];
            row[j] = std::min({row[j] + 1, row[j - 1] + 1, replaced});
        }
    }
    return row.back();
}

std::string join(std::vector<std::string> const& names)
{
    std::string text = names.front();
    for (std::size_t i = 1; i < names.size(); ++i)
        text += (i + 1 < names.size() ? ", " : " or ") + names[i];
    return text;
}

} // namespace

std::vector<std::string> closeMatches(std::string_view name, std::vector<std::string> const& known)
{
    constexpr std::size_t maxNameLength = 100; // nothing that long is a typing error
    if (name.size() > maxNameLength)
        return {};
    std::vector<std::pair<std::size_t, std::string>> close;
    std::size_t const maxDistance = 1 + name.size() / 4;
    for (std::string const& candidate : known)
        if (std::size_t const d = distance(name, candidate); d <= maxDistance)
            close.emplace_back(d, candidate);
    std::ranges::sort(close);
    auto const repeated = std::ranges::unique(close);
    close.erase(repeated.begin(), repeated.end());
    std::vector<std::string> names;
    for (std::size_t i = 0; i < std::min<std::size_t>(close.size(), 3); ++i)
        names.push_back(close[i].second);
    return names;
}

std::string didYouMean(std::vector<std::string> const& names)
{
    return names.empty() ? std::string() : "; did you mean " + join(names) + '?';
}

std::string didYouMean(std::string_view name, std::vector<std::string> const& known)
{
    return didYouMean(closeMatches(name, known));
}

} // namespace velmara::console
