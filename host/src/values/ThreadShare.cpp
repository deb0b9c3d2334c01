#include "values/ThreadShare.hpp"

#include <mutex>

#include <pthread.h>

namespace velmara {

#if defined(_WIN32)
constinit thread_local ThreadShare* shareOfThisThread = nullptr;
#else
constinit thread_local ThreadShare* shareOfThisThread [[gnu::tls_model("initial-exec")]] = nullptr;
#endif

namespace {

struct alignas(64) Share : ThreadShare {
    bool isTaken = true;
    Share* next = nullptr;
};

// None is ever freed: things may be counted until the very end of the process.
constinit Share* shares = nullptr;

std::mutex& sharesMutex()
{
    static auto& mutex = *new std::mutex;
    return mutex;
}

void giveShareBack(void* share)
{
    shareOfThisThread = nullptr;
    std::scoped_lock lock(sharesMutex());
    static_cast<Share*>(share)->isTaken = false;
}

/// Has `giveShareBack` called at the thread's end. Not a thread_local object: on Windows these are destroyed when
/// their memory is gone already. Where the system refuses, the share stays taken and the counts stay exact.
void keepUntilThreadEnd(Share* share)
{
    struct AtThreadEnd {
        pthread_key_t key = {};
        bool isMade = pthread_key_create(&key, giveShareBack) == 0;
    };
    static AtThreadEnd const atThreadEnd{};
    if (atThreadEnd.isMade)
        pthread_setspecific(atThreadEnd.key, share);
}

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

} // namespace

ThreadShare& takeThreadShare() noexcept
{
    Share* share = findOrMakeShare();
    shareOfThisThread = share;
    keepUntilThreadEnd(share);
    return *share;
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
