// Random calls of the samples' members, which are read from their descriptors.
#include "fuzz/Input.hpp"
#include "fuzz/require.hpp"

#include "orbis/factory/check.hpp"
#include "velmara/Hvm.hpp"
#include "velmara/LiveCounts.hpp"

#include "host_extensions/host_extensions.hpp"
#include "libhv/libhv.hpp"
#include "libkwi18n/libkwi18n.hpp"

#include <array>
#include <iterator>
#include <vector>

using orbis::host_extensions::createMatrix;
using velmara::ArrayPtr;
using velmara::MethodRecord;

namespace {

/// Everything that can be called or read by name.
struct Grammar {
    explicit Grammar(velmara::Hvm& hvm)
    {
        add(hvm, "");
        for (char const* const global : {"CppClass", "OrbisFactoryBuiltInTester"})
            classes.push_back(hvm.describeClass(global));
    }

    void add(velmara::Hvm& hvm, std::string const& name)
    {
        auto const package = hvm.describePackage(name);
        for (auto const& function : package.functions)
            functions.push_back(name + "." + function.name);
        for (auto const& cls : package.classes)
            classes.push_back(hvm.describeClass(cls));
        for (auto const& inner : package.packages)
            add(hvm, inner);
    }

    std::vector<velmara::ClassRecord> classes;
    std::vector<std::string> functions;
};

class Script {
public:
    Script(velmara::Hvm& hvm, Grammar const& grammar, Input& input) : hvm_(hvm), grammar_(grammar), input_(input) {}

    void step()
    {
        auto const& cls = grammar_.classes[input_.pick(grammar_.classes.size())];
        ArrayPtr& slot = slots_[input_.pick(slots_.size())];
        std::vector<ArrayPtr> const owners = makeInputs();
        std::vector<hvArray_tag*> inputs;
        for (ArrayPtr const& owner : owners)
            inputs.push_back(owner.get());
        try {
            switch (input_.pick(8)) {
            case 0:
                slot = hvm_.construct(cls.name, inputs);
                break;
            case 1:
                slot.reset();
                break;
            case 2:
                slot = hvm_.callFunction(grammar_.functions[input_.pick(grammar_.functions.size())], inputs);
                break;
            case 3:
                read(cls, slot);
                break;
            case 4:
                write(cls, slot, owners);
                break;
            case 5:
                erase(slot);
                break;
            default:
                call(cls, slot, inputs);
            }
        } catch (velmara::Error const& error) {
            require(!error.identifier().empty(), error.what());
        }
    }

private:
    void call(velmara::ClassRecord const& cls, ArrayPtr& slot, std::vector<hvArray_tag*> const& inputs)
    {
        if (cls.methods.empty())
            return;
        MethodRecord const& method = cls.methods[input_.pick(cls.methods.size())];
        if (method.kind == MethodRecord::Kind::StaticMethod)
            slot = hvm_.callStatic(cls.name, method.name, inputs);
        else
            slots_[input_.pick(slots_.size())] = hvm_.call(slot.get(), method.name, inputs);
    }

    void read(velmara::ClassRecord const& cls, ArrayPtr& slot)
    {
        if (cls.properties.empty())
            return;
        auto const& property = cls.properties[input_.pick(cls.properties.size())];
        ArrayPtr value =
            property.isStatic ? hvm_.getStatic(cls.name, property.name) : hvm_.get(slot.get(), property.name);
        slots_[input_.pick(slots_.size())] = std::move(value);
    }

    void write(velmara::ClassRecord const& cls, ArrayPtr const& slot, std::vector<ArrayPtr> const& values)
    {
        if (cls.properties.empty() || values.empty())
            return;
        auto const& property = cls.properties[input_.pick(cls.properties.size())];
        if (property.isStatic)
            hvm_.setStatic(cls.name, property.name, values.front().get());
        else
            hvm_.set(slot.get(), property.name, values.front().get());
    }

    void erase(ArrayPtr const& slot)
    {
        if (input_.pick(2))
            static_cast<void>(hvm_.references(slot.get()));
        else
            hvm_.deleteObjects(slot.get());
    }

    std::vector<ArrayPtr> makeInputs()
    {
        std::vector<ArrayPtr> inputs(input_.pick(5));
        for (ArrayPtr& input : inputs)
            input = makeInput(2);
        return inputs;
    }

    ArrayPtr makeInput(int depth)
    {
        static constexpr hvClassID classes[] = {hvDOUBLE_CLASS, hvINT32_CLASS, hvLOGICAL_CLASS, hvUINT8_CLASS,
                                                hvINT64_CLASS,  hvCHAR_CLASS,  hvSINGLE_CLASS};
        std::size_t const kind = input_.pick(12);
        if (kind < std::size(classes)) {
            std::size_t const rows = input_.pick(3), columns = input_.pick(3);
            ArrayPtr array(createMatrix(rows, columns, classes[kind]));
            if (classes[kind] == hvDOUBLE_CLASS)
                for (std::size_t i = 0; i < rows * columns; ++i)
                    static_cast<double*>(orbis::host_extensions::getWritableData(array.get()))[i] =
                        input_.byte() - 100.0;
            return array;
        }
        if (kind == 7)
            return ArrayPtr(orbis::host_extensions::createText(fl::i18n::to_ustring(input_.text(12))));
        if (kind == 8) {
            ArrayPtr strings(orbis::host_extensions::createStringMatrix(1, input_.pick(3)));
            if (strings->get_number_of_elements() > 0)
                orbis::host_extensions::setString(strings.get(), 0, fl::i18n::to_ustring(input_.text(5)));
            return strings;
        }
        if (kind == 9 && depth > 0) {
            ArrayPtr cells(hvCreateCellMatrix(1, input_.pick(3)));
            for (std::size_t i = 0; i < cells->get_number_of_elements(); ++i)
                hvSetCell(cells.get(), i, makeInput(depth - 1).release());
            return cells;
        }
        hvArray* const used = slots_[input_.pick(slots_.size())].get();
        return ArrayPtr(used ? hvCreateSharedDataCopy(used) : nullptr);
    }

    velmara::Hvm& hvm_;
    Grammar const& grammar_;
    Input& input_;
    std::array<ArrayPtr, 8> slots_;
};

} // namespace

extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size)
{
    Input input(data, size);
    {
        velmara::Hvm hvm;
        hvm.reportLeaks([](std::string const& leak) { require(false, leak); });
        velmara::Hvm::Scope const scope(hvm);
        static_cast<void>(hvm.loadModule(LIBRARY_FILE));
        static Grammar const grammar(hvm);
        Script script(hvm, grammar, input);
        while (!input.isAtEnd())
            script.step();
        std::string const wrong = orbis::factory::check();
        require(wrong.empty(), wrong);
    }
    require(velmara::liveCounts() == velmara::LiveCounts{}, "something of the host is left");
    return 0;
}
