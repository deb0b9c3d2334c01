#include "basic/NativeStorage.hpp"

#include <functional>

#ifdef _WIN32
#include <windows.h>
#else
#include <dlfcn.h>
#include <pthread.h>
#endif

namespace orbis::factory::basic {

namespace {

#ifdef _WIN32
bool isInModule(void const* address)
{
    HMODULE module = nullptr;
    DWORD const flags = GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS | GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT;
    return GetModuleHandleExA(flags, static_cast<char const*>(address), &module) != 0;
}
#else
bool isInModule(void const* address)
{
    Dl_info info;
    return dladdr(address, &info) != 0;
}
#endif

} // namespace

NativeStorage::NativeStorage()
{
#ifdef _WIN32
    ULONG_PTR low = 0, high = 0;
    GetCurrentThreadStackLimits(&low, &high);
    stackBegin_ = reinterpret_cast<void const*>(low);
    stackEnd_ = reinterpret_cast<void const*>(high);
#else
    pthread_attr_t attributes;
    if (pthread_getattr_np(pthread_self(), &attributes) != 0)
        return; // no memory: unknown
    void* begin = nullptr;
    std::size_t size = 0;
    pthread_attr_getstack(&attributes, &begin, &size);
    pthread_attr_destroy(&attributes);
    stackBegin_ = begin;
    stackEnd_ = static_cast<char const*>(begin) + size;
#endif
}

char const* NativeStorage::placeOf(void const* object) const
{
    std::less<> const isBefore;
    if (!isBefore(object, stackBegin_) && isBefore(object, stackEnd_))
        return "on the stack";
    return isInModule(object) ? "in static storage" : nullptr;
}

} // namespace orbis::factory::basic
