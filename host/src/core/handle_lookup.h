// The object of the world's lists that a handle names. Handles are pointers
// to the objects themselves, but a module may hand back a stale or foreign
// one, so each is looked up in its list before it is used.
#pragma once

#include <memory>
#include <vector>

namespace hullhost {

template <class T, class H> T *FindByHandle(const std::vector<std::unique_ptr<T>> &list, H handle) {
    for (auto &item : list)
        if (item->Handle() == handle)
            return item.get();
    return nullptr;
}

// Removes the object a handle names; false when it names none of the list.
template <class T, class H> bool EraseByHandle(std::vector<std::unique_ptr<T>> &list, H handle) {
    return std::erase_if(list, [handle](auto &item) { return item->Handle() == handle; }) > 0;
}

} // namespace hullhost
