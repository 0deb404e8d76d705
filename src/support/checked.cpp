#include "support/checked.h"

#include <cstdio>
#include <cstdlib>

namespace vantrix {

void fatalError(const char* message) {
    std::fprintf(stderr, "vantrix: %s\n", message);
    std::abort();
}

std::uint64_t checkedAdd(std::uint64_t a, std::uint64_t b, const char* what) {
    std::uint64_t sum = 0;
    if (__builtin_add_overflow(a, b, &sum))
        fatalError(what);
    return sum;
}

std::uint64_t checkedMultiply(std::uint64_t a, std::uint64_t b, const char* what) {
    std::uint64_t product = 0;
    if (__builtin_mul_overflow(a, b, &product))
        fatalError(what);
    return product;
}

} // namespace vantrix
