// Pictures of the whole chart in several sizes and settings, compared with those in tests/golden. The market
// is a slow wave with a trend.
#include "qt/ChartFixture.h"
#include "qt/GoldenPicture.h"
#include "qt/output/ChartPicture.h"

#include <cmath>

namespace zantroq::test {
namespace {

// Font libraries hint texts slightly differently.
constexpr double MostDifferent = 0.01;

class CChartGoldenTest : public CChartFixture
{
protected:
    void SetUp() override
    {
        WriteWave();
        CChartFixture::SetUp();
    }
    void Set(const std::string& name, const std::string& value) { m_key->Write(name, value); }

    // The picture of a new window with the settings so far.
    void Compare(const QSize& size, const QString& file, double scale = 1)
    {
        Set("RequestDataType", "2");
        MakeChart();
        Body().SetClientSize(size);
        m_chart->SetStockSymbol("WAVE");
        ASSERT_TRUE(PumpUntil([this] { return Window().CompleteAndDrawn(); }));
        QImage picture = DrawChartPicture({Window(), View().size(), {}}, scale);
        picture.setDevicePixelRatio(1);
        EXPECT_EQ(picture.size(), size * scale);
        CompareWithGolden(picture.convertToFormat(QImage::Format_RGB32), "chart-" + file, MostDifferent);
    }

private:
    void WriteWave()
    {
        std::ofstream file(m_folder.filePath("WAVE.daily.csv").toStdString());
        file << "date,open,high,low,close,volume,open_interest\n";
        for (int day = 0; day < 300; ++day) {
            const int open = static_cast<int>(5000 + 4 * day + 600 * std::sin(day / 9.0));
            const int close =
                static_cast<int>(5000 + 4 * day + 600 * std::sin((day + 1) / 9.0)) + day % 3 * 20;
            char row[120];
            std::snprintf(row, sizeof row, "2020-%02d-%02d,%d.%02d,%d.%02d,%d.%02d,%d.%02d,%d,0\n",
                          1 + day / 28, 1 + day % 28, open / 100, open % 100,
                          (std::max(open, close) + 45) / 100, (std::max(open, close) + 45) % 100,
                          (std::min(open, close) - 35) / 100, (std::min(open, close) - 35) % 100, close / 100,
                          close % 100, 100'000 + day * 7919 % 90'000);
            file << row;
        }
    }
};

} // namespace

TEST_F(CChartGoldenTest, EachSizeLooksAsKept)
{
    Compare({620, 460}, "620x460.png");
    Compare({900, 700}, "900x700.png");
    Compare({1400, 900}, "1400x900.png");
}

TEST_F(CChartGoldenTest, TheValueAxisOnTheRightLooksAsKept)
{
    Set("Y Axis Orientation", "1");
    Compare({620, 460}, "right-axis.png");
}

TEST_F(CChartGoldenTest, AveragesAndBandsLookAsKept)
{
    Set("MAs SHOW", "1");
    for (const char* const one : {"1", "2", "3"})
        Set(std::string("Moving Average ") + one + " Select", "1");
    Compare({900, 700}, "averages.png");
    Set("MAs SHOW", "0");
    Set("BB STUDY SHOW", "1");
    Compare({900, 700}, "bands.png");
}

TEST_F(CChartGoldenTest, DarkColorsLookAsKept)
{
    Set("Background Color", "1709583"); // 0x1A160F
    Set("PriceData Color", "14211288"); // 0xD8D8D8
    Set("PriceLabel Color", "14211288");
    Set("Grid Color", "5263440");          // 0x505050
    Set("Study Data Color 6", "12092939"); // 0xB8860B
    Set("Study Label Color 6", "14211288");
    Compare({900, 700}, "dark.png");
}

TEST_F(CChartGoldenTest, TwiceTheScaleLooksAsKept)
{
    Compare({620, 460}, "620x460@2x.png", 2);
}

TEST_F(CChartGoldenTest, ElevenPanesLookAsKept)
{
    Set("Number of displayed study charts", "10");
    for (int k = 0; k < 10; ++k) {
        Set("Type of study chart " + std::to_string(k), std::to_string(k));
        Set("Top of chart " + std::to_string(k + 1), std::to_string((k + 1) / 11.0));
    }
    Set("Top of chart 11", "1");
    Compare({1400, 900}, "eleven-panes.png");
}

} // namespace zantroq::test
