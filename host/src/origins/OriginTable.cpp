#include "origins/OriginTable.hpp"

#include "memory/reserveNext.hpp"

#include <limits>
#include <utility>

namespace velmara {

constinit std::atomic<int> OriginTable::recordingTables = 0;

void OriginTable::recordBy(OriginSource source)
{
    source_ = std::move(source);
    setRecording(static_cast<bool>(source_));
}

void OriginTable::setRecording(bool isRecording)
{
    recordingTables.fetch_add(int(isRecording) - int(isRecording_), std::memory_order_relaxed);
    isRecording_ = isRecording;
}

OriginTable::Number OriginTable::current() noexcept
{
    try {
        Origin const origin = source_();
        if (origin.source.empty())
            return 0;
        if (origin.line != latestLine_ || origin.source != latestSource_) {
            latest_ = 0; // until all of it is known
            latestLine_ = origin.line;
            latestSource_ = origin.source;
            latest_ = numberOf(origin);
        }
        return latest_;
    } catch (...) {
        latestLine_ = -1;
        return 0;
    }
}

OriginTable::Number OriginTable::numberOf(Origin const& origin)
{
    std::string text(origin.source);
    if (origin.line != 0)
        text += ':' + std::to_string(origin.line);
    if (auto const found = numbers_.find(text); found != numbers_.end())
        return found->second;
    if (texts_.size() == std::numeric_limits<Number>::max())
        return 0;
    reserveNext(texts_);
    auto const number = static_cast<Number>(texts_.size() + 1);
    texts_.push_back(&numbers_.emplace(std::move(text), number).first->first);
    return number;
}

} // namespace velmara
