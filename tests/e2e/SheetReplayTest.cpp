// The settings sheet in scripts, with the real program and a settings file.
#include "ScriptedChart.h"

#include <QDateTime>
#include <QFileInfo>

namespace zantroq::test {
namespace {

class CSheetReplay : public CScriptedChart
{
protected:
    void SetUp() override
    {
        CScriptedChart::SetUp();
        Serve(300, [](const std::string& id, int k) {
            return id + ",2014-01-02 09:30:01.250," + std::to_string(100 + k % 9) + ",1,2,1,2,3,C\r\n";
        });
    }
    QFileInfo File() const { return QFileInfo(Path("settings.db")); }
};

} // namespace

TEST_F(CSheetReplay, OkStoresWhatTheStepsChangedAndDrawsAnew)
{
    const json state = After("symbol X\ndraw\nwait complete\ncommand 775\ndialog page General\n"
                             "dialog set 308 Right\ndialog set 232 60\ndialog page Colors\n"
                             "dialog set 251 #102030\ndialog ok\nwait complete");
    EXPECT_TRUE(state.at("dialog").is_null());
    EXPECT_EQ(Stored("Y Axis Orientation"), "1");
    EXPECT_EQ(Stored("PTS INDEX"), "1");
    EXPECT_EQ(Stored("Background Color"), std::to_string(0x302010));
    EXPECT_EQ(state.at("range").at("shown"), 60);
    EXPECT_EQ(state.at("panes").at(0).at("interior").at("background"), 0x302010);
    EXPECT_EQ(QString::fromStdString(m_scripted.Lookup.Received()).count("HTX,X,"), 2);
}

TEST_F(CSheetReplay, ASnapshotBesideTheOpenSheetDescribesThePageOnShow)
{
    const json state = After("command 775\ndialog page \"Upper Studies\"\ndialog set 334 Parallel");
    const json& dialog = state.at("dialog");
    EXPECT_EQ(dialog.at("title"), "Settings");
    EXPECT_EQ(dialog.at("page"), "Upper Studies");
    EXPECT_EQ(dialog.at("pages"), json({"Colors", "General", "Data", "Upper Studies", "Lower Studies"}));
    EXPECT_EQ(dialog.at("size").size(), 2u);
    const json& controls = dialog.at("controls");
    EXPECT_EQ(controls.at("334").at("kind"), "combo");
    EXPECT_EQ(controls.at("334").at("value"), "Parallel");
    EXPECT_EQ(controls.at("334").at("items").size(), 7u);
    EXPECT_EQ(controls.at("337").at("kind"), "color");
    EXPECT_EQ(controls.at("337").at("value"), "#5f9ea0") << "0xA09E5F with red in the low byte";
    EXPECT_EQ(controls.at("273").at("kind"), "edit");
    EXPECT_EQ(controls.at("274").at("kind"), "spin");
    EXPECT_EQ(controls.at("273").at("label"), "Moving Average Period:");
    EXPECT_EQ(controls.at("277").at("value"), false);
    EXPECT_EQ(controls.at("1001").at("kind"), "static");
    EXPECT_EQ(controls.at("239").at("enabled"), true);
    EXPECT_EQ(controls.at("239").at("visible"), true);
    EXPECT_FALSE(controls.contains("308")) << "of another page";
}

TEST_F(CSheetReplay, CancelLeavesEveryByteOfTheSettingsFile)
{
    After("command 779");
    const QByteArray bytes = [this] {
        QFile file(File().filePath());
        EXPECT_TRUE(file.open(QIODevice::ReadOnly));
        return file.readAll();
    }();
    ASSERT_GT(bytes.size(), 1000);
    const QDateTime written = File().lastModified();
    After("command 775\ndialog page Colors\ndialog set 251 #010203\ndialog page General\ndialog set 310 on\n"
          "dialog page Data\ndialog set 223 on\ndialog cancel\n"
          "command 775\ndialog page \"Lower Studies\"\ndialog set 328 0"); // its end cancels the second
    QFile file(File().filePath());
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    EXPECT_EQ(file.readAll(), bytes);
    EXPECT_EQ(File().lastModified(), written);
}

TEST_F(CSheetReplay, StepsThatCannotBeDoneSayWhyAndTheScriptGoesOn)
{
    const sRun run = Play("dialog ok\ncommand 775\ndialog page General\ndialog set 311 on\ndialog set 999 1\n"
                          "dialog set 308 Middle\ndialog page Nowhere\ndialog set 308 Right\ndialog ok\n");
    EXPECT_EQ(run.ExitCode, 0);
    for (const char* said :
         {"line 1: dialog: no dialog is open", "line 4: dialog set 311: control 311 is disabled",
          "line 5: dialog set 999: control 999 is not on the page or dialog on show",
          "line 6: dialog set 308: control 308 has no entry \"Middle\"",
          "line 7: dialog page \"Nowhere\": there is no page \"Nowhere\""})
        EXPECT_NE(run.Err.find(said), std::string::npos) << said << "\n" << run.Err;
    EXPECT_EQ(Stored("Y Axis Orientation"), "1");
}

TEST_F(CSheetReplay, MessagesOfThePagesTakeTheQueuedAnswersAndStandAmongTheBoxes)
{
    const json state =
        After("command 775\ndialog page \"Upper Studies\"\ndialog set 273 1\ndialog page Colors\n"
              "dialog ok\ndialog page Data\nanswer yes\ndialog press 248");
    EXPECT_EQ(state.at("dialog").at("page"), "Data") << "the refusal kept the sheet open";
    const json& boxes = state.at("boxes");
    ASSERT_EQ(boxes.size(), 2u);
    EXPECT_EQ(boxes.at(0).at("caption"), "Error");
    EXPECT_EQ(boxes.at(0).at("text"), "Study average period must be from 2 to 999");
    EXPECT_EQ(boxes.at(1).at("caption"), "Settings");
    EXPECT_EQ(boxes.at(1).at("answer"), "yes");
    EXPECT_EQ(Stored("RequestDataType"), "(missing)")
        << "cleared at once; the script's end cancels the sheet";
}

} // namespace zantroq::test
