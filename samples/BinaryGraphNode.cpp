#include "samples/BinaryGraphNode.hpp"

#include "orbis/factory/base/Exception.hpp"
#include "orbis/factory/describe.hpp"
#include "orbis/factory/types/ObjectVectorPolicy.hpp"

namespace orbis::factory::samples {

BinaryGraphNode::BinaryGraphNode(std::string name) : name_(std::move(name)) {}

BinaryGraphNode::~BinaryGraphNode()
{
    setLeft(nullptr);
    setRight(nullptr);
    for (BinaryGraphNode* const origin : origins_)
        for (BinaryGraphNode** const way : {&origin->left_, &origin->right_})
            if (*way == this)
                *way = nullptr;
}

void BinaryGraphNode::lead(BinaryGraphNode*& way, BinaryGraphNode* crossing)
{
    if (crossing)
        crossing->origins_.insert(this);
    if (way)
        way->origins_.erase(way->origins_.find(this));
    way = crossing;
}

BinaryGraphNode* BinaryGraphNode::walk(std::string const& turns)
{
    if (turns.find_first_not_of("LR") != std::string::npos)
        throw Exception("Turns are L and R, as in \"LRL\".");
    BinaryGraphNode* here = this;
    for (char const turn : turns) {
        here = turn == 'L' ? here->left_ : here->right_;
        if (!here)
            break;
        ++here->visits_;
    }
    return here;
}

std::vector<BinaryGraphNode*> BinaryGraphNode::signpost() const
{
    std::vector<BinaryGraphNode*> next;
    for (BinaryGraphNode* const way : {left_, right_})
        if (way)
            next.push_back(way);
    return next;
}

BinaryGraphNodeWrapper::BinaryGraphNodeWrapper()
    : HandleClassInfo(HostClass<BinaryGraphNode>::name, "A crossing in a park, with ways to the left and to the right")
{
}

void BinaryGraphNodeWrapper::initializeClass(COSClass* cls)
{
    publish(cls, describe<BinaryGraphNode>()
                     .constructor<std::string>("name")
                     .method("walk", &BinaryGraphNode::walk, "turns")
                     .property("name", &BinaryGraphNode::name)
                     .property("left", &BinaryGraphNode::left, &BinaryGraphNode::setLeft)
                     .property("right", &BinaryGraphNode::right, &BinaryGraphNode::setRight)
                     .property("visits", &BinaryGraphNode::visits, &BinaryGraphNode::setVisits,
                               PropertyAttributes::PrivateSetter())
                     .property("signpost", releasedBy<&BinaryGraphNode::countReader>(&BinaryGraphNode::signpost))
                     .property("readers", &BinaryGraphNode::readers));
}

} // namespace orbis::factory::samples
