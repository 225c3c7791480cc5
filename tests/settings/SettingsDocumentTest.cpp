#include "settings/SettingsDocument.h"

#include "TemporaryFolder.h"

#include <gtest/gtest.h>

namespace zantroq {

TEST(SettingsDocument, TheFileIsWhatTheTableGives)
{
    EXPECT_TRUE(test::Contents(SETTINGS_DOCUMENT) == SettingsDocument())
        << "docs/settings.md is not what the table gives; build the target settings-doc";
}

} // namespace zantroq
