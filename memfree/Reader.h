#pragma once

/// Whether standard output is a pipe whose reader has gone: the program that asked has been killed, say.
bool IsReaderGone();
