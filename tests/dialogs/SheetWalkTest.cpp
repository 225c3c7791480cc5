// A random walk through the settings sheet and a plain model of it: texts by stored name. After every OK and
// Cancel, the chart's settings and the store are compared with the model.
#include "SheetFixture.h"

#include <random>

namespace zantroq::test {
namespace {

using Names = std::vector<std::string>;

// A control whose value is one stored setting, independent of other choices.
struct sPlain
{
    const char* Page;
    int Id;
    const char* Name;
    char Kind; // c color, k check, r radio (on stores the number in Values), n number, e entry of a combo
    Names Values;
};

const char* const Colors = "Colors";
const char* const General = "General";
const char* const Upper = "Upper Studies";

const std::vector<sPlain>& PlainControls()
{
    static const std::vector<sPlain> controls{
        {Colors, 251, "Background Color", 'c', {}},
        {Colors, 258, "Grid Color", 'c', {}},
        {Colors, 252, "PriceLabel Color", 'c', {}},
        {Colors, 253, "PriceData Color", 'c', {}},
        {Colors, 254, "Price Up Candle Color", 'c', {}},
        {Colors, 255, "Price Down Candle Color", 'c', {}},
        {Colors, 256, "Price Bar Color", 'c', {}},
        {General, 308, "Y Axis Orientation", 'e', {"Left", "Right"}},
        {General, 232, "PTS INDEX", 'e', {"30", "60", "90", "120", "240", "480"}},
        {General, 230, "GRID STYLE", 'e', {"Short-Dashed", "Line"}},
        {General, 231, "Candle Price Chart Style", 'e', {"H/L/O/C", "Candlestick"}},
        {General, 233, "GRID", 'k', {}},
        {General, 309, "Price Bar Show/Hide", 'r', {"0"}},
        {General, 310, "Price Bar Show/Hide", 'r', {"1"}},
        {General, 300, "SCROLLING BY ITEMS", 'r', {"0"}},
        {General, 301, "SCROLLING BY ITEMS", 'r', {"1"}},
        {Upper, 277, "MAs SHOW", 'k', {}},
        {Upper, 276, "Moving Average Exponential", 'k', {}},
        {Upper, 239, "Moving Average 1 Select", 'k', {}},
        {Upper, 237, "Moving Average 2 Select", 'k', {}},
        {Upper, 238, "Moving Average 3 Select", 'k', {}},
        {Upper, 255, "Moving Average 1 Points", 'n', {}},
        {Upper, 256, "Moving Average 2 Points", 'n', {}},
        {Upper, 258, "Moving Average 3 Points", 'n', {}},
        {Upper, 280, "Moving Average 1 Color", 'c', {}},
        {Upper, 281, "Moving Average 2 Color", 'c', {}},
        {Upper, 262, "Moving Average 3 Color", 'c', {}},
        {Upper, 272, "BB STUDY SHOW", 'k', {}},
        {Upper, 265, "BB Color", 'c', {}},
        {Upper, 273, "BB AVG PERIOD", 'n', {}}, // may be refused
    };
    return controls;
}

constexpr std::array<const char*, 7> Kinds{"Horizontal",         "Sloping",       "Parallel",
                                           "Andrew's Pitchfork", "Fibonacci Fan", "Fibonacci Retracements",
                                           "Speed Resistance"};
constexpr std::array<const char*, 10> Studies{"Relative Strength Index (RSI)",
                                              "Momentum (MOM)",
                                              "Rate of Change (ROC)",
                                              "On-Balance Volume (OBV)",
                                              "Mov. Av. Conv. Diverg. (MACD)",
                                              "Stochastics (STO)",
                                              "Volume (VOL)",
                                              "Money Flow (MF)",
                                              "Money Flow Index (MFI)",
                                              "Av. Direct. Movm. Index (ADX)"};

class CWalk : public CSheetFixture
{
protected:
    int Pick(int count) { return std::uniform_int_distribution<int>(0, count - 1)(m_random); }

