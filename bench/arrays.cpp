#include "host_extensions/host_extensions.hpp"
#include "libhv/libhv.hpp"
#include "orbis/COSTypeConversion.hpp"
#include "orbis/COSTypeRepository.hpp"
#include "velmara/Hvm.hpp"

#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <string>

namespace {

namespace host_extensions = orbis::host_extensions;

constexpr char text[] = "twelve chars";
constexpr std::size_t cellCount = 1000;

hvArray* cellsOfTexts()
{
    hvArray* const cells = hvCreateCellMatrix(cellCount, 1);
    for (std::size_t i = 0; i < cellCount; ++i)
        hvSetCell(cells, i, hvCreateString(text));
    return cells;
}

void createText()
{
    hvDestroyArray(hvCreateString(text));
}

void createUtf16Text()
{
    hvDestroyArray(hvCreateString_UTF16(u"twelve chars"));
}

void readText()
{
    static hvArray const* const array = hvCreateString(text);
    hvFreeEx(hvArrayToString(array));
}

void readUtf16Text()
{
    static hvArray const* const array = hvCreateString(text);
    hvFreeEx(hvArrayToString_UTF16(array));
}

void createNumber()
{
    hvDestroyArray(host_extensions::createMatrix(1, 1, hvDOUBLE_CLASS));
}

void createCells()
{
    hvDestroyArray(hvCreateCellMatrix(cellCount, 1));
}

void fillCells()
{
    static hvArray* const value = hvCreateString(text);
    hvArray* const cells = hvCreateCellMatrix(cellCount, 1);
    for (std::size_t i = 0; i < cellCount; ++i) {
        value->add_reference();
        hvSetCell(cells, i, value);
        hvSetCell(cells, i, nullptr);
    }
    hvDestroyArray(cells);
}

void createCellsOfTexts()
{
    hvDestroyArray(cellsOfTexts());
}

void createStrings()
{
    hvArray* const strings = host_extensions::createStringMatrix(cellCount, 1);
    for (std::size_t i = 0; i < cellCount; ++i)
        host_extensions::setString(strings, i, u"twelve chars");
    hvDestroyArray(strings);
}

void makeName()
{
    orbis::COSNameID const name("orbis_factory.Adder");
}

void makeShortName()
{
    orbis::COSNameID const name("unicodeString");
}

void extractText()
{
    static hvArray* const array = hvCreateString(text);
    hvArray_tag* value = nullptr;
    orbis::COSTypeRepository::getConversion("any", "unicodeString")->convertFromHost(&value, array);
    delete reinterpret_cast<std::u16string*>(value);
}

struct Operation {
    char const* name;
    void (*run)();
};

constexpr Operation operations[] = {{"createText", createText},       {"createUtf16Text", createUtf16Text},
                                    {"readText", readText},           {"readUtf16Text", readUtf16Text},
                                    {"createNumber", createNumber},   {"createCells", createCells},
                                    {"fillCells", fillCells},         {"createCellsOfTexts", createCellsOfTexts},
                                    {"createStrings", createStrings}, {"makeName", makeName},
                                    {"makeShortName", makeShortName}, {"extractText", extractText}};

} // namespace

// Runs one host operation COUNT times: `arrays OPERATION COUNT`. Instructions are counted as with `instructions`.
int main(int argc, char** argv)
{
    velmara::Hvm hvm;
    velmara::Hvm::Scope const scope(hvm);
    for (Operation const& operation : operations) {
        if (argc != 3 || std::strcmp(operation.name, argv[1]) != 0)
            continue;
        for (std::size_t left = std::strtoul(argv[2], nullptr, 10); left > 0; --left)
            operation.run();
        std::_Exit(0);
    }
    std::fprintf(stderr, "usage: arrays OPERATION COUNT\n");
    for (Operation const& operation : operations)
        std::fprintf(stderr, "  %s\n", operation.name);
    return 2;
}
