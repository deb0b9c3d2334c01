#include "memory/ThreadShare.hpp"

#include <algorithm>
#include <cstddef>
#include <mutex>
#include <new>
#include <thread>

#include <pthread.h>

namespace velmara {

#if defined(_WIN32)
constinit thread_local ThreadShare* shareOfThisThread = nullptr;
#else
constinit thread_local ThreadShare* shareOfThisThread [[gnu::tls_model("initial-exec")]] = nullptr;
#endif

namespace {

struct alignas(64) Share : ThreadShare {
    bool isTaken = false;
    Share* next = nullptr;
};

// None is ever freed: things may be counted until the very end of the process. There is always one more than threads
// have taken, so that the next thread can count although there is no memory.
constinit Share firstShares[16] = {};
constinit Share* shares = nullptr;

/// Needs no memory, and is never destroyed.
std::mutex& sharesMutex()
{
    alignas(std::mutex) static std::byte place[sizeof(std::mutex)];
    static auto& mutex = *new (place) std::mutex;
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

void addShare(Share* share)
{
    if (!share)
        return;
    share->next = shares;
    shares = share;
}

Share* findFree()
{
    Share* share = shares;
    while (share && share->isTaken)
        share = share->next;
    return share;
}

/// Null when there is neither a free one nor memory.
Share* takeFree()
{
    std::scoped_lock lock(sharesMutex());
    if (!shares)
        std::ranges::for_each(firstShares, [](Share& share) { addShare(&share); });
    if (!findFree())
        addShare(new (std::nothrow) Share);
    Share* const share = findFree();
    if (!share)
        return nullptr;
    share->isTaken = true;
    if (!findFree())
        addShare(new (std::nothrow) Share);
    return share;
}

} // namespace

ThreadShare& takeThreadShare() noexcept
{
    Share* share = takeFree();
    for (; !share; share = takeFree())
        std::this_thread::yield(); // until another thread ends, or gives memory back
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
