// docs/embedding.md shows the files of examples/ unchanged.
#include <QDirIterator>
#include <QFile>
#include <QRegularExpression>
#include <QSet>

#include <gtest/gtest.h>

namespace zantroq::test {
namespace {

QString TextOf(const QString& path)
{
    QFile file(QString(ZANTROQ_SOURCE_FOLDER "/") + path);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

} // namespace

TEST(EmbeddingDocument, ItsListingsAreTheExamplesLetterForLetter)
{
    const QString document = TextOf("docs/embedding.md");
    const QRegularExpression block("^```([^\\n]*)\\n(.*?)^```$",
                                   QRegularExpression::MultilineOption |
                                       QRegularExpression::DotMatchesEverythingOption);
    int listings = 0;
    for (auto found = block.globalMatch(document); found.hasNext(); ++listings) {
        const auto match = found.next();
        const QString path = match.captured(1).section(' ', 1);
        ASSERT_TRUE(path.startsWith("examples/"))
            << "a listing without a file: " << match.captured(1).toStdString();
        EXPECT_EQ(match.captured(2).toStdString(), TextOf(path).toStdString()) << path.toStdString();
    }
    EXPECT_GE(listings, 6);
}

TEST(EmbeddingDocument, ShowsTheSourcesOfEveryExample)
{
    const QString document = TextOf("docs/embedding.md");
    for (QDirIterator it(ZANTROQ_SOURCE_FOLDER "/examples",
                         {"*.cpp", "*.c", "*.py", "CMakeLists.txt", "*.sh"}, QDir::Files,
                         QDirIterator::Subdirectories);
         it.hasNext();) {
        const QString path = QDir(ZANTROQ_SOURCE_FOLDER).relativeFilePath(it.next());
        EXPECT_TRUE(document.contains(' ' + path + '\n')) << path.toStdString() << " is not shown";
    }
}

} // namespace zantroq::test
