// Counts every heap allocation of the test program that includes it: include
// it in one file per program. Modules make their vessels with the nothrow
// form, which takes its memory from malloc too, so that the replaced delete
// frees what it was given.
#pragma once

#include <atomic>
#include <cstdlib>
#include <new>

inline std::atomic<long> allocations{0};

void *operator new(std::size_t size) {
    ++allocations;
    if (void *p = std::malloc(size ? size : 1))
        return p;
    throw std::bad_alloc();
}
void *operator new(std::size_t size, const std::nothrow_t &) noexcept {
    ++allocations;
    return std::malloc(size ? size : 1);
}
// GCC can't see through inlined string code that the memory came from malloc.
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wmismatched-new-delete"
void operator delete(void *p) noexcept { std::free(p); }
void operator delete(void *p, std::size_t) noexcept { std::free(p); }
#pragma GCC diagnostic pop
