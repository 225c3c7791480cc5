// Printed pages as a PDF reader shows them: pdftoppm (package poppler-utils) renders the file, and the result
// is compared with the pictures in tests/golden.
#include "printing/PrintedChart.h"
#include "qt/GoldenPicture.h"
#include "qt/output/ChartPrinter.h"
#include "support/PaneScenes.h"
#include "window/ChartWindowFixture.h"

#include <QAbstractButton>
#include <QApplication>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QDir>
#include <QFile>
#include <QLineEdit>
#include <QMessageBox>
#include <QPrintDialog>
#include <QProcess>
#include <QPushButton>
#include <QSpinBox>
#include <QTemporaryDir>
#include <QTimer>

#include <gtest/gtest.h>

namespace zantroq {
namespace {

const sPrintFonts Fonts{"DejaVu Serif", "DejaVu Sans"};
constexpr int Dpi = 72;                 // one picture pixel is a point
constexpr double Margin = 28;           // 10 mm
constexpr double MostDifferent = 0.002; // a page is mostly white
constexpr ColorValue Night = 0x201810, Chalk = 0x909090;

sTIME_W_MILLISECONDS Moment()
{
    return MakeTime({2024, 3, 1, 14, 5, 9});
}

// A dark chart of daily bars with two studies in a window of this size.
struct sDarkChart
{
    sDarkChart(int width, int height, bool minimised = false)
    {
        Fixture.Key->Write("RequestDataType", "2");
        Fixture.Key->Write("Number of displayed study charts", "2");
        Fixture.Key->Write("Type of study chart 0", "6");
        Fixture.Key->Write("Type of study chart 1", "0");
        Fixture.Key->Write("Top of chart 1", "0.6");
        Fixture.Key->Write("Top of chart 2", "0.8");
        Fixture.Key->Write("Top of chart 3", "1");
        if (minimised)
            Fixture.Key->Write("Chart 1 Minimized", "1");
        Fixture.Key->Write("Background Color", std::to_string(Night));
        Fixture.Key->Write("Price Label Color", std::to_string(Chalk));
        for (int study = 0; study < 10; ++study)
            Fixture.Key->Write("Study Label Color " + std::to_string(study), std::to_string(Chalk));
        Fixture.Key->Write("Candle Price Chart Style", "1");
        Fixture.Key->Write("GRID", "1");
        Fixture.Key->Write("Show Price Bar", "1");
        Fixture.Desktop.Host.Width = width;
        Fixture.Desktop.Host.Height = height;
        Fixture.Start();
        Fixture.Type("MSFT");
        Fixture.Window->OnCommand(CommandDrawChart);
        const test::sBars bars = test::WanderingBars(90);
        for (std::size_t i = 0; i < bars.Open.size(); ++i) {
            sHIST_POINT point;
            point.Time.Time = 45200.0 + static_cast<double>(i);
            point.Open = bars.Open[i];
            point.High = bars.High[i];
            point.Low = bars.Low[i];
            point.Last = point.Close = bars.Close[i];
            point.LastSize = 1000 + static_cast<int>(i % 7) * 300;
            point.TotalVolume = point.LastSize;
            Fixture.Window->Series()->AppendPoint(point);
        }
        Fixture.Feed.Sent->SetComplete(true);
        Fixture.Tick();
    }

    CChartDlg& Window() { return *Fixture.Window; }

    test::sChartFixture Fixture{false};
};

struct sPrinted
{
    explicit sPrinted(CChartDlg& window, const sPdfPaper& paper = {})
    {
        CPrintedChart chart(window);
        Wrong = CChartPrinter(chart, Moment, Fonts).PrintToPdf(Path(), paper);
        if (!Wrong.isEmpty())
            return;
        QProcess render;
        render.start("pdftoppm", {"-png", "-r", QString::number(Dpi), Path(), Folder.filePath("page")});
        if (!render.waitForFinished() || render.exitCode() != 0)
            Wrong = "pdftoppm of poppler-utils: " + render.errorString();
        const QDir folder(Folder.path());
        for (const QString& page : folder.entryList({"page*.png"}, QDir::Files, QDir::Name))
            Pages.push_back(QImage(folder.filePath(page)).convertToFormat(QImage::Format_RGB32));
    }
    QString Path() const { return Folder.filePath("chart.pdf"); }

