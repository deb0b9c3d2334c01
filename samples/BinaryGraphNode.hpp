#pragma once

#include "orbis/factory/classes/HandleClassInfo.hpp"

#include <cstdint>
#include <set>
#include <string>
#include <vector>

namespace orbis::factory::samples {

/// A crossing in a park, with a path to the left and one to the right. Paths do not keep crossings alive: paths to a
/// destroyed crossing lead nowhere.
class BinaryGraphNode {
public:
    explicit BinaryGraphNode(std::string name);
    BinaryGraphNode(BinaryGraphNode const&) = delete;
    BinaryGraphNode& operator=(BinaryGraphNode const&) = delete;
    virtual ~BinaryGraphNode();

    std::string const& name() const { return name_; }

    BinaryGraphNode* left() const { return left_; }
    BinaryGraphNode* right() const { return right_; }
    void setLeft(BinaryGraphNode* crossing) { lead(left_, crossing); }
    void setRight(BinaryGraphNode* crossing) { lead(right_, crossing); }

    /// Follows the turns ("LRL"). Null if a path leads nowhere.
    BinaryGraphNode* walk(std::string const& turns);

    std::uint32_t visits() const { return visits_; }
    void setVisits(std::uint32_t visits) { visits_ = visits; }

    /// The next crossings. Reading is counted with `countReader`, the release routine.
    std::vector<BinaryGraphNode*> signpost() const;
    void countReader() { ++readers_; }
    std::uint32_t readers() const { return readers_; }

private:
    void lead(BinaryGraphNode*& way, BinaryGraphNode* crossing);

    std::string name_;
    BinaryGraphNode* left_ = nullptr;
    BinaryGraphNode* right_ = nullptr;
    std::multiset<BinaryGraphNode*> origins_; ///< of the paths that lead here
    std::uint32_t visits_ = 0;
    std::uint32_t readers_ = 0;
};

} // namespace orbis::factory::samples

// A class without subclasses, for which this policy suffices.
template <>
struct orbis::factory::HostClass<orbis::factory::samples::BinaryGraphNode> {
    static constexpr char const* name = "orbis_factory.BinaryGraphNode";
};

namespace orbis::factory::samples {

class BinaryGraphNodeWrapper final : public HandleClassInfo<BinaryGraphNode, 1> {
public:
    BinaryGraphNodeWrapper();
    void initializeClass(COSClass* cls) override;
};

} // namespace orbis::factory::samples
