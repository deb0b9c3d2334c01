#include "HvmTest.hpp"
#include "host/TestDescriptors.hpp"

#include <memory>
#include <stdexcept>
#include <thread>

using namespace orbis::host_extensions;
using described::Class;
using velmara::ArrayPtr;
using velmara::Hvm;
using velmara::Origin;
using velmara::Snapshot;

namespace {

int natives[2];

class SnapshotTest : public HvmTest {
protected:
    static void publishClasses()
    {
        auto* const base = new Class("A");
        base->create = [] { return &natives[0]; };
        auto* const derived = new Class("B", [](orbis::COSClass* cls) { described::setSuperclass(cls, "A"); });
        derived->create = [] { return &natives[1]; };
        described::publish(base);
        described::publish(derived);
    }

    /// Has what is created from now on come from the line.
    void recordAt(int line, Hvm* hvm = nullptr)
    {
        line_ = line;
        (hvm ? *hvm : this->hvm()).recordOrigins([this] { return Origin{"s", line_}; });
    }

    /// A line for each row: class, origin, objects, bindings, arrays, bytes.
    static std::string text(Snapshot const& snapshot)
    {
        std::string lines;
        for (velmara::SnapshotRow const& row : snapshot.rows) {
            lines += row.className + ' ' + row.origin;
            for (std::int64_t const count : {row.objects, row.bindings, row.arrays, row.bytes})
                lines += ' ' + std::to_string(count);
            lines += '\n';
        }
        return lines;
    }

    std::string text() { return text(hvm().snapshot()); }

    int line_ = 0;
};

} // namespace

TEST_F(SnapshotTest, CountsObjectsByClassAndOrigin)
{
    publishClasses();
    hvm().defineEnumeration("Level", std::vector<velmara::EnumeratorRecord>{{"Low", 1}});
    ArrayPtr const level = hvm().getEnumerator("Level", "Low");
    ArrayPtr const unknown = hvm().construct("A");
    EXPECT_EQ(text(), "A  1 1 0 88\n");
    Snapshot const before = hvm().snapshot();
    recordAt(1);
    ArrayPtr a = hvm().construct("A"), b = hvm().construct("B");
    EXPECT_EQ(text(), "B s:1 1 2 1 224\nA s:1 1 1 1 176\nA  1 1 0 88\n");
    line_ = 2;
    ArrayPtr const another = hvm().construct("A");
    Snapshot const between = hvm().snapshot();
    a.reset();
    objectIn(b)->setValid(false);
    EXPECT_EQ(text(hvm().snapshot() - between), "B s:1 0 -2 0 0\nA s:1 -1 -1 -1 -176\n");
    line_ = 0;
    hvm().recordOrigins({});
    ArrayPtr const late = hvm().construct("A");
    EXPECT_EQ(text(hvm().snapshot() - before), "B s:1 1 0 1 224\nA s:2 1 1 1 176\nA  1 1 0 88\n");
    EXPECT_EQ(hvm().snapshot().rows.size(), 3U);
    EXPECT_EQ(text(before - before), "");
}

TEST_F(SnapshotTest, CountsArraysWithTheirElementsOnce)
{
    recordAt(1);
    ArrayPtr const numbers(matrix<double>(2, 5, std::vector<double>(10))), scalar(number(1));
    ArrayPtr const strings(createStringMatrix(1, 2)), empty(matrix<double>(0, 0, {}));
    setString(strings.get(), 0, u"short");
    setString(strings.get(), 1, std::u16string(1000, u'x'));
    line_ = 2;
    ArrayPtr const twin(hvCreateSharedDataCopy(numbers.get()));
    ArrayPtr cell(hvCreateCellMatrix(1, 1));
    hvSetCell(cell.get(), 0, hvCreateSharedDataCopy(scalar.get()));
    EXPECT_EQ(text(), "string s:1 0 0 1 2178\ndouble s:1 0 0 3 360\ndouble s:2 0 0 2 176\ncell s:2 0 0 1 112\n");
    line_ = 3;
    ArrayPtr const copy(hvCreateDeepCopy(cell.get())), second(hvCreateSharedDataCopy(cell.get()));
    cell->add_reference();
    ArrayPtr(cell.get()).reset(); // one reference of two
    cell.reset();
    EXPECT_EQ(text(), "string s:1 0 0 1 2178\ndouble s:1 0 0 3 360\ncell s:3 0 0 2 224\n"
                      "double s:2 0 0 2 176\ndouble s:3 0 0 1 88\n");
}

TEST_F(SnapshotTest, RecordsOnEachThreadAndForOneMachine)
{
    ArrayPtr other, outliving, given;
    auto ending = std::make_unique<Hvm>();
    {
        Hvm::Scope const scope(*ending);
        publishClasses();
        recordAt(1, ending.get());
        outliving = number(1);
        std::thread([&] {
            Hvm::Scope const inThread(*ending);
            outliving = number(1); // frees what another thread created
            outliving = number(2); // when the thread has a cache already
        }).join();
        std::thread([&] { given = ending->construct("A"); }).join();
        EXPECT_EQ(text(ending->snapshot()), "A s:1 1 1 1 176\ndouble s:1 0 0 1 88\n");
        Hvm::Scope const unrecorded(hvm());
        other = number(3);
    }
    EXPECT_EQ(text(), "");
    ending.reset();
    EXPECT_EQ(scalar<double>(outliving), 2);
    ArrayPtr const after = number(4);
    EXPECT_EQ(text(), "");
}

TEST_F(SnapshotTest, WhatCannotBeRecordedHasNoOrigin)
{
    std::vector<ArrayPtr> arrays;
    hvm().recordOrigins([]() -> Origin { throw std::runtime_error("lost"); });
    arrays.push_back(number(0));
    hvm().recordOrigins([] { return Origin(); });
    arrays.push_back(number(0));
    std::string file = "file";
    hvm().recordOrigins([&] { return Origin{file}; });
    arrays.push_back(number(0));
    EXPECT_EQ(text(), "double  0 0 2 176\ndouble file 0 0 1 88\n");
    constexpr int count = 70000;
    for (recordAt(0); line_ < count;) {
        ++line_;
        arrays.push_back(number(0));
    }
    Snapshot const taken = hvm().snapshot();
    EXPECT_EQ(taken.rows.size(), 65536U);
    EXPECT_EQ(taken.rows.front().arrays, 2 + count - 65534) << "those without a number";
    EXPECT_EQ(taken.rows.front().origin, "");
}
