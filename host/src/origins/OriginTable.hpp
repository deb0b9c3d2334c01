#pragma once

#include "velmara/Snapshot.hpp"

#include <atomic>
#include <cstdint>
#include <string>
#include <unordered_map>
#include <vector>

namespace velmara {

/// The origins of what is created in one virtual machine, by number.
class OriginTable {
public:
    /// 0 is the number of what was created while nothing was recorded.
    using Number = std::uint16_t;

    OriginTable() = default;
    OriginTable(OriginTable const&) = delete;
    OriginTable& operator=(OriginTable const&) = delete;
    ~OriginTable() { setRecording(false); }

    /// An empty source ends the recording. The numbers stay valid.
    void recordBy(OriginSource source);
    bool isRecording() const { return isRecording_; }

    /// Whether any table of the process is recording.
    static bool isAnyRecording() { return recordingTables.load(std::memory_order_relaxed) != 0; }

    /// The number of what the source tells now: 0 where that is not known, or where no memory or number is left for it.
    Number current() noexcept;

    std::string const& text(Number number) const { return number == 0 ? noText_ : *texts_[number - std::size_t(1)]; }

private:
    static constinit std::atomic<int> recordingTables;

    void setRecording(bool isRecording);
    Number numberOf(Origin const& origin);

    OriginSource source_;
    std::unordered_map<std::string, Number> numbers_; ///< by "SOURCE:LINE"
    std::vector<std::string const*> texts_;           ///< the keys of these, in the order of the numbers
    std::string const noText_;
    std::string latestSource_; ///< what was asked for last mostly comes again
    int latestLine_ = 0;
    Number latest_ = 0;
    bool isRecording_ = false;
};

} // namespace velmara
