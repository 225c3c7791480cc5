// The fonts of the golden pictures: those of two packages, and no other installed font.
#include "qt/output/PageJob.h"
#include "qt/paint/PaneText.h"

#include <QFontDatabase>
#include <QFontInfo>

#include <gtest/gtest.h>

#include <algorithm>
#include <string>

namespace zantroq::test {

TEST(TestFonts, OnlyTheFontsOfTheListAreSeen)
{
    // The last three are aliases for the best match.
    EXPECT_EQ(QFontDatabase::families().join(", ").toStdString(),
              "DejaVu Sans, DejaVu Serif, Liberation Mono, Liberation Sans, Liberation Serif, "
              "Monospace, Sans Serif, Serif")
        << "these are the files of fonts-liberation and fonts-dejavu-core that tests/support/fonts.conf "
           "names";
}

TEST(TestFonts, PanesAreWrittenInTheFontTheyAskForFirst)
{
    const QFont font = CPaneText().Font();
    EXPECT_EQ(QFontInfo(font).family(), font.families().value(0));
}

TEST(PaneText, KeepsThePicturesOf256TextsAtMost)
{
    CPaneText text;
    std::size_t most = 0;
    for (int i = 0; i < 1000; ++i) {
        text.Advance(std::to_string(i));
        most = std::max(most, text.Kept());
    }
    EXPECT_EQ(most, 256U);
}

TEST(TestFonts, PrintedHeadingsAreWrittenInLiberationSerif)
{
    EXPECT_EQ(QFontInfo(CHeadingFont({}).Font()).family(), "Liberation Serif");
}

} // namespace zantroq::test
