#pragma once

/// Keeps the heap from growing over the days. To be called before any thread is started.
void KeepHeapSteady();
