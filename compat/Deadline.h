#pragma once

#include <chrono>

using Deadline = std::chrono::steady_clock::time_point;
