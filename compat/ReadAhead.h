#pragma once

#include <array>
#include <cstddef>

/// The part of standard input that was read before main() began, and whether its end was seen.
struct ReadAhead
{
    std::array<char, 4096> bytes;
    std::size_t nBytes;
    bool bEnd;
};

extern ReadAhead readAhead;
