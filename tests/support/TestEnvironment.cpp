// Linked into every test program: no test reads or writes the user's settings or needs a display, and all see
// the same fonts, sizes and colors on every desktop. Runs before main; programs that a test starts inherit
// it.
#include <cstdlib>
#include <initializer_list>

namespace {

const bool prepared = [] {
    setenv("QT_QPA_PLATFORM", "offscreen", 0);
    setenv("ZANTROQ_SETTINGS", ZANTROQ_TEST_FOLDER "/no-such-folder/settings.db", 0);
    setenv("FONTCONFIG_FILE", ZANTROQ_TEST_FONTS, 1);
    for (const char* name :
         {"FONTCONFIG_PATH", "FONTCONFIG_SYSROOT", "QT_AUTO_SCREEN_SCALE_FACTOR", "QT_ENABLE_HIGHDPI_SCALING",
          "QT_FONT_DPI", "QT_QPA_PLATFORMTHEME", "QT_SCALE_FACTOR", "QT_SCREEN_SCALE_FACTORS",
          "QT_STYLE_OVERRIDE", "ZANTROQ_LOOK"})
        unsetenv(name);
    return true;
}();

} // namespace
