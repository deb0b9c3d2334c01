#pragma once

#include "bench/BenchedAdder.hpp"

#include "orbis/factory/classes/EnumerationClassInfo.hpp"

#include <array>
#include <cstddef>

namespace bench {

enum class Tone : int {};

inline constexpr std::size_t toneCount = 16;
inline constexpr char const* toneNames[toneCount] = {"Zero",   "One",      "Two",      "Three",  "Four", "Five",
                                                     "Six",    "Seven",    "Eight",    "Nine",   "Ten",  "Eleven",
                                                     "Twelve", "Thirteen", "Fourteen", "Fifteen"};

consteval auto makeTones()
{
    std::array<orbis::factory::Enumerator<Tone>, toneCount> tones{};
    for (std::size_t i = 0; i < toneCount; ++i)
        tones[i] = {toneNames[i], Tone(static_cast<int>(i * i))};
    return tones;
}

} // namespace bench

template <>
struct orbis::factory::HostEnumeration<bench::Tone> {
    static constexpr char const* name = "bench_tones.Tone";
    static constexpr auto enumerators = bench::makeTones();
};

namespace bench {

/// Conversions of one enumerator of sixteen, and of an object for comparison.
class EnumerationScenarios {
public:
    EnumerationScenarios()
    {
        orbis::factory::registerOrbisPackage("bench_tones", [](orbis::COSPackage* package) {
            package->addClass(new orbis::factory::EnumerationClassInfo<Tone>(""));
            publish(package, orbis::factory::describeFunctions()
                                 .function("takeTone", [](Tone tone) { return static_cast<int>(tone); })
                                 .function("takeAdder", [](Adder const* adder) { return adder ? 1 : 0; }));
        });
        tone_ = fixture_.hvm.getEnumerator("bench_tones.Tone", "Eleven");
    }

    void enumeratorIn(std::size_t count) { in<Tone>(tone_.get(), count); }
    void objectIn(std::size_t count) { in<Adder const*>(fixture_.object.get(), count); }
    void enumeratorOut(std::size_t count) { out(Tone(121), count); }
    void objectOut(std::size_t count) { out(fixture_.native, count); }

    /// Through the host's dispatch, with an object, an enumerator, and the enumerator's name and number.
    void callWithObject(std::size_t count) { call("bench_tones.takeAdder", fixture_.object.get(), count); }
    void callWithEnumerator(std::size_t count) { call("bench_tones.takeTone", tone_.get(), count); }
    void callWithName(std::size_t count) { call("bench_tones.takeTone", name_.get(), count); }
    void callWithNumber(std::size_t count) { call("bench_tones.takeTone", number_.get(), count); }

private:
    template <class T>
    [[gnu::noipa]] void in(hvArray* array, std::size_t count)
    {
        COSValue const slot(array);
        for (std::size_t i = 0; i < count; ++i) {
            T const value = orbis::factory::detail::convertFromHost<T>(slot);
            asm volatile("" : : "g"(value));
        }
    }

    template <class T>
    [[gnu::noipa]] void out(T value, std::size_t count)
    {
        for (std::size_t i = 0; i < count; ++i) {
            COSValue slot;
            int outputCount = 1;
            orbis::factory::detail::storeResult<T>(outputCount, &slot, [&] { return value; });
            hvDestroyArray(slot.array());
        }
    }

    void call(char const* function, hvArray* input, std::size_t count)
    {
        for (std::size_t i = 0; i < count; ++i)
            fixture_.hvm.callFunction(function, {&input, 1});
    }

    Fixture fixture_;
    velmara::ArrayPtr tone_;
    velmara::ArrayPtr name_{hvCreateString("Eleven")};
    velmara::ArrayPtr number_ = Fixture::number(121);
};

} // namespace bench
