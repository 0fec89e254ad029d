// What the compiler and the C++ library's headers call by themselves, for code that runs before the C library
// does: its own versions, chosen for the processor, cannot be called until it has begun. Texts of a few KiB
// need no better.
#include <cstddef>

extern "C" {

void *memcpy(void *to, const void *from, std::size_t n)
{
    for (std::size_t at = 0; at < n; ++at) {
        static_cast<char *>(to)[at] = static_cast<const char *>(from)[at];
    }
    return to;
}

void *memmove(void *to, const void *from, std::size_t n)
{
    if (to <= from) {
        return memcpy(to, from, n);
    }
    for (std::size_t at = n; at > 0; --at) {
        static_cast<char *>(to)[at - 1] = static_cast<const char *>(from)[at - 1];
    }
    return to;
}

void *memset(void *to, int value, std::size_t n)
{
    for (std::size_t at = 0; at < n; ++at) {
        static_cast<char *>(to)[at] = static_cast<char>(value);
    }
    return to;
}

int memcmp(const void *left, const void *right, std::size_t n)
{
    const auto *l = static_cast<const unsigned char *>(left);
    const auto *r = static_cast<const unsigned char *>(right);
    for (std::size_t at = 0; at < n; ++at) {
        if (l[at] != r[at]) {
            return l[at] - r[at];
        }
    }
    return 0;
}

/// Clang's choice where only equality matters; in the C library it is one with memcmp.
int bcmp(const void *left, const void *right, std::size_t n)
{
    return memcmp(left, right, n);
}

void *memchr(const void *in, int value, std::size_t n)
{
    const auto *bytes = static_cast<const unsigned char *>(in);
    for (std::size_t at = 0; at < n; ++at) {
        if (bytes[at] == static_cast<unsigned char>(value)) {
            return const_cast<unsigned char *>(bytes + at);
        }
    }
    return nullptr;
}

std::size_t strlen(const char *text)
{
    std::size_t n = 0;
    while (text[n] != '\0') {
        ++n;
    }
    return n;
}
}