    QTemporaryDir Folder;
    QString Wrong;
    std::vector<QImage> Pages;
};

sPdfPaper Landscape()
{
    sPdfPaper paper;
    paper.Layout.setOrientation(QPageLayout::Landscape);
    return paper;
}

// The columns of dark pixels in the rows given: first and last.
std::pair<int, int> InkColumns(const QImage& page, int top, int bottom)
{
    int first = page.width(), last = -1;
    for (int y = top; y < bottom; ++y)
        for (int x = 0; x < page.width(); ++x)
            if (qGray(page.pixel(x, y)) < 128) {
                first = std::min(first, x);
                last = std::max(last, x);
            }
    return {first, last};
}

// Share of white pixels.
double Whiteness(const QImage& page)
{
    int white = 0;
    for (int y = 0; y < page.height(); ++y)
        for (int x = 0; x < page.width(); ++x)
            white += page.pixel(x, y) == qRgb(255, 255, 255);
    return white / double(page.width() * page.height());
}

TEST(PrintedPage, AnUprightPageLooksAsKept)
{
    sDarkChart chart(620, 460);
    const sPrinted printed(chart.Window());
    ASSERT_EQ(printed.Wrong.toStdString(), "");
    ASSERT_EQ(printed.Pages.size(), 1u);
    test::CompareWithGolden(printed.Pages[0], "print-portrait.png", MostDifferent);
}

TEST(PrintedPage, ALandscapePageLooksAsKept)
{
    sDarkChart chart(900, 700);
    const sPrinted printed(chart.Window(), Landscape());
    ASSERT_EQ(printed.Wrong.toStdString(), "");
    ASSERT_EQ(printed.Pages.size(), 1u);
    test::CompareWithGolden(printed.Pages[0], "print-landscape.png", MostDifferent);
}

TEST(PrintedPage, TheHeadingCanBeReadOverALongTitle)
{
    sDarkChart chart(500, 700);
    chart.Window().OnChartMouseMove(FirstPaneControl, MouseNone, 0, 250, 150);
    ASSERT_NE(chart.Window().SelectedPoint(), NoPoint);
    const sPrinted printed(chart.Window(), Landscape());
    ASSERT_EQ(printed.Pages.size(), 1u) << printed.Wrong.toStdString();
    test::CompareWithGolden(printed.Pages[0], "print-heading-over-title.png", MostDifferent);
}

TEST(PrintedPage, ThreeCopiesAreThreeTimesTheSamePage)
{
    sDarkChart chart(620, 460);
    sPdfPaper paper;
    paper.Copies = 3;
    const sPrinted printed(chart.Window(), paper);
    ASSERT_EQ(printed.Wrong.toStdString(), "");
    ASSERT_EQ(printed.Pages.size(), 3u);
    for (const QImage& page : printed.Pages)
        test::CompareWithGolden(page, "print-portrait.png", MostDifferent);
}

TEST(PrintedPage, AMinimisedStudyKeepsItsTitleOnPaper)
{
    sDarkChart chart(900, 700, true);
    const sPrinted printed(chart.Window());
    ASSERT_EQ(printed.Wrong.toStdString(), "");
    ASSERT_EQ(printed.Pages.size(), 1u);
    test::CompareWithGolden(printed.Pages[0], "print-minimised.png", MostDifferent);
}

TEST(PrintedPage, ADarkChartIsWhiteOnPaperAndStaysDarkOnScreen)
{
    sDarkChart chart(620, 460);
    const sPrinted printed(chart.Window());
    ASSERT_EQ(printed.Pages.size(), 1u) << printed.Wrong.toStdString();
    EXPECT_GT(Whiteness(printed.Pages[0]), 0.85);
    for (int pane = 0; pane < 3; ++pane)
        EXPECT_EQ(chart.Window().Pane(pane).PaneInterior().Background(), Night);
}

TEST(PrintedPage, TheHeadingIsCentredOnUprightAndLandscapePages)
{
    sDarkChart flat(620, 300);
    for (const sPdfPaper& paper : {sPdfPaper(), Landscape()}) {
        const sPrinted printed(flat.Window(), paper);
        ASSERT_EQ(printed.Pages.size(), 1u) << printed.Wrong.toStdString();
        const QImage& page = printed.Pages[0];
        const auto [first, last] = InkColumns(page, int(Margin), int(Margin) + 12);
        ASSERT_LT(first, last);
        EXPECT_NEAR((first + last) / 2.0, page.width() / 2.0, 2);
        EXPECT_GT(last - first, 150);
        EXPECT_LT(last - first, 350);
    }
}

TEST(PrintedPage, TheStatusGoesFromLoadingToReadyAndDrawChartIsEnabledAgain)
{
    sDarkChart chart(620, 460);
    chart.Fixture.Desktop.Status.Said.clear();
    const sPrinted printed(chart.Window());
    EXPECT_EQ(chart.Fixture.Desktop.Status.Said,
              (std::vector<std::string>{"Loading...", "Print ...", "Ready"}));
    EXPECT_TRUE(chart.Fixture.DrawEnabled());
}

TEST(PrintedPage, AChartWithoutASymbolPrintsItsEmptyPanes)
{
    test::sChartFixture empty;
    const sPrinted printed(*empty.Window);
    EXPECT_EQ(printed.Wrong.toStdString(), "");
    EXPECT_EQ(printed.Pages.size(), 1u);
}

TEST(PrintedPage, APlaceThatCannotBeWrittenIsNamedAndNothingElseHappens)
{
    sDarkChart chart(620, 460);
    CPrintedChart window(chart.Window());
    const QString wrong = CChartPrinter(window, Moment, Fonts).PrintToPdf("/no-such-folder/chart.pdf");
    EXPECT_TRUE(wrong.startsWith("/no-such-folder/chart.pdf: cannot be written (")) << wrong.toStdString();
}

TEST(PrintedPage, ACancelledDialogOnlyReturnsTheFocus)
{
    sDarkChart chart(620, 460);
    chart.Fixture.Desktop.Status.Said.clear();
    QWidget window;
    QLineEdit box(&window);
    window.show();
    QApplication::setActiveWindow(&window);
    box.setFocus();
    bool asked = false;
    QTimer close;
    close.setInterval(20);
    QObject::connect(&close, &QTimer::timeout, &window, [&] {
        if (auto* const dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget())) {
            asked = true;
            dialog->reject();
        }
    });
    close.start();
    PrintWithDialog(chart.Window(), &window);
    EXPECT_TRUE(asked);
    EXPECT_TRUE(chart.Fixture.Desktop.Status.Said.empty());
    EXPECT_EQ(window.focusWidget(), &box);
}

// The dialog's fields are found by their type and text, as a person finds them.
TEST(PrintedPage, TheDialogPrintsAsManyCopiesAsAskedIntoTheFileChosenThere)
{
    sDarkChart chart(620, 460);
    chart.Fixture.Desktop.Status.Said.clear();
    const QTemporaryDir folder;
    const QString path = folder.filePath("chosen.pdf");
    QWidget window;
    QTimer answer;
    answer.setInterval(20);
    int copiesAtFirst = 0;
    QObject::connect(&answer, &QTimer::timeout, &window, [&] {
        auto* const dialog = qobject_cast<QPrintDialog*>(QApplication::activeModalWidget());
        if (dialog == nullptr)
            return;
        auto* const printers = dialog->findChild<QComboBox*>("printers");
        auto* const file = dialog->findChild<QLineEdit*>("filename");
        auto* const copies = dialog->findChild<QSpinBox*>("copies");
        ASSERT_NE(printers, nullptr);
        ASSERT_NE(file, nullptr);
        ASSERT_NE(copies, nullptr);
        printers->setCurrentIndex(printers->count() - 1); // print to a file
        file->setText(path);
        copiesAtFirst = copies->value();
        copies->setEnabled(true);
        copies->setValue(3);
        dialog->accept();
    });
    answer.start();
    PrintWithDialog(chart.Window(), &window);
    EXPECT_EQ(copiesAtFirst, 1);
    EXPECT_EQ(chart.Fixture.Desktop.Status.Said,
              (std::vector<std::string>{"Loading...", "Print ...", "Ready"}));
    QFile written(path);
    ASSERT_TRUE(written.open(QIODevice::ReadOnly));
    EXPECT_EQ(written.readAll().count("/Type /Page\n"), 3);
}

// Fills in the print dialog like a person and answers its own message boxes; returns their texts.
QStringList ChooseFile(CChartDlg& chart, const QString& path)
{
    QStringList said;
    QWidget window;
    QTimer answer;
    answer.setInterval(20);
    bool filled = false;
    QObject::connect(&answer, &QTimer::timeout, &window, [&] {
        QWidget* const modal = QApplication::activeModalWidget();
        if (auto* const box = qobject_cast<QMessageBox*>(modal)) {
            said << box->text();
            QAbstractButton* const yes = box->button(QMessageBox::Yes);
            (yes != nullptr ? yes : box->buttons().front())->click();
        } else if (auto* const dialog = qobject_cast<QPrintDialog*>(modal)) {
            if (std::exchange(filled, true))
                return dialog->reject(); // it was not satisfied
            auto* const printers = dialog->findChild<QComboBox*>("printers");
            printers->setCurrentIndex(printers->count() - 1); // print to a file
            dialog->findChild<QLineEdit*>("filename")->setText(path);
            // Later ticks answer the dialog's own boxes, so this tick must end first.
            QMetaObject::invokeMethod(dialog->findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Ok),
                                      "click", Qt::QueuedConnection);
        }
    });
    answer.start();
    PrintWithDialog(chart, &window);
    return said;
}

