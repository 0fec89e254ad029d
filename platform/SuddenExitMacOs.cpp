#include "platform/SuddenExit.h"

// There is no display server here whose end ends the program.
void CallBeforeSuddenExit(QObject *, const std::function<void()> &) {}
