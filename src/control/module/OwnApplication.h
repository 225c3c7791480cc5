// The QApplication that controls need: the host's, or one that the module creates in a process without one.
// One thread, see zantroq/module.h.
#pragma once

#include <cstdint>

namespace zantroq {

// Creates the module's application if the process has none. Returns ZANTROQ_OK, ZANTROQ_NO_DISPLAY or
// ZANTROQ_WRONG_THREAD.
std::int32_t NeedApplication();

// False if there is an application that belongs to another thread.
bool IsApplicationThread();

// Handles events; waits up to this time for the first of them. Does nothing without an application.
void PumpApplication(int milliseconds);

// Ends the application if it is the module's. No control may exist.
void EndOwnApplication();

} // namespace zantroq
