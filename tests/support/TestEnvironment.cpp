// Linked into every test program: no test reads or writes the user's settings, and none needs a display. Runs
// before main; what the caller of the program has set stands.
#include <cstdlib>

namespace {

const bool prepared = [] {
    setenv("QT_QPA_PLATFORM", "offscreen", 0);
    setenv("ZANTROQ_SETTINGS", ZANTROQ_TEST_FOLDER "/no-such-folder/settings.db", 0);
    return true;
}();

} // namespace
