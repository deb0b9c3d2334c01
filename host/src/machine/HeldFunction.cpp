#include "machine/HeldFunction.hpp"

#include "errors/hostError.hpp"
#include "machine/Machine.hpp"

#include <utility>

namespace velmara {

void HeldFunction::release() noexcept
{
    if (references_.fetch_sub(1, std::memory_order_acq_rel) == 1)
        list_->release(*this, true);
}

void HeldFunction::releaseAnywhere() noexcept
{
    if (references_.fetch_sub(1, std::memory_order_acq_rel) == 1)
        list_->release(*this, false);
}

Retirable& HeldFunction::requireCallable() const
{
    if (list_->isEnding_)
        throwHostError("VELMARA:function", "ended");
    Machine const* const current = Machine::current();
    if (current != &list_->machine_)
        throwHostError("VELMARA:function", current ? "otherVirtualMachine" : "notCurrent");
    return *callable_;
}

HeldFunction& FunctionList::add(std::unique_ptr<Retirable> callable)
{
    if (isEnding_)
        throwHostError("VELMARA:hvm", "ending");
    destroyAbandoned();
    auto* const added = new HeldFunction(shared_from_this(), std::move(callable));
    std::scoped_lock const lock(mutex_);
    added->next_ = first_;
    if (first_)
        first_->previous_ = added;
    first_ = added;
    added->isListed_ = true;
    return *added;
}

void FunctionList::unlist(HeldFunction& function) noexcept
{
    if (!function.isListed_)
        return;
    (function.previous_ ? function.previous_->next_ : first_) = function.next_;
    if (function.next_)
        function.next_->previous_ = function.previous_;
    function.previous_ = function.next_ = nullptr;
    function.isListed_ = false;
}

void FunctionList::release(HeldFunction& function, bool isOnThread) noexcept
{
    std::shared_ptr<FunctionList> const self = function.list_; // which may be the last one to hold it
    bool hasCallable = false;
    {
        std::scoped_lock const lock(mutex_);
        hasCallable = function.isListed_;
        if (hasCallable && !isOnThread && Machine::current() != &machine_) {
            function.isAbandoned_ = true;
            hasAbandoned_ = true;
            return;
        }
        unlist(function);
    }
    if (hasCallable) {
        Machine::Entry const entry(machine_);
        function.callable_.reset();
    }
    delete &function;
}

void FunctionList::destroyAbandoned() noexcept
{
    while (hasAbandoned_.exchange(false)) {
        HeldFunction* abandoned = nullptr;
        {
            std::scoped_lock const lock(mutex_);
            for (abandoned = first_; abandoned && !abandoned->isAbandoned_;)
                abandoned = abandoned->next_;
            if (!abandoned)
                return;
            unlist(*abandoned);
            hasAbandoned_ = true;
        }
        delete abandoned;
    }
}

void FunctionList::end() noexcept
{
    isEnding_ = true;
    for (;;) {
        std::unique_ptr<Retirable> callable; // destroyed without the lock: that runs foreign code
        std::scoped_lock const lock(mutex_);
        HeldFunction* const function = first_;
        if (!function)
            return;
        unlist(*function);
        callable = std::move(function->callable_);
        if (function->isAbandoned_)
            delete function;
    }
}

} // namespace velmara
