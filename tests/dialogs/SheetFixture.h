// A chart control with a settings sheet, settings in memory and a scripted feed.
#pragma once

#include "control/ChartBody.h"
#include "settings/SettingText.h"
#include "settings/SettingsLoader.h"
#include "settings/SettingsWriter.h"
#include "support/ScriptedFeed.h"
#include "support/UnreliableKey.h"
#include "window/ChartDlg.h"

#include <QApplication>
#include <QTest>

#include <gtest/gtest.h>

#include <deque>
#include <map>

namespace zantroq::test {

struct sSheetBox : IMessageBox
{
    std::vector<std::string> Said; // caption: text
    std::deque<BoxAnswer> Answers;
    BoxAnswer Ask(const std::string& text, const std::string& caption, BoxButtons buttons, BoxIcon) override
    {
        Said.push_back(caption + ": " + text);
        if (Answers.empty())
            return buttons == BoxButtons::Ok ? BoxAnswer::Ok : BoxAnswer::No;
        const BoxAnswer answer = Answers.front();
        Answers.pop_front();
        return answer;
    }
};

using Stored = std::map<std::string, std::string>;

class CSheetFixture : public testing::Test
{
protected:
    void SetUp() override
    {
        m_feed.Lookup.SetResponder([](std::string_view command) {
            if (command.size() < 4 || command[0] != 'H' || command[3] != ',')
                return std::string();
            const std::string id(command.substr(command.rfind(',') + 1));
            std::string reply;
            for (int k = 0; k < 200; ++k)
                reply += id + ",2014-01-02 09:30:01.250," + std::to_string(100 + k % 7) + ",1,2,1,2,3,C\r\n";
            return reply + id + ",!ENDMSG!,\r\n";
        });
        MakeChart();
    }

    void MakeChart()
    {
        m_chart.reset();
        sChartCtrlSetup setup;
        setup.ChartKey = m_key;
        setup.FeedKey = m_feed.Key();
        setup.Box = &m_box;
        setup.Popups = false;
        m_chart = CChartBody::MakeControl(nullptr, setup);
        CChartBody::Of(*m_chart).SetClientSize({700, 500});
    }

    CChartDlg& Window() { return CChartBody::Of(*m_chart).Window(); }
    IDialogDriver& Sheet()
    {
        if (Window().OpenDialog() == nullptr)
            Window().OnCommand(CommandSettings);
        return *Window().OpenDialog();
    }
    bool IsOpen() { return Window().OpenDialog() != nullptr; }
    void Set(const char* page, int id, const std::string& value)
    {
        EXPECT_EQ(Sheet().TurnToPage(page), "");
        EXPECT_EQ(Sheet().Set(id, value), "") << page;
    }
    void Ok()
    {
        EXPECT_EQ(Sheet().Ok(), "");
        EXPECT_FALSE(IsOpen());
    }
    sControlState State(int id) { return Sheet().Describe().Controls.at(id); }

    Stored AllStored()
    {
        Stored all;
        for (const auto& [name, value] : m_key->Memory->List())
            if (const auto* text = std::get_if<std::string>(&value))
                all[name] = *text;
        return all;
    }
    // The names of values that differ, sorted.
    static std::vector<std::string> Differences(const Stored& before, const Stored& after)
    {
        std::vector<std::string> names;
        for (const auto& [name, value] : after)
            if (!before.contains(name) || before.at(name) != value)
                names.push_back(name);
        for (const auto& [name, value] : before)
            if (!after.contains(name))
                names.push_back(name);
        return names;
    }
    static std::string Memory(const sChartSettings& settings, const std::string& name)
    {
        return SettingText(settings, *FindSetting(name));
    }

    int Requests() const
    {
        int count = 0;
        const std::string received = m_feed.Lookup.Received();
        for (std::size_t at = received.find("S,SET PROTOCOL,5.0\n"); at != std::string::npos;
             at = received.find("S,SET PROTOCOL,5.0\n", at + 1))
            ++count;
        return count;
    }
    bool AwaitRequests(int count)
    {
        return AwaitTrue([&] { return Requests() >= count; });
    }
    bool AwaitDrawn()
    {
        return AwaitTrue([this] {
            QTest::qWait(1);
            Window().OnTimer(ProgressTimer);
            return Window().CompleteAndDrawn();
        });
    }

    std::shared_ptr<sUnreliableKey> m_key = std::make_shared<sUnreliableKey>();
    sSheetBox m_box;
    CScriptedFeed m_feed;
    std::unique_ptr<CChartCtrl> m_chart;
};

} // namespace zantroq::test
