#include "values/LiveCounters.hpp"

#include <mutex>

namespace velmara {

#if defined(_WIN32)
constinit thread_local LiveCounts* shareOfThisThread = nullptr;
#else
constinit thread_local LiveCounts* shareOfThisThread [[gnu::tls_model("initial-exec")]] = nullptr;
#endif

namespace {

/// What a thread counted stays in the sum when it ends; the next thread counts on from there.
struct alignas(64) Share {
    LiveCounts counts;
    bool isTaken = true;
    Share* next = nullptr;
};

// Neither is ever freed: things may be counted until the very end of the process.
constinit Share* shares = nullptr;

std::mutex& sharesMutex()
{
    static auto& mutex = *new std::mutex;
    return mutex;
}

/// Gives the thread's share back at the thread's end.
class ShareReturn {
public:
    explicit ShareReturn(Share* share) : share_(share) {}
    ShareReturn(ShareReturn const&) = delete;
    ShareReturn& operator=(ShareReturn const&) = delete;

    ~ShareReturn()
    {
        shareOfThisThread = nullptr;
        std::scoped_lock lock(sharesMutex());
        share_->isTaken = false;
    }

private:
    Share* share_;
};

Share* findOrMakeShare()
{
    std::scoped_lock lock(sharesMutex());
    for (Share* share = shares; share; share = share->next) {
        if (!share->isTaken) {
            share->isTaken = true;
            return share;
        }
    }
    auto* share = new Share;
    share->next = shares;
    return shares = share;
}

constinit thread_local bool hasRegistered = false;

} // namespace

LiveCounts& takeLiveCountsShare() noexcept
{
    Share* share = findOrMakeShare();
    shareOfThisThread = &share->counts;
    // A thread's late destructors may count after the return has run; their second share is then kept for good.
    if (!hasRegistered) {
        hasRegistered = true;
        thread_local ShareReturn const shareReturn(share);
    }
    return share->counts;
}

LiveCounts liveCounts()
{
    std::scoped_lock lock(sharesMutex());
    LiveCounts sum;
    for (Share const* share = shares; share; share = share->next) {
        sum.objects += share->counts.objects;
        sum.arrays += share->counts.arrays;
        sum.classInfos += share->counts.classInfos;
        sum.descriptors += share->counts.descriptors;
        sum.heldNames += share->counts.heldNames;
    }
    return sum;
}

} // namespace velmara
