#pragma once

#include <cstdint>
#include <string>

/// How a run ended. The caller writes it down, after everything has been given back.
struct Outcome
{
    /// Nothing to do is no failure.
    bool bFailed = false;
    /// One line for people, without its end.
    std::string text;
};

/// Frees inactive memory by the means that this system and this user have, so that up to bytes are free in
/// the end.
Outcome FreeMemory(std::uint64_t bytes);

/// What FreeMemory() would do now and why, one line or more; touches nothing.
Outcome PlanMemory(std::uint64_t bytes);
