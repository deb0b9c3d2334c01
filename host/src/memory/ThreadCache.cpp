#include "memory/ThreadCache.hpp"

#include <algorithm>
#include <mutex>
#include <new>
#include <thread>

#include <pthread.h>

namespace velmara {

constinit thread_local ThreadCache* threadCache = nullptr;

namespace {

constinit thread_local ThreadCache* withheldCache = nullptr;

struct alignas(64) ListedCache : ThreadCache {
    bool isTaken = false;
    ListedCache* next = nullptr;
};

// None is ever freed: things may be counted until the very end of the process. There is always one more than threads
// have taken, so that the next thread can count although there is no memory.
constinit ListedCache firstCaches[16] = {};
constinit ListedCache* caches = nullptr;

/// Needs no memory, and is never destroyed.
std::mutex& cachesMutex()
{
    alignas(std::mutex) static std::byte storage[sizeof(std::mutex)];
    static auto& mutex = *new (storage) std::mutex;
    return mutex;
}

void releaseCache(void* cache)
{
    threadCache = withheldCache = nullptr;
    std::scoped_lock lock(cachesMutex());
    static_cast<ListedCache*>(cache)->isTaken = false;
}

/// Has the cache released when the thread ends. Not by a thread_local object: on Windows these are destroyed after
/// their memory is gone. Where the system refuses, the cache stays taken and the counts stay exact.
void releaseAtThreadEnd(ListedCache* cache)
{
    struct ThreadEndKey {
        pthread_key_t key = {};
        bool isCreated = pthread_key_create(&key, releaseCache) == 0;
    };
    static ThreadEndKey const threadEnd{};
    if (threadEnd.isCreated)
        pthread_setspecific(threadEnd.key, cache);
}

/// Null is allowed.
void addCache(ListedCache* cache)
{
    if (!cache)
        return;
    cache->next = caches;
    caches = cache;
}

ListedCache* findFree()
{
    ListedCache* cache = caches;
    while (cache && cache->isTaken)
        cache = cache->next;
    return cache;
}

/// Null when there is neither a free one nor memory.
ListedCache* takeFree()
{
    std::scoped_lock lock(cachesMutex());
    if (!caches)
        std::ranges::for_each(firstCaches, [](ListedCache& cache) { addCache(&cache); });
    if (!findFree())
        addCache(new (std::nothrow) ListedCache);
    ListedCache* const cache = findFree();
    if (!cache)
        return nullptr;
    cache->isTaken = true;
    if (!findFree())
        addCache(new (std::nothrow) ListedCache);
    return cache;
}

} // namespace

ThreadCache& acquireThreadCache() noexcept
{
    if (withheldCache)
        return *withheldCache;
    ListedCache* cache = takeFree();
    for (; !cache; cache = takeFree())
        std::this_thread::yield(); // until another thread ends, or frees memory
    threadCache = cache;
    releaseAtThreadEnd(cache);
    return *cache;
}

void withholdThreadCache() noexcept
{
    withheldCache = &currentThreadCache();
    threadCache = nullptr;
}

void restoreThreadCache() noexcept
{
    threadCache = &currentThreadCache();
    withheldCache = nullptr;
}

LiveCounts liveCounts()
{
    std::scoped_lock lock(cachesMutex());
    LiveCounts sum;
    for (ListedCache const* cache = caches; cache; cache = cache->next) {
        sum.objects += cache->counts.objects;
        sum.arrays += cache->counts.arrays;
        sum.classInfos += cache->counts.classInfos;
        sum.descriptors += cache->counts.descriptors;
        sum.heldNames += cache->counts.heldNames;
    }
    return sum;
}

} // namespace velmara