    // The six digits of a color and its stored number.
    std::pair<std::string, std::string> PickColor()
    {
        const int red = Pick(256), green = Pick(256), blue = Pick(256);
        char text[8];
        std::snprintf(text, sizeof text, "#%02x%02x%02x", static_cast<unsigned>(red),
                      static_cast<unsigned>(green), static_cast<unsigned>(blue));
        return {text, std::to_string(red + 256 * green + 65536 * blue)};
    }

    void TouchPlain()
    {
        const auto& all = PlainControls();
        const sPlain& control = all[static_cast<std::size_t>(Pick(static_cast<int>(all.size())))];
        const std::string name = control.Name;
        switch (control.Kind) {
        case 'c': {
            const auto [text, stored] = PickColor();
            Set(control.Page, control.Id, text);
            m_pending[name] = stored;
            break;
        }
        case 'k': {
            const bool on = Pick(2) == 1;
            Set(control.Page, control.Id, on ? "on" : "off");
            m_pending[name] = on ? "1" : "0";
            break;
        }
        case 'r':
            Set(control.Page, control.Id, "on");
            m_pending[name] = control.Values.front();
            break;
        case 'n': {
            const std::string number = std::to_string(Pick(1005)); // 0, and a few above 999
            Set(control.Page, control.Id, number);
            m_pending[name] = number;
            break;
        }
        default: {
            const int entry = Pick(static_cast<int>(control.Values.size()));
            Set(control.Page, control.Id, control.Values[static_cast<std::size_t>(entry)]);
            m_pending[name] = std::to_string(entry);
        }
        }
    }

    void TouchTrend()
    {
        const std::string kind = Kinds[static_cast<std::size_t>(Pick(7))];
        Set(Upper, 334, kind);
        if (Pick(3) == 0)
            return;
        const int width = 1 + Pick(99);
        Set(Upper, 320, std::to_string(width));
        m_pending[kind + " Trendline Width"] = std::to_string(width);
        const auto [text, stored] = PickColor();
        Set(Upper, 337, text);
        m_pending[kind + " Trendline Color"] = stored;
        const bool on = Pick(2) == 1;
        Set(Upper, 338, on ? "on" : "off");
        m_pending[kind + " Trendline Extendable"] = on ? "1" : "0";
    }

    void TouchStudyColor()
    {
        const int study = Pick(10);
        Set(Colors, 344, Studies[static_cast<std::size_t>(study)]);
        const auto [text, stored] = PickColor();
        const bool label = Pick(2) == 1;
        Set(Colors, label ? 259 : 264, text);
        m_pending[(label ? "Study Label Color " : "Study Data Color ") + std::to_string(study)] = stored;
    }

    void TouchPoints()
    {
        static constexpr std::array<const char*, 5> Types{"Tick", "Minute", "Daily", "Weekly", "Monthly"};
        const int type = Pick(5);
        Set("Data", 229, Types[static_cast<std::size_t>(type)]);
        m_pending["RequestDataType"] = std::to_string(type);
        if (Pick(2) == 0)
            return;
        const int points = Pick(3) == 0 ? 2000001 : Pick(2000001);
        Set("Data", 317, std::to_string(points));
        m_points[static_cast<std::size_t>(type)] = points;
    }

    // Levels of a visited study are plain numbers. The periods of ADX, Money Flow and MFI do not change,
    // because their choice determines the stored period.
    void TouchStudy()
    {
        Set("Lower Studies", 328, "8");
        const int level = Pick(200) - 50;
        if (level == -1)
            return;
        Set("Lower Studies", 282, std::to_string(level));
        m_pending["MFI Upper Level"] = std::to_string(level);
    }

    void TouchList()
    {
        IDialogDriver& sheet = Sheet();
        sheet.TurnToPage("Lower Studies");
        const int study = 7 + Pick(3);
        const auto at = std::ranges::find(m_displayed, study);
        if (Pick(2) == 0 || at == m_displayed.end()) {
            EXPECT_EQ(sheet.DoubleClick(328, study), "");
            if (at == m_displayed.end())
                m_displayed.push_back(study);
            return;
        }
        EXPECT_EQ(sheet.DoubleClick(329, static_cast<int>(at - m_displayed.begin())), "");
        m_displayed.erase(at);
    }