TEST(PrintedPage, AFileThatCannotBeWrittenAfterTheDialogIsTold)
{
    sDarkChart chart(620, 460);
    const QTemporaryDir folder;
    ASSERT_TRUE(QDir(folder.path()).mkdir("gone"));
    // The folder disappears while the page is printed.
    chart.Fixture.Desktop.Status.OnSaid = [&](const std::string& text) {
        if (text == "Print ...")
            QDir(folder.filePath("gone")).removeRecursively();
    };
    const QString path = folder.filePath("gone/page.pdf");
    EXPECT_EQ(ChooseFile(chart.Window(), path), QStringList());
    ASSERT_EQ(chart.Window().AskedBoxes().size(), 1u);
    const sAskedBox& box = chart.Window().AskedBoxes().front();
    EXPECT_EQ(box.Caption, "Print");
    EXPECT_EQ(box.Text,
              path.toStdString() + ": cannot be written (no such file or directory); choose another place");
    EXPECT_EQ(chart.Fixture.Desktop.Box.Icon, BoxIcon::Error);
    EXPECT_EQ(chart.Fixture.Status(), "Ready");
    EXPECT_TRUE(chart.Fixture.DrawEnabled());
}

TEST(PrintedPage, AFolderThatDoesNotExistIsToldInTheDialog)
{
    sDarkChart chart(620, 460);
    const QStringList said = ChooseFile(chart.Window(), "/no-such-folder/chart.pdf");
    ASSERT_EQ(said.size(), 1);
    EXPECT_TRUE(said[0].contains("/no-such-folder/chart.pdf")) << said[0].toStdString();
    EXPECT_TRUE(chart.Window().AskedBoxes().empty()) << "said once";
}

TEST(PrintedPage, AFileThatIsAgreedToBeReplacedHoldsTheNewPage)
{
    sDarkChart chart(620, 460);
    const QTemporaryDir folder;
    const QString path = folder.filePath("page.pdf");
    {
        QFile old(path);
        ASSERT_TRUE(old.open(QIODevice::WriteOnly));
        old.write("old");
    }
    ChooseFile(chart.Window(), path);
    QFile written(path);
    ASSERT_TRUE(written.open(QIODevice::ReadOnly));
    EXPECT_TRUE(written.readAll().startsWith("%PDF-"));
    EXPECT_TRUE(chart.Window().AskedBoxes().empty());
    EXPECT_EQ(QDir(folder.path()).entryList(QDir::Files), QStringList("page.pdf"));
}

} // namespace
} // namespace zantroq
