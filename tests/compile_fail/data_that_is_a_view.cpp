// expect EITHER: This data would keep what is gone after the call that writes it
// each: char const*; char16_t*; std::string_view; Span; hvArrayProxy; hvConstArrayProxy; Place*; Text; Places
#include "orbis/factory/describe.hpp"

#include "Published.hpp"

#include "orbis/factory/marshaling/ValuePolicy.hpp"
#include "orbis/factory/types/NumericSpanPolicy.hpp"
#include "orbis/factory/types/ObjectVectorPolicy.hpp"
#include "orbis/factory/types/OptionalPolicy.hpp"
#include "orbis/factory/types/StringViewPolicy.hpp"

using namespace orbis::factory;

struct Place {};

template <>
struct orbis::factory::HostClass<Place> {
    static constexpr char const* name = "tests.Place";
    using Policy = ValuePolicy;
};

using Span = std::span<double const>;
using Text = std::optional<std::string_view>;
using Places = std::vector<Place const*>;

struct Published {
    void setText(EACH text);
    EACH text;
    EACH const shown;
};

auto const described = describe<Published>()
                           .property("shown", &Published::shown)
                           .writeOnlyProperty("copied", &Published::setText)
                           .writeOnlyProperty("text", EITHER(&Published::setText, &Published::text));