    void Step()
    {
        Sheet();
        switch (Pick(9)) {
        case 0:
            return TouchTrend();
        case 1:
            return TouchStudyColor();
        case 2:
            return TouchPoints();
        case 3:
            return TouchStudy();
        case 4:
            return TouchList();
        default:
            return TouchPlain();
        }
    }

    // The result of points out of range, after OK or after the type was changed.
    std::string PointsText() const
    {
        std::string text;
        for (const int points : m_points)
            text += (text.empty() ? "" : ",") + std::to_string(points > 2000000 ? 1000 : points);
        return text;
    }

    bool IsRefused() const
    {
        const int period = std::stoi(m_pending.at("BB AVG PERIOD"));
        return period < 2 || period > 999;
    }

    void Accept()
    {
        const bool save = Pick(2) == 1;
        Sheet();
        if (save)
            Set("Data", 223, "on");
        else
            Set("Data", 223, "off");
        EXPECT_EQ(Sheet().Ok(), "");
        if (IsRefused()) {
            EXPECT_TRUE(IsOpen());
            Set(Upper, 273, "20");
            m_pending["BB AVG PERIOD"] = "20";
            Ok();
        }
        m_pending["RequestDatapoints"] = PointsText();
        for (int& points : m_points)
            points = points > 2000000 ? 1000 : points;
        for (const auto& [name, text] : m_pending) {
            const bool request = name == "RequestDatapoints";
            if (!request || save)
                m_stored[name] = text;
        }
        m_memory = m_pending;
        m_memoryPoints = m_points;
        m_memoryDisplayed = m_displayed;
    }

    void Cancel()
    {
        if (!IsOpen())
            return;
        EXPECT_EQ(Sheet().Cancel(), "");
        m_pending = m_memory;
        m_points = m_memoryPoints;
        m_displayed = m_memoryDisplayed;
    }

    void Compare()
    {
        const Stored stored = AllStored();
        for (const auto& [name, text] : m_memory)
            ASSERT_EQ(Memory(Window().Settings(), name), text) << name;
        for (const auto& [name, text] : m_stored)
            ASSERT_EQ(stored.contains(name) ? stored.at(name) : "(missing)", text) << name;
        const sPaneStack& panes = Window().Settings().Panes;
        const std::vector<int> shown(panes.StudyTypes.begin(), panes.StudyTypes.begin() + panes.StudyCount);
        ASSERT_EQ(shown, m_memoryDisplayed);
        ASSERT_EQ(stored.at("Number of displayed study charts"), std::to_string(m_memoryDisplayed.size()));
    }

    void StartModel()
    {
        for (const sPlain& control : PlainControls())
            m_memory[control.Name] = Memory(Window().Settings(), control.Name);
        for (const char* name : {"RequestDataType", "MFI Upper Level"})
            m_memory[name] = Memory(Window().Settings(), name);
        m_pending = m_stored = m_memory;
    }

    std::mt19937 m_random{20261122};
    Stored m_memory, m_pending, m_stored; // by stored name; of the store only the expected values
    std::array<int, 5> m_points{1000, 1000, 1000, 1000, 1000}, m_memoryPoints = m_points;
    std::vector<int> m_displayed{6}, m_memoryDisplayed{6};
};

} // namespace

TEST_F(CWalk, MemoryAndStoreFollowThousandsOfSteps)
{
    StartModel();
    for (int step = 0; step < 2500; ++step) {
        Step();
        if (HasFailure())
            FAIL() << "at step " << step;
        const int end = Pick(50);
        if (end > 2)
            continue;
        if (end == 0)
            Cancel();
        else
            Accept();
        QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete); // closed sheets
        Compare();
        if (HasFailure())
            FAIL() << "at step " << step;
    }
}

} // namespace zantroq::test
