#include "modules/imageSize.hpp"

#include <algorithm>
#include <array>
#include <limits>
#include <string_view>

namespace velmara {

namespace {

/// Reads numbers of `Bytes` bytes, the least significant first, at places of a file.
class ImageReader {
public:
    explicit ImageReader(std::istream& file) : file_(file) {}

    template <std::size_t Bytes>
    std::uintmax_t number(std::uintmax_t place)
    {
        std::array<char, Bytes> bytes{};
        end_ = std::max(end_, add(place, Bytes));
        file_.clear();
        file_.seekg(static_cast<std::streamoff>(place & std::numeric_limits<std::int64_t>::max()));
        file_.read(bytes.data(), Bytes);
        isCutOff_ = isCutOff_ || !file_;
        std::uintmax_t value = 0;
        for (std::size_t i = Bytes; i-- > 0;)
            value = value << 8 | static_cast<unsigned char>(bytes[i]);
        return value;
    }

    /// Something that is mapped.
    void need(std::uintmax_t start, std::uintmax_t length) { end_ = std::max(end_, add(start, length)); }

    bool isCutOff() const { return isCutOff_; }
    std::uintmax_t end() const { return end_; }

private:
    static std::uintmax_t add(std::uintmax_t a, std::uintmax_t b)
    {
        return a > std::numeric_limits<std::uintmax_t>::max() - b ? std::numeric_limits<std::uintmax_t>::max() : a + b;
    }

    std::istream& file_;
    std::uintmax_t end_ = 0;
    bool isCutOff_ = false;
};

void readSegments(ImageReader& image)
{
    std::uintmax_t const table = image.number<8>(32);
    std::uintmax_t const entrySize = image.number<2>(54);
    std::uintmax_t const count = image.number<2>(56);
    for (std::uintmax_t i = 0; i < count && !image.isCutOff(); ++i) {
        std::uintmax_t const entry = table + i * entrySize;
        image.need(image.number<8>(entry + 8), image.number<8>(entry + 32));
    }
}

void readSections(ImageReader& image)
{
    std::uintmax_t const header = image.number<4>(60);
    std::uintmax_t const count = image.number<2>(header + 6);
    std::uintmax_t const table = header + 24 + image.number<2>(header + 20);
    for (std::uintmax_t i = 0; i < count && !image.isCutOff(); ++i) {
        std::uintmax_t const entry = table + i * 40;
        image.need(image.number<4>(entry + 20), image.number<4>(entry + 16));
    }
}

} // namespace

std::uintmax_t imageSize(std::istream& file)
{
    constexpr std::uintmax_t elf = 0x464C457F;
    constexpr std::uintmax_t elf64 = 2;
    constexpr std::uintmax_t dos = 0x5A4D;
    ImageReader image(file);
    if (image.number<4>(0) == elf && image.number<1>(4) == elf64)
        readSegments(image);
    else if (image.number<2>(0) == dos)
        readSections(image);
    else
        return 0;
    return image.end();
}

} // namespace velmara
